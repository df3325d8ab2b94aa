// SPDX-License-Identifier: MIT
#include "app/startup.h"

#include "app/fonts.h"
#include "app/notify.h"
#include "app/options.h"
#include "app/termpane.h"
#include "app/title.h"
#include "app/user_defaults.h"
#include "browsers/listing.h"
#include "browsers/tree/file_tree.h"
#include "settings/bookmarks.h"
#include "settings/command_list.h"
#include "settings/history.h"
#include "settings/notify.h"
#include "settings/setup_file.h"
#include "settings/unsaved.h"
#include "settings/user_buttons.h"
#include "settings/user_menu.h"
#include "shell/door.h"
#include "shell/files.h"
#include "shell/hook_typing.h"
#include "shell/login_shell.h"
#include "shell/messages.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "shell/send.h"
#include "shell/status.h"
#include "shell/status_file.h"
#include "shell/waiting_strip.h"
#include "toolkit/application.h"
#include "toolkit/desktop.h"
#include "toolkit/resources.h"
#include "ui/default_settings.h"
#include "ui/define_label.h"
#include "ui/email_addresses.h"
#include "ui/environment_setup.h"
#include "ui/file_tree_browser.h"
#include "ui/lookup_directories_main.h"
#include "ui/main_window.h"
#include "ui/message_board.h"
#include "ui/process_information.h"
#include "ui/remote_hosts.h"
#include "ui/status_display.h"
#include "ui/text_editor_setup.h"
#include "ui/windows.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <utility>

#include <fmt/format.h>
#include <unistd.h>

