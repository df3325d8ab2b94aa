// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/list_row.h"

#include <QAbstractListModel>
#include <QIcon>
#include <QListView>

#include <array>
#include <span>
#include <string>
#include <vector>

class QMenu;

/// The rows of a list.
class ListModel final : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] const std::vector<std::string>& rows() const { return rows_; }
    void append(std::vector<std::string> rows);
    /// Rows without a glyph of their own have none.
    void replace(std::vector<std::string> rows, std::vector<Glyph> glyphs);

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  private:
    std::vector<std::string> rows_;
    std::vector<Glyph> glyphs_;      ///< of the first rows
    std::array<QIcon, 6> pictures_;  ///< of the glyphs but for none; loaded when there are some
};

/// Where a view stands in its rows.
struct ListPlace {
    int scrolled = 0;
    int current = -1;  ///< the row that the keyboard goes on from
};

/// Shows the rows and tells what its user does with them.
class ListView final : public QListView {
  public:
    ListView(ListModel& model, ListNotify notify, QWidget* parent);

    void set_keys(std::span<const ListKey> keys) { keys_.assign(keys.begin(), keys.end()); }
    /// Borrows the menu.
    void set_context_menu(QMenu& menu);
    void set_columns(std::vector<ListColumn> columns);
    [[nodiscard]] ListPlace place() const;
    /// As far as there are rows.
    void return_to(const ListPlace& place);

  protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void tell(const ListEvent& event) const;

    ListNotify notify_;
    std::vector<ListKey> keys_;
    QMenu* context_menu_ = nullptr;
};
