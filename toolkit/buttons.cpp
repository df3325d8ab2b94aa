// SPDX-License-Identifier: MIT
#include "toolkit/buttons.h"

#include "toolkit/text_conversion.h"

#include <QMenu>
#include <QPushButton>

namespace {

QPushButton* make_button(Container& parent, std::string_view label) {
    auto* button = new QPushButton(without_mnemonic(label), parent.widget());
    button->setAccessibleName(to_qstring(label));
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    button->setAutoDefault(false);
    parent.add({}, button);
    return button;
}

}  // namespace

Button::Button(Container& parent, std::string_view label, Notify notify)
    : widget_(make_button(parent, label)) {
    QObject::connect(widget_, &QPushButton::clicked, widget_, [notify] { notify(); });
}

MenuButton::MenuButton(Container& parent, std::string_view label, Menu menu)
    : widget_(make_button(parent, label)), menu_(std::move(menu)) {
    widget_->setMenu(menu_.widget());
}
