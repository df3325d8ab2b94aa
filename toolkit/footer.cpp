// SPDX-License-Identifier: MIT
#include "toolkit/footer.h"

#include "toolkit/text_conversion.h"

Footer::Footer(const QString& accessible_description, Qt::Alignment alignment, QWidget* parent)
    : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setAccessibleDescription(accessible_description);
    setAlignment(alignment | Qt::AlignVCenter);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
}

void Footer::set_full_text(const QString& text) {
    if (text == full_text_) {
        return;
    }
    full_text_ = text;
    setAccessibleName(text);
    updateGeometry();
    show_fitting_part();
}

QSize Footer::sizeHint() const {
    return {fontMetrics().horizontalAdvance(full_text_) + 2, fontMetrics().height()};
}

QSize Footer::minimumSizeHint() const { return {0, fontMetrics().height()}; }

void Footer::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    show_fitting_part();
}

void Footer::show_fitting_part() {
    const QString shown = visible_text(from_qstring(full_text_));
    const QString fitting = fontMetrics().elidedText(shown, Qt::ElideRight, width());
    setText(fitting);
    setToolTip(fitting == shown ? QString() : plain_tool_tip(from_qstring(full_text_)));
}
