// SPDX-License-Identifier: MIT
#include "toolkit/notice.h"

#include "toolkit/frame.h"
#include "toolkit/text_conversion.h"

#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <vector>

int notice_prompt(Frame& owner, std::string_view message, std::initializer_list<std::string_view> buttons,
                  DefaultButton default_button) {
    QMessageBox box(owner.widget());
    box.setTextFormat(Qt::PlainText);
    box.setText(to_qstring(message));
    box.setWindowTitle(to_qstring(owner.label()));
    box.setIcon(QMessageBox::Question);
    std::vector<QPushButton*> made;
    for (const std::string_view label : buttons) {
        made.push_back(box.addButton(without_mnemonic(label), QMessageBox::ActionRole));
        made.back()->setAccessibleName(to_qstring(label));
    }
    box.setDefaultButton(default_button == DefaultButton::first ? made.front() : made.back());
    box.setEscapeButton(made.back());
    box.exec();
    const auto chosen = std::find(made.begin(), made.end(), box.clickedButton());
    return static_cast<int>(chosen - made.begin());
}

bool agreed(Frame& owner, std::string_view question) {
    return notice_prompt(owner, question, {"Yes", "Cancel"}, DefaultButton::last) == 0;
}
