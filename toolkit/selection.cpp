// SPDX-License-Identifier: MIT
#include "toolkit/selection.h"

#include "toolkit/text_conversion.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <qguiapplication_platform.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string_view>

#include <X11/Xlib.h>
#include <poll.h>
#include <xcb/xcb.h>

namespace {

using Clock = std::chrono::steady_clock;
using Kind = SelectionAnswer::Kind;

constexpr std::chrono::milliseconds patience{1000};

struct Freer {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename Type>
using Freed = std::unique_ptr<Type, Freer>;

/// Asks the holder of a selection for text (ICCCM, section 2): on a connection to the X server of its own, so
/// that waiting for the answer disturbs nobody else's events.
class SelectionAsker {
  public:
    /// On a display that cannot be reached nobody holds anything.
    explicit SelectionAsker(const std::string& display) : connection_(xcb_connect(display.c_str(), nullptr)) {
        if (is_connected()) {
            property_ = atom("ORVIK_SELECTION");
            make_window();
        }
    }

    SelectionAnswer ask(std::string_view selection, std::size_t longest) {
        longest_ = longest;
        deadline_ = Clock::now() + patience;
        SelectionAnswer answer;
        for (const std::string_view target : {"UTF8_STRING", "STRING"}) {
            if (is_connected() && answer.kind == Kind::nobody) {
                answer = ask_for(atom(target), atom(selection));
            }
        }
        if (answer.kind == Kind::silent || answer.kind == Kind::too_long) {
            make_window();  // what is still to come of this answer goes to the old one
        }
        return answer;
    }

    /// The window that holds a selection; none where nobody does.
    [[nodiscard]] xcb_window_t holder(std::string_view selection) const {
        const auto cookie = xcb_get_selection_owner(connection_.get(), atom(selection));
        const Freed<xcb_get_selection_owner_reply_t> reply(
            xcb_get_selection_owner_reply(connection_.get(), cookie, nullptr));
        return reply ? reply->owner : xcb_window_t{XCB_NONE};
    }

  private:
    struct Closer {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    /// What the holder has put into the property.
    struct Content {
        xcb_atom_t type = XCB_ATOM_NONE;
        std::size_t size = 0;  ///< of all
        std::string bytes;     ///< the first of them
    };

    [[nodiscard]] bool is_connected() const { return xcb_connection_has_error(connection_.get()) == 0; }

    void make_window() {
        const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data;
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        window_ = xcb_generate_id(connection_.get());
        xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, window_, screen->root, 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    }

    [[nodiscard]] xcb_atom_t atom(std::string_view name) const {
        const auto cookie =
            xcb_intern_atom(connection_.get(), 0, static_cast<std::uint16_t>(name.size()), name.data());
        const Freed<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection_.get(), cookie, nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    [[nodiscard]] SelectionAnswer ask_for(xcb_atom_t target, xcb_atom_t selection) {
        remove();
        xcb_convert_selection(connection_.get(), window_, selection, target, property_, XCB_CURRENT_TIME);
        const auto answer = wait_for<xcb_selection_notify_event_t>(
            XCB_SELECTION_NOTIFY, [&](const xcb_selection_notify_event_t& event) {
                return event.requestor == window_ && event.target == target;
            });
        if (!answer) {
            return {Kind::silent, {}};
        }
        return answer->property == XCB_ATOM_NONE ? SelectionAnswer{} : receive();
    }

    [[nodiscard]] SelectionAnswer receive() {
        const Content content = look(0);
        if (content.type == atom("INCR")) {
            return receive_in_pieces();
        }
        const bool fits = content.size <= longest_;
        const std::string bytes = fits ? look(content.size).bytes : std::string();
        remove();
        return fits ? as_text(content.type, bytes) : SelectionAnswer{Kind::too_long, {}};
    }

    /// A long text comes in pieces, each when the one before it was taken; an empty one ends it. What is too
    /// long is not fetched, but taken all the same: some holders serve nobody else before they are through.
    [[nodiscard]] SelectionAnswer receive_in_pieces() {
        std::string bytes;
        bool fits = true;
        while (const std::optional<Content> piece = next_piece()) {
            if (piece->size == 0) {
                remove();
                return fits ? as_text(piece->type, bytes) : SelectionAnswer{Kind::too_long, {}};
            }
            fits = fits && piece->size <= longest_ - bytes.size();
            bytes += fits ? look(piece->size).bytes : std::string();
        }
        return {fits ? Kind::silent : Kind::too_long, {}};
    }

    /// Asks for it by taking away the last one.
    [[nodiscard]] std::optional<Content> next_piece() {
        remove();
        const auto has_come = wait_for<xcb_property_notify_event_t>(
            XCB_PROPERTY_NOTIFY, [&](const xcb_property_notify_event_t& event) {
                return event.window == window_ && event.state == XCB_PROPERTY_NEW_VALUE;
            });
        return has_come ? std::optional(look(0)) : std::nullopt;
    }

    void remove() const { xcb_delete_property(connection_.get(), window_, property_); }

    /// The property with so many of its bytes.
    [[nodiscard]] Content look(std::size_t bytes) const {
        const auto words = static_cast<std::uint32_t>((bytes + 3) / 4);
        const auto cookie =
            xcb_get_property(connection_.get(), 0, window_, property_, XCB_GET_PROPERTY_TYPE_ANY, 0, words);
        const Freed<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(connection_.get(), cookie, nullptr));
        if (!reply || (reply->format != 8 && bytes > 0)) {
            return {};
        }
        const auto length = static_cast<std::size_t>(xcb_get_property_value_length(reply.get()));
        return {reply->type, length + reply->bytes_after,
                std::string(static_cast<const char*>(xcb_get_property_value(reply.get())), length)};
    }

