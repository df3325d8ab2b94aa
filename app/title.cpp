// SPDX-License-Identifier: MIT
#include "app/title.h"

#include "app/notify.h"
#include "shell/process.h"
#include "ui/define_label.h"
#include "ui/main_window.h"

#include <fmt/printf.h>

void show_title() {
    const std::string label = define_label().label.text();
    main_window().set_label(label.empty() ? fmt::sprintf("Orvik Command Tool (Mac OS X) %.2f", version)
                                          : label);
}

void DefineLabelApply() { show_title(); }
