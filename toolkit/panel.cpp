// SPDX-License-Identifier: MIT
#include "toolkit/panel.h"

#include "toolkit/text_conversion.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr int spacing = 6;
constexpr int margin = 10;

QLabel* make_label(std::string_view text, QWidget* control, QWidget* parent) {
    auto* label = new QLabel(without_mnemonic(text), parent);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(control);
    label->stackUnder(control);  // assistive programs read it first
    return label;
}

}  // namespace

Panel::Panel(Container& parent) : widget_(new QWidget(parent.widget())), layout_(new QGridLayout(widget_)) {
    layout_->setContentsMargins(margin, margin, margin, margin);
    layout_->setHorizontalSpacing(spacing + 2);
    layout_->setVerticalSpacing(spacing);
    layout_->setColumnStretch(1, 1);
    widget_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    parent.add({}, widget_);
}

void Panel::add(std::string_view label, QWidget* control) {
    const int row = layout_->rowCount();
    if ((control->sizePolicy().verticalPolicy() & QSizePolicy::ExpandFlag) != 0) {
        widget_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    }
    if (label.empty()) {
        layout_->addWidget(control, row, 0, 1, 2);
        return;
    }
    layout_->addWidget(make_label(label, control, widget_), row, 0, Qt::AlignRight | Qt::AlignVCenter);
    const bool fixed_width = control->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
    layout_->addWidget(control, row, 1, fixed_width ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment());
}

Row::Row(Container& parent, std::string_view label)
    : widget_(new QWidget(parent.widget())), layout_(new QHBoxLayout(widget_)) {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(spacing);
    parent.add(label, widget_);
}

void Row::add(std::string_view label, QWidget* control) {
    if (!label.empty()) {
        layout_->addWidget(make_label(label, control, widget_));
    }
    layout_->addWidget(control);
}

void Row::add_stretch() { layout_->addStretch(1); }
