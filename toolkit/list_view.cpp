// SPDX-License-Identifier: MIT
#include "toolkit/list_view.h"

#include "toolkit/answer.h"
#include "toolkit/button_picture.h"
#include "toolkit/return_key.h"
#include "toolkit/text_conversion.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <iterator>

constexpr int glyph_size = 16;  // pixels

void ListModel::append(std::vector<std::string> rows) {
    if (rows.empty()) {
        return;
    }
    const int first = static_cast<int>(rows_.size());
    beginInsertRows({}, first, first + static_cast<int>(rows.size()) - 1);
    rows_.insert(rows_.end(), std::make_move_iterator(rows.begin()), std::make_move_iterator(rows.end()));
    endInsertRows();
}

void ListModel::replace(std::vector<std::string> rows, std::vector<Glyph> glyphs) {
    beginResetModel();
    rows_ = std::move(rows);
    glyphs_ = std::move(glyphs);
    if (!glyphs_.empty() && pictures_[0].isNull()) {
        pictures_ = {button_picture("arrow"), button_picture("directory"), button_picture("document")};
    }
    endResetModel();
}

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    switch (role) {
        case Qt::DisplayRole:
        case Qt::AccessibleTextRole:
            return visible_text(rows_[row]);
        case Qt::DecorationRole: {
            const Glyph glyph = row < glyphs_.size() ? glyphs_[row] : Glyph::none;
            return glyph == Glyph::none ? QVariant() : pictures_[static_cast<std::size_t>(glyph) - 1];
        }
        default:
            return {};
    }
}

ListView::ListView(ListModel& model, ListNotify notify, QWidget* parent)
    : QListView(parent), notify_(notify) {
    setModel(&model);
    setUniformItemSizes(true);
    setIconSize({glyph_size, glyph_size});
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

void ListView::tell(const ListEvent& event) const { notify_from<const ListEvent&>(this, notify_, event); }
