// SPDX-License-Identifier: MIT
#include "app/fonts.h"

#include "toolkit/resources.h"
#include "ui/about_window.h"
#include "ui/command_history_manager.h"
#include "ui/command_list_manager.h"
#include "ui/file_list_browser.h"
#include "ui/file_tree_browser.h"
#include "ui/main_window.h"
#include "ui/message_board.h"
#include "ui/notebook.h"
#include "ui/send_email.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace {

constexpr int extra_small_points = 8;
constexpr int icon_points = 10;

struct DrawingFont {
    Font* font;
    FontStyle style;
    FontScale scale;
    std::optional<int> points;
};

struct NamedScale {
    std::string_view name;
    FontScale scale;
};

void set_tree_fonts() {
    const std::array<std::pair<Font, Font>, 4> sizes{{
        {DS_font_extra_small, DS_font_extra_small_bold},
        {DS_font_small, DS_font_small_bold},
        {DS_font_medium, DS_font_medium_bold},
        {DS_font_large, DS_font_large_bold},
    }};
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        file_tree_browser().canvas.set_fonts(static_cast<int>(i), sizes[i].first, sizes[i].second);
    }
}

/// Tried in this order; the last name found in the resource's value holds.
constexpr std::array scales{
    NamedScale{"small", FontScale::small},
    NamedScale{"medium", FontScale::medium},
    NamedScale{"large", FontScale::large},
    NamedScale{"extralarge", FontScale::extra_large},
};

void set_pane_fonts(const Font& font) {
    main_window().termpane.set_font(font);
    message_board().text.set_font(font);
    notebook().text.set_font(font);
    send_email().text.set_font(font);
}

}  // namespace

void find_fonts() {
    icon_font = xv_find({.points = icon_points});
    fixed_font = xv_find({.family = FontFamily::fixed_width});
    bold_font = xv_find({.style = FontStyle::bold});
    using enum FontScale;
    using enum FontStyle;
    const std::array drawing_fonts{
        DrawingFont{&DS_font_extra_small, normal, small, extra_small_points},
        DrawingFont{&DS_font_small, normal, small, {}},
        DrawingFont{&DS_font_medium, normal, medium, {}},
        DrawingFont{&DS_font_large, normal, large, {}},
        DrawingFont{&DS_font_extra_small_bold, bold, small, extra_small_points},
        DrawingFont{&DS_font_small_bold, bold, small, {}},
        DrawingFont{&DS_font_medium_bold, bold, medium, {}},
        DrawingFont{&DS_font_large_bold, bold, large, {}},
    };
    for (const DrawingFont& wanted : drawing_fonts) {
        *wanted.font = xv_find({.style = wanted.style, .scale = wanted.scale, .points = wanted.points});
    }
    set_tree_fonts();
}

std::string font_name() { return defaults_get_string("orvik.fontName", "Orvik.FontName", "fixed"); }

void apply_font_resources() {
    const std::string size = defaults_get_string("orvik.fontSize", "Orvik.FontSize", "notset");
    for (const NamedScale& named : scales) {
        if (size.find(named.name) != std::string::npos) {
            fixed_font = xv_find({.family = FontFamily::fixed_width, .scale = named.scale});
        }
    }
    // The name decides the panes' font, whatever the size resource says.
    default_font = xv_find(font_name());
    set_pane_fonts(default_font);
    about_window().text.set_font(fixed_font);
    for (ScrollingList* list : {&command_history_manager().list, &file_list_browser().list}) {
        list->set_font(fixed_font);
    }
    command_list_manager().list.set_font(default_font);  // commands look as in the terminal
}
