// SPDX-License-Identifier: MIT
#include "toolkit/theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

void apply_theme() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QColor text(0x1f, 0x24, 0x2d);
    const QColor faded(0x8a, 0x91, 0x9e);
    QPalette palette(QColor(0xe6, 0xe9, 0xef), QColor(0xee, 0xf0, 0xf4));
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Base, QColor(0xff, 0xff, 0xff));
    palette.setColor(QPalette::AlternateBase, QColor(0xf5, 0xf6, 0xf9));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xb5));
    palette.setColor(QPalette::HighlightedText, QColor(0xff, 0xff, 0xff));
    palette.setColor(QPalette::PlaceholderText, faded);
    palette.setColor(QPalette::ToolTipBase, QColor(0xff, 0xfb, 0xe6));
    palette.setColor(QPalette::ToolTipText, text);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faded);
    }
    QApplication::setPalette(palette);
}
