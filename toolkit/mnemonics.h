// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QMenu;
class QWidget;

/// Labels for widgets that take "&" for the mark of a mnemonic, each with such a mark before a letter that no
/// other one has: the first of a word if it can be. Marks that they have are taken away first; a label that
/// has no letter left gets none.
QStringList with_mnemonics(QStringList labels);
/// The label as it is seen: without the mark.
QString shown_label(const QString& label);

/// Gives the push buttons of a window their mnemonics anew, in the order they were made.
void assign_mnemonics(QWidget& window);
/// The same for the items of a menu.
void assign_mnemonics(QMenu& menu);
