// SPDX-License-Identifier: MIT
#include "toolkit/menu.h"

#include "toolkit/text_conversion.h"

#include <QMenu>

Menu::Menu(std::string_view title, std::span<const MenuItem> items) : menu_(std::make_unique<QMenu>()) {
    menu_->setToolTipsVisible(true);
    if (!title.empty()) {
        menu_->setAccessibleName(to_qstring(title));
        menu_->addSection(without_mnemonic(title));
    }
    for (const MenuItem& item : items) {
        QAction* action = menu_->addAction(without_mnemonic(item.label));
        QObject::connect(action, &QAction::triggered, menu_.get(), [notify = item.notify] { notify(); });
    }
}

Menu::~Menu() = default;
Menu::Menu(Menu&&) noexcept = default;
Menu& Menu::operator=(Menu&&) noexcept = default;
