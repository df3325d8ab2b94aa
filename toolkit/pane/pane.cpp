// SPDX-License-Identifier: MIT
#include "toolkit/pane/pane.h"

#include "terminal/text.h"
#include "toolkit/pane/accessible.h"
#include "toolkit/pane/colours.h"
#include "toolkit/pane/find_bar.h"
#include "toolkit/pane/font_menu.h"
#include "toolkit/pane/link.h"
#include "toolkit/pane/session.h"
#include "toolkit/pane/view.h"
#include "toolkit/resources.h"
#include "toolkit/text_conversion.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QMenu>
#include <QScrollBar>

#include <algorithm>

/// The widgets of a pane and its session: the view with a scroll bar, and the find bar under them.
class PaneWidget final : public QWidget {
  public:
    explicit PaneWidget(QWidget* parent);

    [[nodiscard]] TerminalSession& session() { return session_; }
    [[nodiscard]] TerminalView& view() { return *view_; }
    void set_events(TerminalPane::Events events) { events_ = std::move(events); }
    /// A sound, and a flash unless that is switched off. Bells that follow too soon are passed over: false.
    bool ring();
    void set_visual_bell(VisualBell bell) { visual_bell_ = bell; }

  private:
    void fill_menu(const std::string& link);
    void show_menu(QPoint place);

    TerminalSession session_;
    QScrollBar* scroll_bar_;
    TerminalView* view_;
    TerminalFindBar* find_bar_;
    TerminalPane::Events events_;
    VisualBell visual_bell_ = VisualBell::on;
    QElapsedTimer since_bell_;
};

namespace {

constexpr int bell_interval_milliseconds = 500;

void call(const std::function<void()>& callback) {
    if (callback) {
        callback();
    }
}

/// The number of rows kept above the screen: as the user's X resources say, 10,000 unless they do.
std::size_t scrollback_rows() {
    const int rows = defaults_get_integer("orvik.scrollback", "Orvik.Scrollback",
                                          static_cast<int>(terminal::Options{}.scrollback_rows));
    return static_cast<std::size_t>(std::max(rows, 0));
}

/// The scroll bar stands in the terminal's dark frame.
QPalette scroll_bar_palette() {
    const terminal::Rgb background = terminal_colours::background;
    const QColor dark(background.red, background.green, background.blue);
    QPalette palette(dark.lighter(190), dark.lighter(140));
    palette.setColor(QPalette::Base, dark);
    return palette;
}

}  // namespace

PaneWidget::PaneWidget(QWidget* parent)
    : QWidget(parent),
      session_(scrollback_rows()),
      scroll_bar_(new QScrollBar(Qt::Vertical, this)),
      view_(new TerminalView(session_, *scroll_bar_, this)),
      find_bar_(new TerminalFindBar(*view_, this)) {
    scroll_bar_->setPalette(scroll_bar_palette());
    scroll_bar_->setFocusPolicy(Qt::NoFocus);
    scroll_bar_->setAccessibleName(QStringLiteral("Scrollback"));
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(view_, 0, 0);
    layout->addWidget(scroll_bar_, 0, 1);
    layout->addWidget(find_bar_, 1, 0, 1, 2);
    layout->setRowStretch(0, 1);
    layout->setColumnStretch(0, 1);
    setFocusProxy(view_);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    fill_menu({});
    view_->set_menu_callback([this](QPoint place) { show_menu(place); });
    view_->set_find_callback([this] { find_bar_->open(); });
    session_.set_events(
        {.changed =
             [this] {
                 view_->content_changed();
                 call(events_.output);
             },
         .bell =
             [this] {
                 if (ring()) {
                     call(events_.bell);
                 }
             },
         .ready = [this] { call(events_.ready); },
         .ended = [this] { call(events_.ended); },
         .restarted = [this] { call(events_.restarted); },
         .resized = [this] { view_->follow_size(); },
         .window_requested = [this](const terminal::WindowRequest& request) { view_->perform(request); },
         .selection_written =
             [](TerminalSession::Selection selection, const std::string& text) {
                 const bool clipboard = selection == TerminalSession::Selection::clipboard;
                 QApplication::clipboard()->setText(
                     to_qstring(text), clipboard ? QClipboard::Clipboard : QClipboard::Selection);
             }});
    session_.set_surroundings(
        {.window = [this] { return view_->window_geometry(); }, .named_colour = x_colour});
}

bool PaneWidget::ring() {
    if (since_bell_.isValid() && !since_bell_.hasExpired(bell_interval_milliseconds)) {
        return false;
    }
    since_bell_.start();
    QApplication::beep();
    if (visual_bell_ == VisualBell::on) {
        view_->flash();
    }
    return true;
}

