// SPDX-License-Identifier: MIT
#include "toolkit/choices.h"

#include "toolkit/accessible_role.h"
#include "toolkit/answer.h"
#include "toolkit/text_conversion.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace {

constexpr int most_items_on_a_line = 5;

constexpr int item_spacing = 14;

enum class Exclusive : bool { no, yes };

QFont heading_font(QFont font) {
    font.setBold(true);
    return font;
}

/// Columns wide enough for each item as a heading: boxes and headings of the same items line up.
class HeadedColumns {
  public:
    explicit HeadedColumns(const QWidget& widget) : metrics_(heading_font(widget.font())) {}
    void make_room(std::string_view item) {
        width_ = std::max(width_, metrics_.horizontalAdvance(to_qstring(item)));
    }
    void apply(QGridLayout& layout, int columns) const {
        for (int column = 0; column < columns; ++column) {
            layout.setColumnMinimumWidth(column, width_);
        }
    }

  private:
    QFontMetrics metrics_;
    int width_ = 0;
};

QGridLayout* make_grid(QWidget* group) {
    auto* layout = new QGridLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(item_spacing);
    layout->setVerticalSpacing(4);
    return layout;
}

template <typename Item>
QButtonGroup* make_items(Container& parent, Label label, std::initializer_list<std::string_view> items,
                         Exclusive exclusive, Notify notify, ItemLabels labels = ItemLabels::beside) {
    auto* group = new QWidget(parent.widget());
    set_accessible_role(*group, QAccessible::Grouping);
    group->setAccessibleName(to_qstring(label.accessible_name));
    auto* layout = make_grid(group);
    auto* buttons = new QButtonGroup(group);
    buttons->setExclusive(exclusive == Exclusive::yes);
    const int count = static_cast<int>(items.size());
    const int columns = count > most_items_on_a_line ? (count + 1) / 2 : count;
    HeadedColumns headed(*group);
    int index = 0;
    for (const std::string_view item : items) {
        headed.make_room(item);
        auto* button = new Item(labels == ItemLabels::beside ? without_mnemonic(item) : QString(), group);
        button->setAccessibleName(to_qstring(item));
        buttons->addButton(button, index);
        layout->addWidget(button, index / columns, index % columns);
        ++index;
    }
    layout->setColumnStretch(columns, 1);
    if (labels == ItemLabels::above) {
        headed.apply(*layout, columns);
    }
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

/// Tab stops at the item that is chosen, from the beginning; Qt sees to it only when a group has had the
/// focus.
void let_tab_stop_at_chosen(const QButtonGroup& buttons) {
    for (QAbstractButton* button : buttons.buttons()) {
        button->setFocusPolicy(Qt::ClickFocus);
        QObject::connect(button, &QAbstractButton::toggled, button, [button](bool chosen) {
            button->setFocusPolicy(chosen ? Qt::StrongFocus : Qt::ClickFocus);
        });
    }
}

void call_after_change(const QButtonGroup& buttons, std::function<void()> action) {
    QObject::connect(&buttons, &QButtonGroup::idToggled, &buttons,
                     [action = std::move(action)] { action(); });
}

}  // namespace

Choice::Choice(Container& parent, Label label, std::initializer_list<std::string_view> items, Notify notify)
    : buttons_(make_items<QRadioButton>(parent, label, items, Exclusive::yes, notify)) {
    let_tab_stop_at_chosen(*buttons_);
    set_value(0);
}

int Choice::value() const { return buttons_->checkedId(); }

void Choice::set_value(int value) {
    const QSignalBlocker quiet(buttons_);
    QAbstractButton* button = buttons_->button(value);
    (button != nullptr ? button : buttons_->button(0))->setChecked(true);
}

void Choice::set_tool_tip(std::string_view text) {
    for (QAbstractButton* button : buttons_->buttons()) {
        button->setToolTip(plain_tool_tip(text));
        button->setAccessibleDescription(visible_text(text));
    }
}

QWidget* Choice::widget() const { return static_cast<QWidget*>(buttons_->parent()); }

void Choice::on_change(std::function<void()> action) { call_after_change(*buttons_, std::move(action)); }

CheckBoxes::CheckBoxes(Container& parent, Label label, std::initializer_list<std::string_view> items,
                       Notify notify)
    : buttons_(make_items<QCheckBox>(parent, label, items, Exclusive::no, notify)) {}

CheckBoxes::CheckBoxes(Container& parent, Label label, std::initializer_list<std::string_view> items,
                       ItemLabels labels)
    : buttons_(make_items<QCheckBox>(parent, label, items, Exclusive::no, nullptr, labels)) {}

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

QWidget* CheckBoxes::widget() const { return static_cast<QWidget*>(buttons_->parent()); }

void CheckBoxes::on_change(std::function<void()> action) { call_after_change(*buttons_, std::move(action)); }

ColumnHeadings::ColumnHeadings(Container& parent, std::initializer_list<Heading> headings) {
    auto* line = new QWidget(parent.widget());
    auto* layout = make_grid(line);
    HeadedColumns headed(*line);
    for (const Heading& heading : headings) {
        headed.make_room(heading.text);
        auto* label = new QLabel(to_qstring(heading.text), line);
        label->setFont(heading_font(label->font()));
        layout->addWidget(label, 0, heading.column);
    }
    const int columns = static_cast<int>(headings.size());
    headed.apply(*layout, columns);
    layout->setColumnStretch(columns, 1);
    parent.add({}, line, Place::field);
}

CheckBox::CheckBox(Container& parent, Label label)
    : widget_(new QCheckBox(without_mnemonic(label.text), parent.widget())) {
    widget_->setAccessibleName(to_qstring(label.accessible_name));
    parent.add({}, widget_, Place::field);
}

bool CheckBox::value() const { return widget_->isChecked(); }

void CheckBox::set_value(bool value) { widget_->setChecked(value); }

void CheckBox::on_change(std::function<void()> action) {
    QObject::connect(widget_, &QCheckBox::toggled, widget_, [action = std::move(action)] { action(); });
}

QWidget* CheckBox::widget() const { return widget_; }
