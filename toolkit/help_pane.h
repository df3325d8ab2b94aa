// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/panel.h"

#include <string>
#include <string_view>

class HelpPaneWidget;

/// Pages of help text with headings, pictures and links to each other, and a line to search them.
class HelpPane {
  public:
    HelpPane(Container& parent, std::string_view accessible_name);
    /// Shows a page (HTML, the subset that QTextDocument draws), ready to be scrolled by keys; false, and
    /// nothing changes, when it cannot be read.
    [[nodiscard]] bool show_page(std::string_view path);
    /// Asks for room for so many characters and lines.
    void set_display_size(int columns, int lines);

  private:
    HelpPaneWidget* widget_;
};
