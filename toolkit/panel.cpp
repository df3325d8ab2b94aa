// SPDX-License-Identifier: MIT
#include "toolkit/panel.h"

#include "toolkit/text_conversion.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include <algorithm>

namespace {

constexpr int spacing = 6;
constexpr int column_spacing = 8;
constexpr int group_spacing = 10;
constexpr int margin = 10;

QLabel* make_label(std::string_view text, QWidget* control, QWidget* parent) {
    auto* label = new QLabel(without_mnemonic(text), parent);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(control);
    label->stackUnder(control);  // assistive programs read it first
    return label;
}

bool wants_height(const QWidget* widget) {
    return (widget->sizePolicy().verticalPolicy() & QSizePolicy::ExpandFlag) != 0;
}

/// A panel's widget is as high as its controls are, and takes height that is left only if one of them does.
void follow_height(QWidget* panel, const QWidget* control) {
    if (wants_height(control)) {
        panel->setSizePolicy(panel->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    }
}

}  // namespace

Panel::Panel(Container& parent, int fields_per_line)
    : widget_(new QWidget(parent.widget())),
      layout_(new QGridLayout(widget_)),
      fields_per_line_(fields_per_line) {
    const int own_margin = parent.widget()->isWindow() ? margin : 0;  // a panel in a panel has its margins
    layout_->setContentsMargins(own_margin, own_margin, own_margin, own_margin);
    layout_->setHorizontalSpacing(column_spacing);
    layout_->setVerticalSpacing(spacing);
    for (int field = 0; field < fields_per_line; ++field) {
        layout_->setColumnStretch(2 * field + 1, 1);
    }
    widget_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    parent.add({}, widget_, Place::line);
}

void Panel::add(std::string_view label, QWidget* control, Place place) {
    follow_height(widget_, control);
    const bool next_field = place == Place::field && !label.empty() && field_ < fields_per_line_;
    if (!next_field && field_ > 0) {
        field_ = 0;
        ++line_;
    }
    const int columns = 2 * fields_per_line_;
    if (label.empty()) {
        const int column = place == Place::field ? 1 : 0;
        layout_->addWidget(control, line_++, column, 1, columns - column);
        return;
    }
    const int column = 2 * field_;
    layout_->addWidget(make_label(label, control, widget_), line_, column, Qt::AlignRight | Qt::AlignVCenter);
    const bool fixed_width = control->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
    const int span = place == Place::field ? 1 : columns - 1;
    layout_->addWidget(control, line_, column + 1, 1, span,
                       fixed_width ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment());
    field_ = place == Place::field ? field_ + 1 : fields_per_line_;
}

Row::Row(Container& parent, Place place) : Row(parent, {}, place) {}

Row::Row(Container& parent, std::string_view label) : Row(parent, label, Place::line) {}

Row::Row(Container& parent, std::string_view label, Place place)
    : widget_(new QWidget(parent.widget())), layout_(new QHBoxLayout(widget_)) {
    if (parent.widget()->isWindow()) {
        layout_->setContentsMargins(margin, 0, margin, 0);
        widget_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    } else {
        layout_->setContentsMargins(0, 0, 0, 0);
    }
    layout_->setSpacing(spacing);
    parent.add(label, widget_, place);
}

int Row::wanted_height() const {
    int height = 0;
    for (const QWidget* control : widget_->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        height = std::max(height, control->sizeHint().height());
    }
    return height;
}

void Row::set_height(int pixels) {
    widget_->setFixedHeight(pixels);
    for (QWidget* control : widget_->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        control->setVisible(control->sizeHint().height() <= pixels);
    }
}

void Row::set_shown(bool shown) { widget_->setVisible(shown); }

bool Row::is_shown() const { return !widget_->isHidden(); }

void Row::add(std::string_view label, QWidget* control, Place /*place*/) {
    if (!label.empty()) {
        if (layout_->count() > 0) {
            layout_->addSpacing(group_spacing);
        }
        layout_->addWidget(make_label(label, control, widget_));
    }
    layout_->addWidget(control);
    follow_height(widget_, control);
}

ControlGrid::ControlGrid(Container& parent, int columns)
    : widget_(new QWidget(parent.widget())), layout_(new QGridLayout(widget_)), columns_(columns) {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(spacing);
    layout_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    widget_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    parent.add({}, widget_, Place::line);
}

void ControlGrid::add(std::string_view /*label*/, QWidget* control, Place /*place*/) {
    layout_->addWidget(control, line_, column_);
    if (++column_ == columns_) {
        column_ = 0;
        ++line_;
    }
}

void ControlGrid::begin_group() {
    line_ += column_ == 0 ? 0 : 1;
    column_ = 0;
    layout_->setRowMinimumHeight(line_++, group_spacing);
}

Stretch::Stretch(Row& row) { row.layout_->addStretch(1); }
