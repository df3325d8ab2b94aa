// SPDX-License-Identifier: MIT
#include "toolkit/mnemonics.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QSet>

namespace {

bool can_be_mnemonic(QChar c) { return c.unicode() < 128 && c.isLetterOrNumber(); }

/// Where the mark goes in a label as it is seen; -1 for nowhere.
qsizetype place_of_mnemonic(const QString& label, const QSet<QChar>& taken) {
    for (const bool at_word : {true, false}) {
        for (qsizetype at = 0; at < label.size(); ++at) {
            const bool begins_word = at == 0 || label[at - 1] == u' ';
            if ((begins_word || !at_word) && can_be_mnemonic(label[at]) &&
                !taken.contains(label[at].toLower())) {
                return at;
            }
        }
    }
    return -1;
}

template <typename Control>
void assign(const QList<Control*>& controls) {
    QStringList labels;
    for (const Control* control : controls) {
        labels.append(control->text());
    }
    labels = with_mnemonics(labels);
    for (qsizetype i = 0; i < controls.size(); ++i) {
        if (controls[i]->text() != labels[i]) {
            controls[i]->setText(labels[i]);
        }
    }
}

}  // namespace

QString shown_label(const QString& label) {
    QString shown;
    for (qsizetype at = 0; at < label.size(); ++at) {
        at += label[at] == u'&' && at + 1 < label.size() ? 1 : 0;
        shown += label[at];
    }
    return shown;
}

QStringList with_mnemonics(QStringList labels) {
    QSet<QChar> taken;
    for (QString& label : labels) {
        QString marked = shown_label(label);
        const qsizetype at = place_of_mnemonic(marked, taken);
        const qsizetype marks_before = at < 0 ? 0 : marked.left(at).count(u'&');
        if (at >= 0) {
            taken.insert(marked[at].toLower());
        }
        marked.replace(u'&', QStringLiteral("&&"));
        label = at < 0 ? marked : marked.insert(at + marks_before, u'&');
    }
    return labels;
}

void assign_mnemonics(QWidget& window) {
    QList<QPushButton*> buttons;
    for (QPushButton* button : window.findChildren<QPushButton*>()) {
        if (button->window() == &window && !button->text().isEmpty()) {
            buttons.append(button);
        }
    }
    assign(buttons);
}

void assign_mnemonics(QMenu& menu) {
    QList<QAction*> items;
    for (QAction* item : menu.actions()) {
        if (!item->isSeparator() && item->isEnabled()) {
            items.append(item);
        }
    }
    assign(items);
}
