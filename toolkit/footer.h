// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// One half of a window's footer line: text that is shortened with an ellipsis where it does not fit, and is
/// whole in its accessible name and, when shortened, in its tool tip.
class Footer : public QLabel {
  public:
    Footer(const QString& accessible_description, Qt::Alignment alignment, QWidget* parent);
    void set_full_text(const QString& text);
    /// More to say on the text, in the tool tip.
    void explain(const QString& explanation);
    [[nodiscard]] const QString& full_text() const { return full_text_; }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void show_fitting_part();
    QString full_text_;
    QString explanation_;
};