namespace {

/// A command on a file or directory; an empty path leaves the command without one.
void send_with_path(CommandLine line, const std::string& path) {
    if (!path.empty()) {
        line.path(path_meant(path));
    }
    (void)send_at_startup(line, refresh_after_command);
}

/// The shell is started as soon as the display has answered: its start-up files take longest of all. A
/// failure is met again, and shown, when there is a terminal.
std::unique_ptr<terminal::Pty> connect_to_display(std::vector<std::string>& arguments) {
    std::unique_ptr<terminal::Pty> shell;
    const std::string failure = xv_init(arguments, [&shell] {
        std::string error;
        shell = terminal::Pty::start(login_shell(), {}, error);
    });
    if (!failure.empty()) {
        std::fprintf(stderr, "%s\n", failure.c_str());
        std::exit(1);
    }
    return shell;
}

void make_windows(std::unique_ptr<terminal::Pty> shell) {
    ImageButton::set_picture_directory(orvik_home + "/icons");
    create_main_window();
    apply_geometry_option(main_window());
    watch_for_shell([] {
        show_screen_lock(false);
        (void)type_prompt_hooks();  // a shell that is started again knows no hook yet
    });
    main_window().termpane.start(login_shell(), std::move(shell));
    create_popups();  // while the shell starts
}

std::string environment_text(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

void set_initial_values() {
    process_information().process_id.set_value(pid);
    remote_hosts().my_host.set_text(host_own);
    set_application_icon(orvik_home + "/icons/orvik.svg");
    constexpr int medium = 1;
    text_editor_setup().font_size.set_value(medium);
    environment_setup().startup_directory.set_text(startup_dir);
    lookup_directories_main().dir.set_text(startup_dir);
    constexpr int editing_enabled = 1;
    default_settings().command_line_editing.set_value(editing_enabled);
    email_addresses().list.clear_selection();
    constexpr int small = 1;
    file_tree_browser().font_size.set_value(small);
    status_display().enable.set_value(status_host | status_pid | status_user);
    text_editor_setup().user_editor.set_text(
        usual_editor(environment_text("VISUAL"), environment_text("EDITOR"), user_shell.family));
    default_settings().prompt_ending_delimiter.set_text(usual_prompt_delimiter(shell_name, geteuid() == 0));
}

/// The desktop's fonts have changed.
void take_over_fonts() {
    find_fonts();
    apply_font_resources();
    SetupUserButtons();
}

void read_resources() {
    apply_font_resources();
    text_editor_setup().font_name.set_text(font_name());
    on_desktop_change(take_over_fonts);
    constexpr int microseconds_per_tenth = 100'000;
    multiclick_timeout = microseconds_per_tenth * defaults_get_integer("openwindows.multiclicktimeout",
                                                                       "OpenWindows.MultiClickTimeout", 4);
    drag_threshold = defaults_get_integer("openwindows.dragthreshold", "OpenWindows.DragThreshold", 5);
    set_pointer_limits(multiclick_timeout, drag_threshold);
    const std::string visual_bell = defaults_get_string("orvik.visualBell", "Orvik.VisualBell", "on");
    main_window().termpane.set_visual_bell(visual_bell == "off" ? VisualBell::off : VisualBell::on);
    waiting_lines().set_hold(defaults_get_string("orvik.holdLines", "Orvik.HoldLines", "on") != "off");
    KeptKeys kept(defaults_get_string("orvik.keepKeys", "Orvik.KeepKeys", ""));
    if (!kept.unknown().empty()) {
        report(fmt::format("Orvik.KeepKeys: no keys of the tool's: {}\n", kept.unknown()));
    }
    leave_to_shell(std::move(kept));
    main_window().termpane.permit(
        {.checksum = defaults_get_boolean("orvik.allowChecksum", "Orvik.AllowChecksum"),
         .window_operations = defaults_get_boolean("orvik.allowWindowOps", "Orvik.AllowWindowOps"),
         .clipboard = defaults_get_boolean("orvik.allowClipboard", "Orvik.AllowClipboard")});
}

CommandLineOptions read_options(const std::vector<std::string>& arguments) {
    CommandLineOptions options;
    if (process_commandline(arguments, options) != 0) {
        report("Error in command string\n");
        return {};
    }
    return options;
}

void put_options_into_fields(const CommandLineOptions& options) {
    if (options.work) {
        environment_setup().working_directory_1.set_text(options.workdir);
    }
    if (!options.label.empty()) {
        define_label().label.set_text(options.label);
    }
}

void type_environment_file() {
    const std::string file = environment_setup().environment_setup_file.text();
    if (file.empty()) {
        report("Environment setup file not found\n");
    } else {
        send_with_path(CommandLine("source"), file);
    }
}

void type_first_prompt_hooks() {
    for (const PromptHook& hook : type_prompt_hooks()) {
        if (hook.kind == HookKind::bash) {
            ttysw_output(
                main_window().termpane,
                "\n\n!!!!!!!!!!!!!! Type ctrl-C to enable terminal screen!!!!!!!!!!!!!!!!!!!!!!!!\n\n");
        }
    }
}

void log_in_to(const std::string& host) {
    CommandLine line("rlogin");
    if (!host.empty()) {
        line.host(host);
    }
    (void)send_at_startup(line, refresh_after_login);
}

}  // namespace

void start_up(std::vector<std::string> arguments) {
    std::signal(SIGPIPE, SIG_IGN);  // nobody may be reading the standard error
    read_process_values();
    make_windows(connect_to_display(arguments));
    find_fonts();
    interpose_terminal_keys();
    main_window().on_close(Quit_button);
    show_title();
    set_initial_values();
    set_tree_name_source([] { return GetFileTreeName(TreeNameKind::any); });
    begin_status_display();
    remove_stale_temporary_files(home_dir, std::time(nullptr));
    read_resources();
    const CommandLineOptions options = read_options(arguments);
    const bool setup_loaded = load_setup_at_startup() == 1;
    put_options_into_fields(options);
    watch_setup_windows();
    set_up_user_buttons_at_startup();
    list_files_at_startup(setup_loaded || options.work ? environment_setup().working_directory_1.text() : "");
    size_command_list();
    load_history_at_startup();
    load_user_menu_at_startup();
    make_command_menu_at_startup();
    make_history_menu_at_startup();
    load_bookmarks_at_startup();
    type_environment_file();
    if (options.work && !options.host) {
        send_with_path(CommandLine("cd"), options.workdir);
    }
    show_title();
    type_first_prompt_hooks();
    if (options.host) {
        log_in_to(options.hostname);
    }
    if (options.closed) {
        main_window().start_iconified();
    }
    main_window().termpane.set_focus();
    report("Orvik Command Tool starting\n");
}
