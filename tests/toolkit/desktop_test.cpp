// SPDX-License-Identifier: MIT
#include "toolkit/desktop.h"

#include "toolkit/resource_database.h"
#include "toolkit/theme.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyle>
#include <QTest>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <xcb/xcb.h>

namespace {

/// A desktop that tells its settings.
class Manager {
  public:
    Manager() : server_(xcb_connect(nullptr, nullptr)), window_(xcb_generate_id(server_)) {
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server_)).data->root;
        xcb_create_window(server_, 0, window_, root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, 0, 0,
                          nullptr);
        xcb_set_selection_owner(server_, window_, atom("_XSETTINGS_S0"), XCB_CURRENT_TIME);
        xcb_client_message_event_t here{};
        here.response_type = XCB_CLIENT_MESSAGE;
        here.format = 32;
        here.window = root;
        here.type = atom("MANAGER");
        here.data.data32[1] = atom("_XSETTINGS_S0");
        here.data.data32[2] = window_;
        xcb_send_event(server_, 0, root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                       reinterpret_cast<const char*>(&here));
    }
    ~Manager() { xcb_disconnect(server_); }
    Manager(const Manager&) = delete;
    Manager& operator=(const Manager&) = delete;

    void tell(const std::vector<std::pair<std::string, std::string>>& settings) {
        std::string text(8, '\0');
        append_number(text, settings.size());
        for (const auto& [name, value] : settings) {
            text += {1, 0, static_cast<char>(name.size()), 0};
            append_padded(text, name);
            append_number(text, 0);
            append_number(text, value.size());
            append_padded(text, value);
        }
        const xcb_atom_t property = atom("_XSETTINGS_SETTINGS");
        xcb_change_property(server_, XCB_PROP_MODE_REPLACE, window_, property, property, 8,
                            static_cast<std::uint32_t>(text.size()), text.data());
        free(xcb_get_input_focus_reply(server_, xcb_get_input_focus(server_), nullptr));  // it is done
    }

  private:
    static void append_number(std::string& text, std::size_t number) {
        text += {static_cast<char>(number), 0, 0, 0};
    }
    static void append_padded(std::string& text, const std::string& value) {
        text += value + std::string((4 - value.size() % 4) % 4, '\0');
    }
    xcb_atom_t atom(std::string_view name) {
        const auto cookie = xcb_intern_atom(server_, 0, static_cast<std::uint16_t>(name.size()), name.data());
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&free)> reply(
            xcb_intern_atom_reply(server_, cookie, nullptr), &free);
        return reply->atom;
    }

    xcb_connection_t* server_;
    xcb_window_t window_;
};

bool is_dark() { return QApplication::palette().color(QPalette::Window).lightness() < 128; }

TEST(Desktop, IsFollowedWhenItChanges) {
    load_resource_database(nullptr, {});
    const QFont usual = QApplication::font();
    Manager manager;
    manager.tell({{"Net/ThemeName", "Some-Dark"}, {"Gtk/MonospaceFontName", "DejaVu Sans Mono Bold 13"}});
    ASSERT_TRUE(QTest::qWaitFor(is_dark, 5000));
    EXPECT_EQ(desktop_fixed_font().pointSizeF(), 13);
    EXPECT_EQ(desktop_fixed_font().family(), "DejaVu Sans Mono");
    EXPECT_FALSE(desktop_fixed_font().bold());

    int told = 0;
    on_desktop_change([&told] { ++told; });
    const int picture = QApplication::style()->pixelMetric(QStyle::PM_ButtonIconSize);
    manager.tell({{"Net/ThemeName", "Some"}, {"Gtk/FontName", "DejaVu Sans 24"}});
    EXPECT_TRUE(QTest::qWaitFor([] { return !is_dark(); }, 5000));
    EXPECT_EQ(told, 1);
    EXPECT_EQ(QApplication::font().pointSizeF(), 24);
    EXPECT_EQ(desktop_fixed_font().pointSizeF(), 10) << "it says nothing any more";
    EXPECT_GT(QApplication::style()->pixelMetric(QStyle::PM_ButtonIconSize), picture);

    load_resource_database(nullptr, {"Orvik.Palette: dark"});
    manager.tell({{"Net/ThemeName", "Some"}, {"Gtk/FontName", "no font 500"}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return told > 1; }, 5000));
    EXPECT_TRUE(is_dark()) << "its user's word holds";

    on_desktop_change(nullptr);
    load_resource_database(nullptr, {});
    QApplication::setFont(usual);
    apply_theme(Shade::light);
}

}  // namespace
