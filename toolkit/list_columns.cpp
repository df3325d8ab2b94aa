// SPDX-License-Identifier: MIT
#include "toolkit/list_columns.h"

#include "toolkit/text_conversion.h"

#include <QAbstractItemView>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int gap = 12;  // pixels, before and behind a column

QColor text_colour(const QStyleOptionViewItem& item) {
    const bool selected = (item.state & QStyle::State_Selected) != 0;
    const bool active = (item.state & QStyle::State_Active) != 0;
    return item.palette.color(active ? QPalette::Active : QPalette::Inactive,
                              selected ? QPalette::HighlightedText : QPalette::Text);
}

}  // namespace

void ListColumns::paint(QPainter* painter, const QStyleOptionViewItem& item, const QModelIndex& index) const {
    const auto* view = qobject_cast<const QAbstractItemView*>(item.widget);
    if (columns_.empty() || view == nullptr) {
        QStyledItemDelegate::paint(painter, item, index);
        return;
    }
    QStyleOptionViewItem row = item;
    row.rect.setWidth(view->viewport()->width() - row.rect.left());
    view->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &row, painter, view);
    QRect room = row.rect;
    painter->save();
    painter->setPen(text_colour(item));
    painter->setFont(item.font);
    std::for_each(columns_.rbegin(), columns_.rend(), [&](const ListColumn& column) {
        room.setRight(room.right() - gap);
        const int width = item.fontMetrics.averageCharWidth() * column.characters;
        const QRect place(room.right() - width, room.top(), width, room.height());
        painter->drawText(place, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                          visible_text(column.text(index.row())));
        room.setRight(place.left() - gap);
    });
    painter->restore();
    row.rect.setRight(room.right());
    QStyledItemDelegate::paint(painter, row, index);
}
