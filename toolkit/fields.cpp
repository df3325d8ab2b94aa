// SPDX-License-Identifier: MIT
#include "toolkit/fields.h"

#include "toolkit/text_conversion.h"

#include <QLineEdit>
#include <QSpinBox>

#include <limits>

TextField::TextField(Container& parent, std::string_view label, Notify notify)
    : widget_(new QLineEdit(parent.widget())) {
    widget_->setAccessibleName(to_qstring(label));
    parent.add(label, widget_);
    if (notify != nullptr) {
        QObject::connect(widget_, &QLineEdit::returnPressed, widget_, notify);
    }
}

std::string TextField::text() const { return from_qstring(widget_->text()); }

void TextField::set_text(std::string_view text) {
    const QString wanted = to_qstring(text);
    if (wanted != widget_->text()) {
        widget_->setText(wanted);
    }
}

void TextField::show_beginning() { widget_->setCursorPosition(0); }

void TextField::set_display_length(int characters) {
    widget_->setMinimumWidth(widget_->fontMetrics().averageCharWidth() * characters);
}

NumberField::NumberField(Container& parent, std::string_view label, int initial, Notify notify)
    : widget_(new QSpinBox(parent.widget())) {
    widget_->setAccessibleName(to_qstring(label));
    widget_->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    widget_->setValue(initial);
    const int room =
        widget_->fontMetrics().horizontalAdvance(QStringLiteral("00000000")) + widget_->sizeHint().height();
    widget_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    widget_->setMinimumWidth(room);
    widget_->setMaximumWidth(room);
    parent.add(label, widget_);
    if (notify != nullptr) {
        QObject::connect(widget_, &QSpinBox::editingFinished, widget_, notify);
    }
}

int NumberField::value() const { return widget_->value(); }

void NumberField::set_value(int value) { widget_->setValue(value); }
