// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/text.h"

#include <QWidget>

#include <string>

class QCheckBox;
class QLabel;
class QLineEdit;
class TerminalView;

/// A bar under the terminal that searches its screen and scrollback. Hidden until it is opened. It begins
/// with the latest match; Return goes to older ones, with Shift to newer ones.
class TerminalFindBar final : public QWidget {
  public:
    TerminalFindBar(TerminalView& view, QWidget* parent);
    /// Shows the bar and gives it the focus.
    void open();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void close_bar();
    void search_as_typed();
    void go(terminal::SearchDirection direction);
    /// `from_other_end`: what was said with the match, where the search has gone round an end.
    void show_result(const QString& from_other_end = {});
    [[nodiscard]] std::optional<terminal::Range> find_from(terminal::Position from,
                                                           terminal::SearchDirection direction) const;
    /// "3 of 13": which match there is, counted from the oldest line on.
    [[nodiscard]] QString result_text() const;
    [[nodiscard]] terminal::LetterCase letter_case() const;
    [[nodiscard]] std::string needle() const;

    TerminalView& view_;
    QLineEdit* field_;
    QCheckBox* match_case_;
    QLabel* result_;
};
