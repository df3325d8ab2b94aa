// SPDX-License-Identifier: MIT
#include "toolkit/desktop.h"

#include "toolkit/resources.h"
#include "toolkit/text_conversion.h"
#include "toolkit/theme.h"
#include "toolkit/xsettings.h"

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QPalette>
#include <QTimer>

#include <array>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

#include <xcb/xcb.h>

namespace {

constexpr int usual_fixed_points = 10;  ///< where the desktop says nothing

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

xcb_connection_t* server() {
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
}

xcb_atom_t atom(std::string_view name) {
    const auto cookie = xcb_intern_atom(server(), 0, static_cast<std::uint16_t>(name.size()), name.data());
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(server(), cookie, nullptr), &std::free);
    return reply == nullptr ? xcb_atom_t{XCB_ATOM_NONE} : reply->atom;
}

/// Reads the settings of whoever manages them on the first screen, and tells of changes.
class SettingsWatch final : public QAbstractNativeEventFilter {
  public:
    explicit SettingsWatch(std::function<void()> changed)
        : changed_(std::move(changed)),
          selection_(atom("_XSETTINGS_S0")),
          property_(atom("_XSETTINGS_SETTINGS")),
          manager_(atom("MANAGER")) {
        find_owner();
        qApp->installNativeEventFilter(this);
    }

    [[nodiscard]] XSettings settings() const {
        if (owner_ == XCB_WINDOW_NONE) {
            return {};
        }
        constexpr std::uint32_t longest = 65'536;  // units of four bytes
        const auto cookie = xcb_get_property(server(), 0, owner_, property_, property_, 0, longest);
        const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(server(), cookie, nullptr),
                                                    &std::free);
        if (reply == nullptr || reply->format != 8) {
            return {};
        }
        return parse_xsettings({static_cast<const char*>(xcb_get_property_value(reply.get())),
                                static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))});
    }

    bool nativeEventFilter(const QByteArray& /*type*/, void* message, qintptr* /*result*/) override {
        constexpr std::uint8_t kind = 0x7F;  // without the mark of events that clients send
        const auto* event = static_cast<const xcb_generic_event_t*>(message);
        if ((event->response_type & kind) == XCB_PROPERTY_NOTIFY) {
            const auto* property = static_cast<const xcb_property_notify_event_t*>(message);
            if (property->window == owner_ && property->atom == property_) {
                changed_();
            }
        } else if ((event->response_type & kind) == XCB_CLIENT_MESSAGE) {
            const auto* client = static_cast<const xcb_client_message_event_t*>(message);
            if (client->type == manager_ && client->data.data32[1] == selection_) {
                find_owner();
                changed_();
            }
        }
        return false;
    }

  private:
    void find_owner() {
        const Owned<xcb_get_selection_owner_reply_t> reply(
            xcb_get_selection_owner_reply(server(), xcb_get_selection_owner(server(), selection_), nullptr),
            &std::free);
        owner_ = reply == nullptr ? xcb_window_t{XCB_WINDOW_NONE} : reply->owner;
        if (owner_ != XCB_WINDOW_NONE) {
            const std::array events{std::uint32_t{XCB_EVENT_MASK_PROPERTY_CHANGE} |
                                    std::uint32_t{XCB_EVENT_MASK_STRUCTURE_NOTIFY}};
            xcb_change_window_attributes(server(), owner_, XCB_CW_EVENT_MASK, events.data());
        }
    }

    std::function<void()> changed_;
    xcb_atom_t selection_;
    xcb_atom_t property_;
    xcb_atom_t manager_;
    xcb_window_t owner_ = XCB_WINDOW_NONE;
};

std::unique_ptr<SettingsWatch> watch;
std::function<void()> told;
std::optional<QFont> told_fixed_font;

std::string text_of(const XSettings& settings, std::string_view name) {
    const auto found = settings.find(name);
    return found == settings.end() ? std::string() : found->second;
}

/// A font as desktops name it: "DejaVu Sans Mono Bold 12". The style is for the desktop's own texts.
std::optional<QFont> font_named(const std::string& name) {
    constexpr double largest = 96;
    QStringList words = to_qstring(name).split(u' ', Qt::SkipEmptyParts);
    bool is_number = false;
    const double points = words.empty() ? 0 : words.takeLast().toDouble(&is_number);
    static const QStringList styles{QStringLiteral("Bold"),    QStringLiteral("Italic"),
                                    QStringLiteral("Oblique"), QStringLiteral("Regular"),
                                    QStringLiteral("Medium"),  QStringLiteral("Book")};
    while (!words.empty() && styles.contains(words.last())) {
        words.removeLast();
    }
    if (!is_number || words.empty() || points < 1 || points > largest) {
        return std::nullopt;
    }
    QFont font(words.join(u' '));
    font.setPointSizeF(points);
    return font;
}

/// The palette that the desktop's plug-in of Qt gives, if there is one.
bool is_dark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

Shade shade_of(const XSettings& settings) {
    const std::string wanted = defaults_get_string("orvik.palette", "Orvik.Palette", "desktop");
    if (wanted == "dark" || wanted == "light") {
        return wanted == "dark" ? Shade::dark : Shade::light;
    }
    const QString theme = to_qstring(text_of(settings, "Net/ThemeName"));
    const bool named_dark = theme.contains(QLatin1String("dark"), Qt::CaseInsensitive) ||
                            text_of(settings, "Gtk/ApplicationPreferDarkTheme") == "1";
    return named_dark || is_dark(desktop_palette()) ? Shade::dark : Shade::light;
}

void take_over_looks() {
    const XSettings settings = watch->settings();
    told_fixed_font = font_named(text_of(settings, "Gtk/MonospaceFontName"));
    if (const std::optional<QFont> font = font_named(text_of(settings, "Gtk/FontName"));
        font && *font != QApplication::font()) {
        QApplication::setFont(*font);
    }
    apply_theme(shade_of(settings));
    if (told) {
        told();
    }
}

}  // namespace

void follow_desktop() {
    // Not within the event: Qt reads the settings too.
    watch = std::make_unique<SettingsWatch>([] { QTimer::singleShot(0, qApp, take_over_looks); });
    QObject::connect(qApp, &QObject::destroyed, [] {
        told = nullptr;
        watch.reset();
    });
    take_over_looks();
}

void on_desktop_change(std::function<void()> changed) { told = std::move(changed); }

QFont desktop_fixed_font() {
    if (told_fixed_font) {
        return *told_fixed_font;
    }
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const char* const desktop = std::getenv("XDG_CURRENT_DESKTOP");
    if (desktop == nullptr || *desktop == '\0') {
        font.setPointSize(usual_fixed_points);  // what Qt says then is no user's choice
    }
    return font;
}
