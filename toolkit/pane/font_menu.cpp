// SPDX-License-Identifier: MIT
#include "toolkit/pane/font_menu.h"

#include "toolkit/pane/view.h"

#include <QAction>
#include <QFontDatabase>
#include <QFontInfo>
#include <QMenu>

#include <array>

namespace {

struct Size {
    const char* label;
    const char* key;
    int steps;
};

constexpr std::array sizes{Size{"Larger", "Ctrl++", 1}, Size{"Smaller", "Ctrl+-", -1},
                           Size{"Usual Size", "Ctrl+0", 0}};

}  // namespace

void fill_font_menu(QMenu& menu, TerminalView& view) {
    menu.clear();
    for (const Size& size : sizes) {
        QAction* item =
            menu.addAction(QLatin1String(size.label), &view, [&view, &size] { view.zoom(size.steps); });
        item->setShortcut(QKeySequence(QLatin1String(size.key)));
        item->setShortcutContext(Qt::WidgetShortcut);  // the view handles the keys itself
    }
    menu.addSeparator();
    const QString current = QFontInfo(view.terminal_font()).family();
    for (const QString& family : QFontDatabase::families()) {
        if (!QFontDatabase::isFixedPitch(family) || QFontDatabase::isPrivateFamily(family)) {
            continue;
        }
        QString label = family;
        QAction* item = menu.addAction(label.replace(u'&', QStringLiteral("&&")), &view,
                                       [&view, family] { view.set_font_family(family); });
        item->setCheckable(true);
        item->setChecked(family == current);
    }
}
