// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

class Frame;

/// Connects to the X server and readies the toolkit. The toolkit's own options are taken out of `arguments`:
/// "-display NAME", "-geometry GEOMETRY" (X's form; pixels; for the main window) and "-xrm RESOURCE". On
/// failure the result says why in one line, else it is empty. Called once, before anything else of the
/// toolkit. Once the display has answered, and before the toolkit takes its time, `display_answered` is
/// called: for what needs no toolkit.
[[nodiscard]] std::string xv_init(std::vector<std::string>& arguments,
                                  const std::function<void()>& display_answered = {});

/// Gives the main window the size of the -geometry option, if there was one. Its place is seen to when the
/// window is shown: it depends on the size that the window's controls make of this one.
void apply_geometry_option(Frame& main_window);

/// Shows the main window and handles events until it is closed or the process is asked to end (SIGTERM,
/// SIGINT, SIGHUP).
void xv_main_loop(Frame& main_window);
/// Makes `xv_main_loop` return.
void notify_stop();
/// Ends the toolkit; all windows are gone by then.
void xv_destroy();

/// What is done when the connection to the display has broken. The windows can still be read, but show
/// nothing more. Returns what went wrong, in a few words, or an empty text.
using LastAct = std::string (*)();
/// Sets it. Such an end is told in one line on the standard error, and its exit status is 1.
void on_lost_display(LastAct act);

/// Longest time between the clicks of a double click, in microseconds, and how far in pixels the pointer may
/// move before a press becomes a drag.
void set_pointer_limits(int multiclick_microseconds, int drag_pixels);

/// Rings the display's bell.
void window_bell();

/// Puts the application's icon, an SVG file, on its windows.
void set_application_icon(const std::string& path);
