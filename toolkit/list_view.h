// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/list_row.h"

#include <QAbstractListModel>
#include <QIcon>
#include <QListView>

#include <array>
#include <string>
#include <vector>

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
    std::array<QIcon, 3> pictures_;  ///< of the glyphs but for none; loaded when there are some
};

/// Shows the rows and tells what its user does with them.
class ListView final : public QListView {
  public:
    ListView(ListModel& model, ListNotify notify, QWidget* parent);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void tell(const ListEvent& event) const;

    ListNotify notify_;
};
