// SPDX-License-Identifier: MIT
#include "toolkit/choices.h"

#include "toolkit/accessible_role.h"
#include "toolkit/answer.h"
#include "toolkit/text_conversion.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QRadioButton>
#include <QWidget>

namespace {

constexpr int most_items_on_a_line = 5;

enum class Exclusive : bool { no, yes };

template <typename Item>
QButtonGroup* make_items(Container& parent, Label label, std::initializer_list<std::string_view> items,
                         Exclusive exclusive, Notify notify) {
    auto* group = new QWidget(parent.widget());
    set_accessible_role(*group, QAccessible::Grouping);
    group->setAccessibleName(to_qstring(label.accessible_name));
    auto* layout = new QGridLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(14);
    layout->setVerticalSpacing(4);
    auto* buttons = new QButtonGroup(group);
    buttons->setExclusive(exclusive == Exclusive::yes);
    const int count = static_cast<int>(items.size());
    const int columns = count > most_items_on_a_line ? (count + 1) / 2 : count;
    int index = 0;
    for (const std::string_view item : items) {
        auto* button = new Item(without_mnemonic(item), group);
        button->setAccessibleName(to_qstring(item));
        buttons->addButton(button, index);
        layout->addWidget(button, index / columns, index % columns);
        ++index;
    }
    layout->setColumnStretch(columns, 1);
    parent.add(label.text, group, Place::line);
    if (notify) {
        // Not only clicks: assistive programs toggle. Of two toggles in an exclusive group the one that
        // checks counts.
        QObject::connect(buttons, &QButtonGroup::idToggled, group,
                         [group, notify, exclusive](int /*id*/, bool checked) {
                             if (checked || exclusive == Exclusive::no) {
                                 notify_from(group, notify);
                             }
                         });
    }
    return buttons;
}

}  // namespace

Choice::Choice(Container& parent, Label label, std::initializer_list<std::string_view> items, Notify notify)
    : buttons_(make_items<QRadioButton>(parent, label, items, Exclusive::yes, notify)) {
    set_value(0);
}

int Choice::value() const { return buttons_->checkedId(); }

void Choice::set_value(int value) {
    const QSignalBlocker quiet(buttons_);
    QAbstractButton* button = buttons_->button(value);
    (button != nullptr ? button : buttons_->button(0))->setChecked(true);
}

CheckBoxes::CheckBoxes(Container& parent, Label label, std::initializer_list<std::string_view> items,
                       Notify notify)
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

CheckBox::CheckBox(Container& parent, Label label)
    : widget_(new QCheckBox(without_mnemonic(label.text), parent.widget())) {
    widget_->setAccessibleName(to_qstring(label.accessible_name));
    parent.add({}, widget_, Place::field);
}

bool CheckBox::value() const { return widget_->isChecked(); }

void CheckBox::set_value(bool value) { widget_->setChecked(value); }
