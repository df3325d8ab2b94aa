// SPDX-License-Identifier: MIT
#include "toolkit/buttons.h"

#include "toolkit/text_conversion.h"

#include <QPushButton>

Button::Button(Container& parent, Label label, Notify notify)
    : widget_(new QPushButton(without_mnemonic(label.text), parent.widget())) {
    widget_->setAccessibleName(to_qstring(label.accessible_name));
    widget_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    widget_->setAutoDefault(false);
    parent.add({}, widget_, Place::line);
    QObject::connect(widget_, &QPushButton::clicked, widget_, [notify] { notify(); });
}

void Button::set_default() { widget_->setDefault(true); }
