// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/list_row.h"

#include <QStyledItemDelegate>

#include <vector>

/// Paints a list's rows with columns at the right edge of what is seen of the list; what a row's own text has
/// no room for is left out then.
class ListColumns final : public QStyledItemDelegate {
  public:
    ListColumns(std::vector<ListColumn> columns, QObject* parent)
        : QStyledItemDelegate(parent), columns_(std::move(columns)) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& item, const QModelIndex& index) const override;

  private:
    std::vector<ListColumn> columns_;
};
