// SPDX-License-Identifier: MIT
#include "app/options.h"
#include "app/quit.h"
#include "app/startup.h"
#include "toolkit/application.h"
#include "toolkit/long_work.h"
#include "ui/main_window.h"
#include "ui/windows.h"

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

int main(int argc, char** argv) {
    std::vector<std::string> arguments(argv, argv + argc);
    if (const std::string answer = answer_to(arguments); !answer.empty()) {
        return std::fputs(answer.c_str(), stdout) < 0 || std::fflush(stdout) != 0 ? 1 : 0;
    }
    start_up(std::move(arguments));
    on_lost_display(clean_up_without_display);
    xv_main_loop(main_window());
    clean_up();
    destroy_windows();
    await_stopped_work(std::chrono::seconds{1});
    xv_destroy();
    return 0;
}
