// SPDX-License-Identifier: MIT
#include "toolkit/buttons.h"

#include "toolkit/text_conversion.h"

#include <QPushButton>

Button::Button(Container& parent, std::string_view label, Notify notify)
    : widget_(new QPushButton(without_mnemonic(label), parent.widget())) {
    widget_->setAccessibleName(to_qstring(label));
    widget_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    widget_->setAutoDefault(false);
    parent.add({}, widget_);
    QObject::connect(widget_, &QPushButton::clicked, widget_, [notify] { notify(); });
}
