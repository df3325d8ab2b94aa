// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/tree/layout.h"

#include <QColor>
#include <QPalette>
#include <QRect>

class LabelFonts;
class QPainter;
class TreeNode;

/// What a canvas looks like at the moment.
struct CanvasLook {
    QPalette palette;
    const TreeNode* framed = nullptr;  ///< the current node, while the canvas has the focus
    QRect band;                        ///< that is being drawn; what it touches looks selected
};

/// Paints what can be seen of a tree.
class CanvasPainter {
  public:
    CanvasPainter(QPainter& painter, LabelFonts& fonts, const CanvasLook& look)
        : painter_(painter), fonts_(fonts), look_(look) {}

    /// What stands in an area of the tree; the painter's origin is the tree's.
    void paint(const TreeLayout& layout, const QRect& area);

  private:
    void paint_links(const TreeNode& parent, const TreeArea& label, const QRect& area);
    void paint_link(QPoint from, QPoint to, const QRect& area);
    void paint_node(const TreeNode& node, const TreeArea& label);
    void paint_mark(const TreeArea& label, const QColor& colour);
    void paint_band();

    QPainter& painter_;
    LabelFonts& fonts_;
    const CanvasLook& look_;
};
