target_sources(toolkit_test PRIVATE
    terminal_box_test.cpp
    terminal_link_test.cpp
    terminal_mouse_test.cpp
    terminal_painter_test.cpp
    terminal_pane_test.cpp
    terminal_reader_test.cpp
    terminal_window_test.cpp
)
