// SPDX-License-Identifier: MIT
#include "toolkit/application.h"

#include "toolkit/desktop.h"
#include "toolkit/frame.h"
#include "toolkit/resource_database.h"
#include "toolkit/text_conversion.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QIcon>
#include <QScreen>
#include <QSocketNotifier>
#include <QWidget>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <fcntl.h>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {

struct ToolkitOptions {
    std::string display;
    std::string geometry;
    std::vector<std::string> resources;
};

/// Takes the toolkit's options out; one without its value is dropped alone.
ToolkitOptions take_options(std::vector<std::string>& arguments) {
    ToolkitOptions taken;
    std::vector<std::string> rest;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& name = arguments[i];
        if (i == 0 || (name != "-display" && name != "-geometry" && name != "-xrm")) {
            rest.push_back(name);
            continue;
        }
        const std::string value = ++i < arguments.size() ? arguments[i] : std::string();
        if (name == "-xrm") {
            taken.resources.push_back(value);
        } else {
            (name == "-display" ? taken.display : taken.geometry) = value;
        }
    }
    arguments = std::move(rest);
    return taken;
}

/// What QApplication is given; it keeps references to count and vector for its whole life.
struct QtArguments {
    std::vector<std::string> texts;
    std::vector<char*> pointers;
    int count = 0;

    explicit QtArguments(std::vector<std::string> arguments) : texts(std::move(arguments)) {
        for (std::string& text : texts) {
            pointers.push_back(text.data());
        }
        count = static_cast<int>(pointers.size());
        pointers.push_back(nullptr);
    }
};

std::unique_ptr<QtArguments> qt_arguments;
std::unique_ptr<QApplication> application;
std::string main_geometry;
std::array<int, 2> signal_pipe{-1, -1};
LastAct last_act = nullptr;
QtMessageHandler usual_messages = nullptr;

bool display_is_lost() {
    auto* const x11 =
        application ? application->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 != nullptr && xcb_connection_has_error(x11->connection()) != 0;
}

/// Nothing of Qt is destroyed: its destructors would talk to the display.
[[noreturn]] void end_without_display() {
    const std::string trouble = last_act == nullptr ? std::string() : std::exchange(last_act, nullptr)();
    const char* const reason =
        display_is_lost() ? "Lost the connection to the display" : "Ended by the toolkit";
    std::fprintf(stderr, "%s%s%s\n", reason, trouble.empty() ? "" : ": ", trouble.c_str());
    _exit(1);
}

/// The first of the functions that run at exit. While the toolkit lives, it is Qt that calls exit: its
/// connection has broken.
void check_end() {
    if (application) {
        end_without_display();
    }
}

/// What Qt has to say of a lost display is said in our own line. It says so before it calls exit, while
/// everything that lives as long as the process is still there.
void pass_message(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (display_is_lost()) {
        end_without_display();
    }
    usual_messages(type, context, text);
}

/// A display that goes ends the process from within, by way of Qt's exit or of Xlib's error handler.
void end_in_order_without_display() {
    usual_messages = qInstallMessageHandler(pass_message);
    XSetIOErrorHandler([](Display*) -> int { end_without_display(); });
    std::atexit(check_end);
}

void note_signal(int /*number*/) {
    const char byte = 0;
    [[maybe_unused]] const auto written = write(signal_pipe[1], &byte, 1);
}

/// A signal to end leads through the event loop, so that the shell and the status file are put in order.
void end_on_signals() {
    if (pipe2(signal_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    auto* notifier = new QSocketNotifier(signal_pipe[0], QSocketNotifier::Read, application.get());
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [] { notify_stop(); });
    struct sigaction action {};
    action.sa_handler = note_signal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        sigaction(number, &action, nullptr);
    }
}

/// An X geometry text (XParseGeometry): negative offsets count from the screen's right and bottom edges.
struct Geometry {
    int given = 0;
    int x = 0;
    int y = 0;
    QSize size;

