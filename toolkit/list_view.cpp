// SPDX-License-Identifier: MIT
#include "toolkit/list_view.h"

#include "toolkit/return_key.h"
#include "toolkit/text_conversion.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <iterator>

void ListModel::append(std::vector<std::string> rows) {
    if (rows.empty()) {
        return;
    }
    const int first = static_cast<int>(rows_.size());
    beginInsertRows({}, first, first + static_cast<int>(rows.size()) - 1);
    rows_.insert(rows_.end(), std::make_move_iterator(rows.begin()), std::make_move_iterator(rows.end()));
    endInsertRows();
}

void ListModel::replace(std::vector<std::string> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    const bool is_text = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
    return is_text ? visible_text(rows_[static_cast<std::size_t>(index.row())]) : QVariant();
}

ListView::ListView(ListModel& model, ListNotify notify, QWidget* parent)
    : QListView(parent), notify_(notify) {
    setModel(&model);
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
}

void ListView::mousePressEvent(QMouseEvent* event) {
    QListView::mousePressEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !index.isValid()) {
        return;
    }
    timeval now{};
    gettimeofday(&now, nullptr);
    tell({.kind = ListEvent::Kind::press,
          .row = index.row(),
          .x = event->position().toPoint().x(),
          .y = event->position().toPoint().y(),
          .time = now});
}

/// Qt gives the second press of a double click this name; here every press is told.
void ListView::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void ListView::keyPressEvent(QKeyEvent* event) {
    const QModelIndex before = currentIndex();
    if (before.isValid() && is_return(*event)) {
        tell({.kind = ListEvent::Kind::activate, .row = before.row()});
        return;
    }
    QListView::keyPressEvent(event);
    if (currentIndex().isValid() && currentIndex() != before) {
        tell({.kind = ListEvent::Kind::select, .row = currentIndex().row()});
    }
}

void ListView::tell(const ListEvent& event) const {
    if (notify_ != nullptr) {
        notify_(event);
    }
}
