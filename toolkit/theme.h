// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIcon>
#include <QPalette>

/// The two sets of colours.
enum class Shade : bool { light, dark };

/// Gives all windows the tool's look: one widget style and one set of colours on every desktop. May be called
/// again; pictures follow.
void apply_theme(Shade shade);
/// The palette that Qt has from the desktop, which that look covers.
QPalette desktop_palette();

/// A drawing (SVG) or page (HTML) made for the light colours, in those that are applied.
QByteArray in_theme(QByteArray drawn);
/// The same of a picture in a file, drawn for the size and the colours there are when it is shown.
QIcon themed_icon(const QString& path);
