// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <memory>
#include <span>
#include <string_view>

class QMenu;

/// A line of a fixed menu.
struct MenuItem {
    std::string_view label;
    Notify notify;
};

/// A command menu: a title line that cannot be chosen, then its items. Owned by the button that carries it.
class Menu {
  public:
    /// An empty title makes no title line.
    Menu(std::string_view title, std::span<const MenuItem> items);
    ~Menu();
    Menu(Menu&& other) noexcept;
    Menu& operator=(Menu&& other) noexcept;

    [[nodiscard]] QMenu* widget() const { return menu_.get(); }

  private:
    std::unique_ptr<QMenu> menu_;
};
