// SPDX-License-Identifier: MIT
#include "toolkit/footer.h"

#include "toolkit/text_conversion.h"

#include <string>
#include <vector>

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

void Footer::explain(const QString& explanation) {
    explanation_ = explanation;
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
    std::vector<std::string> lines;
    for (const QString& line : {fitting == shown ? QString() : full_text_, explanation_}) {
        if (!line.isEmpty()) {
            lines.push_back(from_qstring(line));
        }
    }
    setToolTip(plain_tool_tip(lines));
}
