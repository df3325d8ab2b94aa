// SPDX-License-Identifier: MIT
#include "toolkit/menu.h"

#include "toolkit/answer.h"
#include "toolkit/elided.h"
#include "toolkit/mnemonics.h"
#include "toolkit/text_conversion.h"

#include <QMenu>

#include <algorithm>
#include <utility>

Menu::Menu(std::string_view title, std::span<const MenuItem> items) : menu_(std::make_unique<QMenu>()) {
    menu_->setToolTipsVisible(true);
    if (!title.empty()) {
        menu_->setAccessibleName(to_qstring(title));
        title_ = menu_->addSection(without_mnemonic(title));
    }
    for (const MenuItem& item : items) {
        if (!item.notify) {
            menu_->addSection(without_mnemonic(item.label));
            continue;
        }
        QAction* action = menu_->addAction(without_mnemonic(item.label));
        if (!item.tool_tip.empty()) {
            action->setToolTip(plain_tool_tip(item.tool_tip));
        }
        QObject::connect(action, &QAction::triggered, menu_.get(),
                         [menu = menu_.get(), notify = item.notify] { notify_from(menu, notify); });
    }
    assign_mnemonics(*menu_);
}

Menu::~Menu() = default;
Menu::Menu(Menu&&) noexcept = default;

/// The menus that pull right are children of the old menu: they go first.
Menu& Menu::operator=(Menu&& other) noexcept {
    pull_rights_ = std::move(other.pull_rights_);
    menu_ = std::move(other.menu_);
    title_ = other.title_;
    entries_ = std::move(other.entries_);
    return *this;
}

QAction* Menu::make_entry(const MenuEntry& entry, MenuNotify chosen) {
    constexpr int widest = 640;  // pixels
    auto* action = new QAction(elided(menu_->fontMetrics(), entry.label, widest), menu_.get());
    action->setToolTip(plain_tool_tip(entry.value.empty() ? entry.label : entry.value));
    action->setEnabled(!entry.is_heading);
    action->setCheckable(entry.checked.has_value());
    action->setChecked(entry.checked.value_or(false));
    QObject::connect(action, &QAction::triggered, menu_.get(),
                     [menu = menu_.get(), chosen, value = entry.value] {
                         notify_from<const std::string&>(menu, chosen, value);
                     });
    return action;
}

void Menu::set_entries(const std::vector<MenuEntry>& entries, MenuNotify chosen) {
    for (QAction* old : std::exchange(entries_, {})) {
        menu_->removeAction(old);
        old->deleteLater();  // it may be the one that has been chosen
    }
    const QList<QAction*> fixed = menu_->actions();
    const auto behind_title = fixed.indexOf(title_) + 1;
    QAction* first_fixed = behind_title < fixed.size() ? fixed[behind_title] : nullptr;
    QList<QAction*> items;
    for (const MenuEntry& entry : entries) {
        QAction* action = make_entry(entry, chosen);
        entries_.push_back(action);
        if (entry.is_heading) {
            menu_->insertAction(first_fixed, action);
            first_fixed = action;  // a later heading stands above
        } else {
            items.append(action);
        }
    }
    menu_->addActions(items);
}

bool Menu::has_entries() const {
    return !entries_.empty() ||
           std::ranges::any_of(pull_rights_, [](const auto& menu) { return menu->has_entries(); });
}

Menu& Menu::add_pull_right(std::string_view label, Menu menu, Notify about_to_show) {
    Menu& added = *pull_rights_.emplace_back(std::make_unique<Menu>(std::move(menu)));
    added.widget()->setParent(menu_.get(), added.widget()->windowFlags());
    QAction* item = menu_->addMenu(added.widget());
    item->setText(without_mnemonic(label));
    item->setEnabled(about_to_show || added.has_entries());
    assign_mnemonics(*menu_);
    if (about_to_show) {
        QObject::connect(added.widget(), &QMenu::aboutToShow, added.widget(),
                         [menu = added.widget(), about_to_show] { notify_from(menu, about_to_show); });
    }
    // Only assistive programs trigger such an item.
    QObject::connect(item, &QAction::triggered, menu_.get(),
                     [menu = menu_.get(), item] { menu->setActiveAction(item); });
    return added;
}
