// SPDX-License-Identifier: MIT
#include "toolkit/message_item.h"

#include "toolkit/footer.h"
#include "toolkit/text_conversion.h"

#include <QLabel>

namespace {

QLabel* make_line(Container& parent, std::string_view label, Place place) {
    auto* line = new QLabel(parent.widget());
    line->setTextFormat(Qt::PlainText);
    line->setAccessibleDescription(to_qstring(label));
    line->setTextInteractionFlags(Qt::TextSelectableByMouse);
    parent.add({}, line, place);
    return line;
}

}  // namespace

MessageItem::MessageItem(Container& parent, std::string_view label, std::string_view text)
    : widget_(make_line(parent, label, Place::line)) {
    set_text(text);
}

void MessageItem::set_text(std::string_view text) {
    widget_->setText(visible_text(text));
    widget_->setAccessibleName(to_qstring(text));
}

ShortenedText::ShortenedText(Row& row, std::string_view label)
    : widget_(new Footer(to_qstring(label), Qt::AlignLeft, row.widget())) {
    widget_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    row.add({}, widget_, Place::line);
}

void ShortenedText::set_text(std::string_view text) { widget_->set_full_text(to_qstring(text)); }

Heading::Heading(Container& parent, std::string_view label) {
    QLabel* line = make_line(parent, label, Place::field);
    line->setText(visible_text(label));
    QFont bold = line->font();
    bold.setBold(true);
    line->setFont(bold);
}
