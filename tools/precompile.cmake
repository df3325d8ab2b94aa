# Precompiled headers: one set each for sources without and with Qt, of the program and of the tests. Targets can
# share a set that are compiled alike, but for macros that the set does not use.
set(common <algorithm> <array> <functional> <memory> <optional> <string> <string_view> <utility> <vector>)

# share_headers(OWNER TARGET...): the targets use the owner's set.
function(share_headers owner)
    foreach(target ${ARGN})
        if(TARGET ${target})
            target_precompile_headers(${target} REUSE_FROM ${owner})
        endif()
    endforeach()
endfunction()

target_precompile_headers(terminal PRIVATE ${common} <fmt/format.h>)
share_headers(terminal
    shell_logic shell ui browsers_logic browsers settings_logic settings commands_logic commands app_logic app orvik)

# "slots" and the like are no keywords for those who do not expect Qt's headers.
target_compile_definitions(toolkit PRIVATE QT_NO_KEYWORDS)
target_precompile_headers(toolkit PRIVATE ${common}
    <QApplication> <QKeyEvent> <QLabel> <QLineEdit> <QMenu> <QPainter> <QPushButton> <QScrollBar> <QTimer>)

# To be called where Qt6::Test has been found.
function(precompile_for_tests)
    set(for_tests ${common} <filesystem> <map> <set> <gtest/gtest.h>)
    target_precompile_headers(terminal_test PRIVATE ${for_tests})
    share_headers(terminal_test
        shell_logic_test browsers_logic_test settings_logic_test commands_logic_test app_logic_test)
    if(TARGET e2e_test)
        target_precompile_headers(e2e_test PRIVATE ${for_tests})  # which knows nothing of the program's libraries
    endif()

    # What Qt Test tells each target of its folder would keep them from sharing; no test asks for it.
    get_target_property(definitions Qt6::Test INTERFACE_COMPILE_DEFINITIONS)
    list(FILTER definitions EXCLUDE REGEX QT_TESTCASE)
    set_target_properties(Qt6::Test PROPERTIES INTERFACE_COMPILE_DEFINITIONS "${definitions};QT_NO_KEYWORDS")
    target_precompile_headers(display_main PRIVATE ${for_tests}
        <QAbstractButton> <QAccessible> <QApplication> <QClipboard> <QLabel> <QLineEdit> <QMenu> <QPushButton> <QTest>)
    share_headers(display_main
        toolkit_test ui_test shell_test browsers_test settings_test commands_test app_test)
endfunction()