    Geometry(const std::string& text, QSize usual) {
        auto width = static_cast<unsigned>(usual.width());
        auto height = static_cast<unsigned>(usual.height());
        given = XParseGeometry(text.c_str(), &x, &y, &width, &height);
        constexpr unsigned largest = 16384;
        size = {static_cast<int>(std::min(width, largest)), static_cast<int>(std::min(height, largest))};
    }
    /// Where a window goes that takes so much room with its frame.
    [[nodiscard]] QPoint place(const QRect& screen, QSize outer) const {
        return {(given & XNegative) != 0 ? screen.right() + 1 + x - outer.width() : screen.left() + x,
                (given & YNegative) != 0 ? screen.bottom() + 1 + y - outer.height() : screen.top() + y};
    }
};

/// Places a window as a geometry says: before it is shown, and again once the frame round it is known, which
/// counts with offsets from the right and the bottom edge.
class GeometryPlacer : public QObject {
  public:
    GeometryPlacer(QWidget& window, const Geometry& geometry)
        : QObject(&window), window_(window), geometry_(geometry) {
        place();
        if ((geometry_.given & (XNegative | YNegative)) != 0) {
            window_.installEventFilter(this);
            since_start_.start();
        }
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        constexpr int patience = 2000;  // milliseconds; later moves are the user's
        const bool frame_is_known = window_.frameGeometry() != window_.geometry();
        if (since_start_.hasExpired(patience)) {
            deleteLater();
        } else if (event->type() == QEvent::Move && frame_is_known) {
            window_.removeEventFilter(this);
            deleteLater();
            place();
        }
        return false;
    }

  private:
    void place() const { window_.move(geometry_.place(window_.screen()->geometry(), window_.frameSize())); }

    QWidget& window_;
    Geometry geometry_;
    QElapsedTimer since_start_;
};

std::string display_failure(const std::string& name) {
    const std::string display = XDisplayName(name.empty() ? nullptr : name.c_str());
    return display.empty() ? "Can't open display: DISPLAY is not set"
                           : "Can't open display \"" + display + "\"";
}

}  // namespace

std::string xv_init(std::vector<std::string>& arguments, const std::function<void()>& display_answered) {
    const ToolkitOptions options = take_options(arguments);
    Display* display = XOpenDisplay(options.display.empty() ? nullptr : options.display.c_str());
    if (display == nullptr) {
        return display_failure(options.display);
    }
    if (display_answered) {
        display_answered();
    }
    load_resource_database(XResourceManagerString(display), options.resources);

    std::vector<std::string> texts{arguments.empty() ? "orvik" : arguments.front(), "-platform", "xcb"};
    if (!options.display.empty()) {
        texts.insert(texts.end(), {"-display", options.display});
    }
    qt_arguments = std::make_unique<QtArguments>(std::move(texts));
    application = std::make_unique<QApplication>(qt_arguments->count, qt_arguments->pointers.data());
    XCloseDisplay(display);  // not sooner: a server without clients begins anew, and refuses Qt meanwhile
    application->setApplicationName(QStringLiteral("orvik"));
    application->setApplicationDisplayName(QString());
    application->setQuitOnLastWindowClosed(false);
    main_geometry = options.geometry;
    follow_desktop();
    end_in_order_without_display();
    end_on_signals();
    return {};
}

void apply_geometry_option(Frame& main_window) {
    if (!main_geometry.empty()) {
        QWidget& window = *main_window.widget();
        window.resize(Geometry(main_geometry, window.size()).size);
    }
}

void xv_main_loop(Frame& main_window) {
    QWidget& window = *main_window.widget();
    window.ensurePolished();
    window.resize(window.size().expandedTo(window.minimumSizeHint()));  // as it will be
    if (const Geometry geometry(main_geometry, window.size()); (geometry.given & (XValue | YValue)) != 0) {
        new GeometryPlacer(window, geometry);
    }
    main_window.show();
    QApplication::exec();
}

// Not quit(): that asks every window to close first, and the main window asks its user.
void notify_stop() { QApplication::exit(); }

void xv_destroy() { application.reset(); }

void on_lost_display(LastAct act) { last_act = act; }

void set_pointer_limits(int multiclick_microseconds, int drag_pixels) {
    QApplication::setDoubleClickInterval(multiclick_microseconds / 1000);
    QApplication::setStartDragDistance(drag_pixels);
}

void window_bell() { QApplication::beep(); }

void set_application_icon(const std::string& path) { QApplication::setWindowIcon(QIcon(to_qstring(path))); }
