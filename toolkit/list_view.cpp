// SPDX-License-Identifier: MIT
#include "toolkit/list_view.h"

#include "toolkit/answer.h"
#include "toolkit/button_picture.h"
#include "toolkit/list_columns.h"
#include "toolkit/return_key.h"
#include "toolkit/text_conversion.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>
#include <iterator>

namespace {

/// In the order of `Glyph`, but for none.
constexpr std::array<std::string_view, 6> pictures{"arrow",          "directory",     "document",
                                                   "directory_link", "document_link", "executable"};

Qt::Key key_of(ListKey::Key key) {
    switch (key) {
        case ListKey::Key::backspace:
            return Qt::Key_Backspace;
        case ListKey::Key::remove:
            return Qt::Key_Delete;
        case ListKey::Key::f2:
            return Qt::Key_F2;
        default:
            return Qt::Key_F5;
    }
}

}  // namespace

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
        std::ranges::transform(pictures, pictures_.begin(), button_picture);
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

void ListView::set_context_menu(QMenu& menu) {
    context_menu_ = &menu;
    menu.setParent(this, menu.windowFlags());
}

void ListView::contextMenuEvent(QContextMenuEvent* event) {
    if (context_menu_ == nullptr) {
        QListView::contextMenuEvent(event);
        return;
    }
    const bool by_mouse = event->reason() == QContextMenuEvent::Mouse;
    const QModelIndex index = by_mouse ? indexAt(event->pos()) : currentIndex();
    if (index.isValid()) {
        if (!selectionModel()->isSelected(index)) {
            selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        }
        tell({.kind = ListEvent::Kind::select, .row = index.row()});
    }
    const QPoint below = viewport()->mapToGlobal(visualRect(index).bottomLeft());
    context_menu_->popup(by_mouse ? event->globalPos() : below);
}

void ListView::set_columns(std::vector<ListColumn> columns) {
    QAbstractItemDelegate* old = itemDelegate();
    setItemDelegate(new ListColumns(std::move(columns), this));
    delete old;
}

ListPlace ListView::place() const { return {verticalScrollBar()->value(), currentIndex().row()}; }

void ListView::return_to(const ListPlace& place) {
    const int row = std::min(place.current, model()->rowCount() - 1);
    selectionModel()->setCurrentIndex(model()->index(row, 0), QItemSelectionModel::NoUpdate);
    doItemsLayout();
    verticalScrollBar()->setValue(place.scrolled);
}

void ListView::keyPressEvent(QKeyEvent* event) {
    const QModelIndex before = currentIndex();
    for (const ListKey& key : keys_) {
        if (event->key() == key_of(key.key) && (event->modifiers() & ~Qt::KeypadModifier) == 0) {
            notify_from(this, key.notify);
            return;
        }
    }
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
