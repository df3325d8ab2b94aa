// SPDX-License-Identifier: MIT
#include "toolkit/scrolling_list.h"

#include "toolkit/list_view.h"
#include "toolkit/text_conversion.h"
#include "toolkit/text_size.h"

#include <QBoxLayout>

#include <algorithm>
#include <unordered_set>

ScrollingList::ScrollingList(Container& parent, std::string_view accessible_name, ListNotify notify) {
    auto* room = new QWidget(parent.widget());
    auto* layout = new QHBoxLayout(room);
    layout->setContentsMargins(0, 0, 0, 0);
    model_ = new ListModel(room);
    widget_ = new ListView(*model_, notify, room);
    widget_->setAccessibleName(to_qstring(accessible_name));
    layout->addWidget(widget_);
    room->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    parent.add({}, room, Place::line);
}

int ScrollingList::rows() const { return static_cast<int>(model_->rows().size()); }

const std::string& ScrollingList::row(int index) const {
    return model_->rows()[static_cast<std::size_t>(index)];
}

const std::vector<std::string>& ScrollingList::all_rows() const { return model_->rows(); }

void ScrollingList::set_insert_duplicates(Duplicates duplicates) { duplicates_ = duplicates; }

void ScrollingList::append(std::string row) {
    const auto& rows = model_->rows();
    if (duplicates_ == Duplicates::allowed || std::find(rows.begin(), rows.end(), row) == rows.end()) {
        model_->append({std::move(row)});
    }
}

void ScrollingList::append(std::vector<std::string> rows) {
    if (duplicates_ == Duplicates::refused) {
        std::unordered_set<std::string> known(model_->rows().begin(), model_->rows().end());
        std::erase_if(rows, [&](const std::string& row) { return !known.insert(row).second; });
    }
    model_->append(std::move(rows));
}

void ScrollingList::set_rows(std::vector<std::string> rows) { model_->replace(std::move(rows), {}); }

void ScrollingList::set_rows(std::vector<ListRow> rows, View view) {
    std::vector<std::string> texts;
    std::vector<Glyph> glyphs;
    texts.reserve(rows.size());
    glyphs.reserve(rows.size());
    for (ListRow& row : rows) {
        texts.push_back(std::move(row.text));
        glyphs.push_back(row.glyph);
    }
    const ListPlace place = widget_->place();
    model_->replace(std::move(texts), std::move(glyphs));
    if (view == View::kept) {
        widget_->return_to(place);
    }
}

void ScrollingList::delete_rows() { model_->replace({}, {}); }

std::optional<int> ScrollingList::selected() const {
    const std::vector<int> rows = selected_rows();
    return rows.empty() ? std::nullopt : std::optional(rows.front());
}

std::vector<int> ScrollingList::selected_rows() const {
    std::vector<int> rows;
    for (const QModelIndex& index : widget_->selectionModel()->selectedIndexes()) {
        rows.push_back(index.row());
    }
    std::ranges::sort(rows);
    return rows;
}

void ScrollingList::select(int row) {
    if (const QModelIndex index = model_->index(row); index.isValid()) {
        widget_->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        widget_->scrollTo(index);
    }
}

void ScrollingList::clear_selection() { widget_->clearSelection(); }

void ScrollingList::go_to(int row) {
    if (const QModelIndex index = model_->index(row); index.isValid()) {
        widget_->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        widget_->scrollTo(index);
    }
}

void ScrollingList::set_selectable(Selectable selectable) {
    const std::optional<int> first = selected();
    widget_->setSelectionMode(selectable == Selectable::several ? QAbstractItemView::ExtendedSelection
                                                                : QAbstractItemView::SingleSelection);
    if (first && selectable == Selectable::one) {
        select(*first);
    }
}

void ScrollingList::set_keys(std::initializer_list<ListKey> keys) { widget_->set_keys(keys); }

void ScrollingList::set_context_menu(Menu menu) {
    widget_->set_context_menu(*menu.widget());
    context_menu_ = std::move(menu);
}

void ScrollingList::set_columns(std::vector<ListColumn> columns) { widget_->set_columns(std::move(columns)); }

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