    [[nodiscard]] SelectionAnswer as_text(xcb_atom_t type, std::string bytes) const {
        if (!bytes.empty() && bytes.back() == '\0') {
            bytes.pop_back();
        }
        const bool latin1 = type == XCB_ATOM_STRING;
        if (!latin1 && type != atom("UTF8_STRING")) {
            return {};
        }
        return {Kind::text, from_qstring(latin1 ? QString::fromLatin1(bytes) : QString::fromUtf8(bytes))};
    }

    /// The next event of a kind that fits, until the deadline; others are of no interest.
    template <typename Event, typename Fits>
    [[nodiscard]] std::optional<Event> wait_for(std::uint8_t kind, Fits fits) {
        xcb_flush(connection_.get());
        while (is_connected()) {
            while (const Freed<xcb_generic_event_t> event{xcb_poll_for_event(connection_.get())}) {
                const auto& found = reinterpret_cast<const Event&>(*event);
                constexpr std::uint8_t sent = 0x80;
                if ((event->response_type & ~sent) == kind && fits(found)) {
                    return found;
                }
            }
            const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline_ - Clock::now());
            pollfd input{.fd = xcb_get_file_descriptor(connection_.get()), .events = POLLIN, .revents = 0};
            if (left.count() <= 0 || poll(&input, 1, static_cast<int>(left.count())) <= 0) {
                return std::nullopt;
            }
        }
        return std::nullopt;
    }

    std::unique_ptr<xcb_connection_t, Closer> connection_;
    xcb_window_t window_ = XCB_NONE;
    xcb_atom_t property_ = XCB_ATOM_NONE;  ///< of the window, where the answer is to stand
    std::size_t longest_ = 0;
    Clock::time_point deadline_;
};

/// Of a selection that this program holds: the event loop, which would answer, stands still.
SelectionAnswer own_text(QClipboard::Mode mode, std::size_t longest) {
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData(mode);
    if (data == nullptr || !data->hasText()) {
        return {};
    }
    const QString text = data->text();
    return static_cast<std::size_t>(text.size()) > longest ? SelectionAnswer{Kind::too_long, {}}
                                                           : SelectionAnswer{Kind::text, from_qstring(text)};
}

SelectionAsker& asker() {
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    static SelectionAsker only(x11 != nullptr ? DisplayString(x11->display()) : std::string());
    return only;
}

/// How a selection is called here and there.
struct Names {
    QClipboard::Mode mode;
    std::string_view atom;
};

Names names_of(SelectionName name) {
    return name == SelectionName::primary ? Names{QClipboard::Selection, "PRIMARY"}
                                          : Names{QClipboard::Clipboard, "CLIPBOARD"};
}

/// Whether a window is one of Qt's. The server is asked who holds a selection: Qt would learn only from the
/// event loop that another program has taken it, and wait for that one.
bool is_own(xcb_window_t window) {
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr || window == XCB_NONE) {
        return false;
    }
    const xcb_setup_t* const setup = xcb_get_setup(x11->connection());
    return (window & ~setup->resource_id_mask) == setup->resource_id_base;
}

}  // namespace

bool selection_inquire(SelectionName name) { return asker().holder(names_of(name).atom) != XCB_NONE; }

SelectionAnswer selection_ask(std::size_t longest, SelectionName name) {
    const auto [mode, atom] = names_of(name);
    const xcb_window_t holder = asker().holder(atom);
    if (holder == XCB_NONE) {
        return {};
    }
    SelectionAnswer answer = is_own(holder) ? own_text(mode, longest) : asker().ask(atom, longest);
    return answer.text.size() <= longest ? answer : SelectionAnswer{Kind::too_long, {}};
}

void copy_to_clipboard(const std::string& text) { QGuiApplication::clipboard()->setText(to_qstring(text)); }
