// SPDX-License-Identifier: MIT
#include "toolkit/scrolling_list.h"

#include "toolkit/text_conversion.h"
#include "toolkit/text_size.h"

#include <QBoxLayout>
#include <QListView>
#include <QScrollBar>
#include <QStringListModel>

ScrollingList::ScrollingList(Container& parent, std::string_view accessible_name) {
    auto* room = new QWidget(parent.widget());
    auto* layout = new QHBoxLayout(room);
    layout->setContentsMargins(0, 0, 0, 0);
    widget_ = new QListView(room);
    widget_->setAccessibleName(to_qstring(accessible_name));
    widget_->setUniformItemSizes(true);
    widget_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    widget_->setModel(new QStringListModel(widget_));
    layout->addWidget(widget_);
    room->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    parent.add({}, room, Place::line);
}

void ScrollingList::set_font(const Font& font) {
    widget_->setFont(font.qt());
    set_display_size(columns_, rows_);
}

void ScrollingList::set_display_size(int columns, int rows) {
    columns_ = columns;
    rows_ = rows;
    widget_->setMinimumSize(text_size(*widget_, columns, rows));
}

void ScrollingList::set_margin(int pixels) {
    widget_->parentWidget()->layout()->setContentsMargins(0, 0, pixels, 0);
}

void ScrollingList::clear_selection() { widget_->clearSelection(); }
