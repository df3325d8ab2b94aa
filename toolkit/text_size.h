// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractScrollArea>
#include <QScrollBar>

/// The size of a scrolling widget that shows so many characters and lines in its font.
inline QSize text_size(const QAbstractScrollArea& area, int columns, int lines) {
    constexpr int document_margins = 8;
    const QFontMetrics metrics = area.fontMetrics();
    const int frame = 2 * area.frameWidth() + document_margins;
    return {metrics.averageCharWidth() * columns + frame + area.verticalScrollBar()->sizeHint().width(),
            metrics.lineSpacing() * lines + frame};
}
