# The terminal pane: a session (terminal and shell), the view that shows it, and what goes with them.
target_sources(toolkit PRIVATE
    colour_name.cpp
    terminal_accessible.cpp
    terminal_box.cpp
    terminal_box_blocks.cpp
    terminal_box_curves.cpp
    terminal_box_lines.cpp
    terminal_find_bar.cpp
    terminal_font.cpp
    terminal_keys.cpp
    terminal_link.cpp
    terminal_link_notice.cpp
    terminal_painter.cpp
    terminal_pane.cpp
    terminal_paste_review.cpp
    terminal_reader.cpp
    terminal_selection.cpp
    terminal_session.cpp
    terminal_view.cpp
    terminal_view_blink.cpp
    terminal_view_clipboard.cpp
    terminal_view_keys.cpp
    terminal_view_links.cpp
    terminal_view_mouse.cpp
    terminal_view_window.cpp
)
target_link_libraries(toolkit PRIVATE fmt::fmt)
