// SPDX-License-Identifier: MIT
#include "app/quit.h"
#include "app/startup.h"
#include "toolkit/application.h"
#include "toolkit/long_work.h"
#include "ui/main_window.h"
#include "ui/windows.h"

int main(int argc, char** argv) {
    start_up(std::vector<std::string>(argv, argv + argc));
    on_lost_display(clean_up_without_display);
    xv_main_loop(main_window());
    clean_up();
    destroy_windows();
    await_stopped_work(std::chrono::seconds{1});
    xv_destroy();
    return 0;
}
