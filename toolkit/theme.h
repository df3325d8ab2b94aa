// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIcon>

/// The two sets of colours.
enum class Shade : bool { light, dark };

/// Gives all windows the tool's look: one widget style and one set of colours on every desktop.
void apply_theme(Shade shade);

/// A drawing (SVG) or page (HTML) made for the light colours, in those that are applied.
QByteArray in_theme(QByteArray drawn);
/// The same of a picture in a file.
QIcon themed_icon(const QString& path);