void PaneWidget::fill_menu(const std::string& link) {
    QMenu& menu = view_->menu();
    menu.clear();
    // The view handles the keys itself; the menu only tells them.
    const auto add = [&](const char* label, const char* keys, auto action) {
        QAction* item = menu.addAction(QLatin1String(label), view_, action);
        item->setShortcut(QKeySequence(QLatin1String(keys)));
        item->setShortcutContext(Qt::WidgetShortcut);
        return item;
    };
    if (!link.empty()) {
        add("Open Link...", "", [this, link] { offer_link(view_, link); });
        add("Copy Link Address", "",
            [link] { QApplication::clipboard()->setText(to_qstring(link), QClipboard::Clipboard); });
        menu.addSeparator();
    }
    add("Copy", "Ctrl+Shift+C", [this] { view_->copy(); })->setEnabled(!view_->selection().empty());
    add("Paste", "Ctrl+Shift+V", [this] { view_->paste(SelectionName::clipboard); });
    add("Paste Selection", "Shift+Ins", [this] { view_->paste(SelectionName::primary); });
    menu.addSeparator();
    add("Find...", "Ctrl+Shift+F", [this] { find_bar_->open(); });
    QMenu* fonts = menu.addMenu(QStringLiteral("Font"));
    connect(fonts, &QMenu::aboutToShow, view_, [this, fonts] { fill_font_menu(*fonts, *view_); });
    add("Clear", "", [this] { session_.clear(); });
    add("Reset", "", [this] { session_.reset(); });
}

void PaneWidget::show_menu(QPoint place) {
    fill_menu(view_->link_at(view_->mapFromGlobal(place)));
    view_->menu().popup(place);
}

TerminalPane::TerminalPane(Container& parent, std::string_view accessible_name)
    : TerminalPane(parent.widget(), accessible_name) {
    parent.add({}, pane_, Place::line);
}

TerminalPane::TerminalPane(QWidget* parent, std::string_view accessible_name)
    : pane_(new PaneWidget(parent)) {
    install_terminal_accessibility();
    pane_->view().setAccessibleName(to_qstring(accessible_name));
}

void TerminalPane::start(const terminal::Program& program, std::unique_ptr<terminal::Pty> started) {
    pane_->session().start(program, std::move(started));
}

QWidget* TerminalPane::widget() const { return pane_; }

void TerminalPane::set_font(const Font& font) {
    if (font) {
        pane_->view().set_terminal_font(font.qt());
    }
}

void TerminalPane::set_focus() { pane_->view().setFocus(); }

void TerminalPane::permit(const terminal::Permissions& permissions) { pane_->session().permit(permissions); }

void TerminalPane::clear() { pane_->session().clear(); }

bool TerminalPane::ring_bell() { return pane_->ring(); }

void TerminalPane::set_visual_bell(VisualBell bell) { pane_->set_visual_bell(bell); }

TerminalPane::CurrentLine TerminalPane::current_line() {
    pane_->session().await_echo();
    return shown_line();
}

TerminalPane::CurrentLine TerminalPane::shown_line() const {
    const terminal::Terminal& terminal = pane_->session().terminal();
    return {terminal::line_to_cursor_text(terminal), terminal::line_behind_cursor_text(terminal),
            !pane_->session().echo_is_due()};
}

std::optional<std::string> TerminalPane::typed_line() const {
    const TerminalSession& session = pane_->session();
    return session.asks_for_password() ? std::nullopt : session.typed_line().text();
}

void TerminalPane::watch_lines(const std::function<void(const CurrentLine&)>& left) {
    if (left) {
        pane_->session().watch_lines([this, left] { left(shown_line()); });
    } else {
        pane_->session().watch_lines({});
    }
}

int TerminalPane::columns() const { return pane_->session().terminal().size().columns; }

int TerminalPane::rows() const { return pane_->session().terminal().size().rows; }

PaneUse TerminalPane::use() const {
    const TerminalSession& session = pane_->session();
    const terminal::Pty* const pty = session.pty();
    PaneUse use{pty != nullptr ? pty->use() : terminal::TerminalUse{}};
    use.started = session.is_started();
    use.in_front = pty != nullptr && use.group == pty->child();
    use.full_screen = session.terminal().modes().alternate_screen;
    return use;
}

std::optional<pid_t> TerminalPane::typed_to() const {
    const TerminalSession& session = pane_->session();
    return session.typed_line().is_begun() ? std::optional(session.typed_to()) : std::nullopt;
}

pid_t TerminalPane::child() const {
    const terminal::Pty* const pty = pane_->session().pty();
    return pty != nullptr ? pty->child() : -1;
}

bool TerminalPane::has_ended() const { return pane_->session().has_ended(); }

void TerminalPane::set_events(Events events) { pane_->set_events(std::move(events)); }

void ttysw_input(TerminalPane& pane, std::string_view text) { pane.pane_->session().submit(text); }

void ttysw_output(TerminalPane& pane, std::string_view text) { pane.pane_->session().show(text); }

void notify_interpose_event_func(TerminalPane& pane, std::function<bool(KeyEvent&)> function) {
    pane.pane_->view().set_interposer(std::move(function));
}

void textsw_possibly_normalize(TerminalPane& pane) {
    const terminal::Terminal& terminal = pane.pane_->session().terminal();
    pane.pane_->view().show_row(terminal.cursor().position.row);
}
