// SPDX-License-Identifier: MIT
#include "toolkit/choices.h"

#include "toolkit/accessible_role.h"
#include "toolkit/text_conversion.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QWidget>

namespace {

enum class Exclusive : bool { no, yes };

template <typename Item>
QButtonGroup* make_items(Container& parent, std::string_view label,
                         std::initializer_list<std::string_view> items, Exclusive exclusive, Notify notify) {
    auto* group = new QWidget(parent.widget());
    set_accessible_role(*group, QAccessible::Grouping);
    group->setAccessibleName(to_qstring(label));
    auto* layout = new QHBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(14);
    auto* buttons = new QButtonGroup(group);
    buttons->setExclusive(exclusive == Exclusive::yes);
    for (const std::string_view item : items) {
        auto* button = new Item(without_mnemonic(item), group);
        button->setAccessibleName(to_qstring(item));
        buttons->addButton(button, static_cast<int>(buttons->buttons().size()));
        layout->addWidget(button);
    }
    layout->addStretch(1);
    parent.add(label, group);
    if (notify != nullptr) {
        // Not only clicks: assistive programs toggle. Of two toggles in an exclusive group the one that
        // checks counts.
        QObject::connect(buttons, &QButtonGroup::idToggled, group,
                         [notify, exclusive](int /*id*/, bool checked) {
                             if (checked || exclusive == Exclusive::no) {
                                 notify();
                             }
                         });
    }
    return buttons;
}

}  // namespace

Choice::Choice(Container& parent, std::string_view label, std::initializer_list<std::string_view> items,
               Notify notify)
    : buttons_(make_items<QRadioButton>(parent, label, items, Exclusive::yes, notify)) {
    set_value(0);
}

int Choice::value() const { return buttons_->checkedId(); }

void Choice::set_value(int value) {
    const QSignalBlocker quiet(buttons_);
    if (QAbstractButton* button = buttons_->button(value)) {
        button->setChecked(true);
    }
}

CheckBoxes::CheckBoxes(Container& parent, std::string_view label,
                       std::initializer_list<std::string_view> items, Notify notify)
    : buttons_(make_items<QCheckBox>(parent, label, items, Exclusive::no, notify)) {}

unsigned CheckBoxes::value() const {
    unsigned bits = 0;
    for (QAbstractButton* button : buttons_->buttons()) {
        bits |= static_cast<unsigned>(button->isChecked()) << static_cast<unsigned>(buttons_->id(button));
    }
    return bits;
}

void CheckBoxes::set_value(unsigned value) {
    const QSignalBlocker quiet(buttons_);
    for (QAbstractButton* button : buttons_->buttons()) {
        button->setChecked(((value >> static_cast<unsigned>(buttons_->id(button))) & 1U) != 0);
    }
}
