// SPDX-License-Identifier: MIT
#include "toolkit/notice.h"

#include "toolkit/frame.h"
#include "toolkit/mnemonics.h"
#include "toolkit/standing.h"
#include "toolkit/text_conversion.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>

#include <algorithm>
#include <iterator>

int notice_prompt(Frame& owner, std::string_view message, std::initializer_list<std::string_view> buttons,
                  DefaultButton default_button, const std::vector<std::string>& details) {
    QMessageBox box(owner.widget());
    box.setTextFormat(Qt::PlainText);
    box.setText(to_qstring(message));
    if (!details.empty()) {
        QStringList lines;
        std::transform(details.begin(), details.end(), std::back_inserter(lines), visible_text);
        box.setInformativeText(lines.join(u'\n'));
        // It would be taken for HTML otherwise where it looks so.
        for (QLabel* label : box.findChildren<QLabel*>()) {
            label->setTextFormat(Qt::PlainText);
        }
    }
    box.setWindowTitle(to_qstring(owner.label()));
    box.setIcon(QMessageBox::Question);
    std::vector<QPushButton*> made;
    for (const std::string_view label : buttons) {
        made.push_back(box.addButton(without_mnemonic(label), QMessageBox::ActionRole));
        made.back()->setAccessibleName(to_qstring(label));
    }
    assign_mnemonics(box);
    box.setDefaultButton(default_button == DefaultButton::first ? made.front() : made.back());
    box.setEscapeButton(made.back());
    box.exec();
    return_keyboard(*owner.widget());
    const auto chosen = std::find(made.begin(), made.end(), box.clickedButton());
    return static_cast<int>(chosen - made.begin());
}

bool agreed(Frame& owner, std::string_view question, const std::vector<std::string>& details) {
    return notice_prompt(owner, question, {"Yes", "Cancel"}, DefaultButton::last, details) == 0;
}
