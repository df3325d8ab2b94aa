// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/panel.h"

#include <string_view>

class Footer;
class QLabel;

/// A line of text that the user only reads. Assistive programs find it under its label as description; its
/// name is the text shown.
class MessageItem {
  public:
    MessageItem(Container& parent, std::string_view label, std::string_view text);
    void set_text(std::string_view text);

  private:
    QLabel* widget_;
};

/// A line of text in a row of controls: shortened with an ellipsis where it does not fit, whole in its tool
/// tip and as its accessible name.
class ShortenedText {
  public:
    /// Assistive programs find the line under its label as description.
    ShortenedText(Row& row, std::string_view label);
    void set_text(std::string_view text);

  private:
    Footer* widget_;
};

/// A message line that stands over other controls and names them.
class Heading {
  public:
    Heading(Container& parent, std::string_view label);
};
