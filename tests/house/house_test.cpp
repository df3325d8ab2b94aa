// SPDX-License-Identifier: MIT
#include "tests/house/build_rules.h"
#include "tests/house/rules.h"
#include "tests/support/scratch_directory.h"

#include <gtest/gtest.h>

namespace {

using Faults = std::vector<std::string>;

const std::string licence = "// SPDX-License-Identifier: MIT\n";

struct Case {
    const char* name;
    std::vector<std::pair<std::string, std::string>> files;  ///< path and what follows the licence line
    Faults expected;
};

std::ostream& operator<<(std::ostream& out, const Case& row) { return out << row.name; }

const std::vector<Case> cases{
    {"WhatIsAllowed",
     {{"terminal/screen.h", "#include \"terminal/cell.h\"  // as QString's\n"},
      {"terminal/cell.h", "#pragma once\n"},
      {"toolkit/pane.h", "#include \"terminal/screen.h\"\nclass QString;\n"},
      {"ui/window.h", "#include \"toolkit/pane.h\"\n#include \"app/notify.h\"\n"},
      {"app/notify.h", ""},
      {"shell/door.h", ""},
      {"shell/door.cpp", "#include \"shell/door.h\"\n#include \"ui/window.h\"\nttysw_input(pane, text);\n"},
      {"app/startup.h", ""},
      {"app/main.cpp", "#include \"app/startup.h\"\n#include \"commands/tar.h\"\n"},
      {"commands/tar.h", "#include \"settings/setup.h\"\n"},
      {"settings/setup.h", "#include \"browsers/list.h\"\n"},
      {"browsers/list.h", "#include \"shell/door.h\"\n"},
      {"tests/all.h", "#include \"app/startup.h\"\nQString text;\n"},
      {"build/generated.h", "#include \"build/generated.h\"\n"}},
     {}},
    {"LongFile",
     {{"app/short.cpp", std::string(499, '\n')}, {"app/long.cpp", std::string(500, '\n')}},
     {"app/long.cpp:501: longer than 500 lines"}},
    {"CycleOfHeaders",
     {{"ui/a.h", "#include \"ui/b.h\"\n"},
      {"ui/b.h", "#include \"c.h\"\n"},
      {"ui/c.h", "#include <ui/a.h>\n"},
      {"ui/a.cpp", "#include \"ui/a.h\"\n"}},
     {"ui/a: include cycle ui/a -> ui/b -> ui/c -> ui/a"}},
    {"CycleThroughASource",
     {{"app/a.h", ""}, {"app/a.cpp", "#include \"app/b.h\"\n"}, {"app/b.h", "#include \"app/a.h\"\n"}},
     {"app/a: include cycle app/a -> app/b -> app/a"}},
    {"UiKnowsFeaturesByTheirNotifyHeaders",
     {{"ui/window.h", "#include \"app/notify.h\"\n#include \"app/shell.h\"\n"},
      {"app/notify.h", ""},
      {"app/shell.h", ""}},
     {"ui/window.h:3: ui/ may not include app/shell.h"}},
    {"UpTheStairs",
     {{"terminal/pty.cpp", "#include \"toolkit/pane.h\"\n"},
      {"toolkit/pane.h", "\n#include \"../ui/window.h\"\n"},
      {"ui/window.h", ""},
      {"shell/status.cpp", "#include \"browsers/list.h\"\n"},
      {"browsers/list.h", "#include \"settings/setup.h\"\n"},
      {"settings/setup.h", "#include \"commands/tar.h\"\n"},
      {"commands/tar.h", "#include \"app/quit.h\"\n"},
      {"app/quit.h", "#include \"tests/quit.h\"\n"},
      {"tests/quit.h", ""}},
     {"app/quit.h:2: app/ may not include tests/quit.h",
      "browsers/list.h:2: browsers/ may not include settings/setup.h",
      "commands/tar.h:2: commands/ may not include app/quit.h",
      "settings/setup.h:2: settings/ may not include commands/tar.h",
      "shell/status.cpp:2: shell/ may not include browsers/list.h",
      "terminal/pty.cpp:2: terminal/ may not include toolkit/pane.h",
      "toolkit/pane.h:3: toolkit/ may not include ui/window.h"}},
    {"FolderWithoutRule", {{"misc/any.cpp", ""}}, {"misc/any.cpp:1: the folder has no place in the house"}},
    {"QtInTheTerminalEngine",
     {{"terminal/pty.cpp", "#include <QTimer>\nint a;\nQByteArray bytes;\n"}},
     {"terminal/pty.cpp:2: the terminal engine knows no Qt",
      "terminal/pty.cpp:4: the terminal engine knows no Qt"}},
    {"QStringInAHeader",
     {{"shell/text.h", "class QString;\n"}, {"shell/text.cpp", "QString local;\n"}},
     {"shell/text.h:2: QString does not leave toolkit/"}},
    {"TypingPastTheDoor",
     {{"browsers/list.cpp", "ttysw_input (pane, text);\n"}, {"app/quit.cpp", "// ttysw_input(pane, text)\n"}},
     {"browsers/list.cpp:2: text is typed into the shell through shell/door.h only"}},
};

class HouseRules : public testing::TestWithParam<Case> {};

TEST_P(HouseRules, AreSeenBroken) {
    const ScratchDirectory tree;
    for (const auto& [path, text] : GetParam().files) {
        tree.write(path, licence + text);
    }
    EXPECT_EQ(house_faults(tree.path()), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(All, HouseRules, testing::ValuesIn(cases),
                         [](const testing::TestParamInfo<Case>& row) { return std::string(row.param.name); });

TEST(House, LicenceLineIsMissed) {
    const ScratchDirectory tree;
    tree.write("app/empty.h", "");
    tree.write("app/late.h", "#pragma once\n" + licence);
    EXPECT_EQ(house_faults(tree.path()), (Faults{"app/empty.h:1: the first line is not the licence's",
                                                 "app/late.h:1: the first line is not the licence's"}));
}

TEST(House, BuildFilesNameEveryFile) {
    const ScratchDirectory tree;
    tree.write("CMakeLists.txt",
               "# if(EXISTS here)\nforeach(folder app fuzz)\n    add_subdirectory(${folder})\nendforeach()\n"
               "include(extra.cmake\n    OPTIONAL)\nif(NOT EXISTS ${x}/y)\nendif()\n");
    tree.write("app/CMakeLists.txt",
               "file(GLOB sources *.cpp)\nadd_library(app a.cpp\n  deep/b.cpp  # c.cpp\n)\n");
    tree.write("fuzz/CMakeLists.txt",
               "add_executable(${target} ${name}_fuzz.cpp ../tests/main.cpp)\nadd(text)\n");
    tree.write("tests/CMakeLists.txt", "");
    for (const char* source : {"app/a.cpp", "app/b.cpp", "app/c.cpp", "app/deep/b.cpp", "fuzz/text_fuzz.cpp",
                               "fuzz/paste_fuzz.cpp", "tests/main.cpp", "app/a.h"}) {
        tree.write(source, "");
    }
    EXPECT_EQ(
        build_faults(tree.path()),
        (Faults{"CMakeLists.txt:5: an optional include hides a missing file",
                "CMakeLists.txt:7: a question for a file hides that it is missing",
                "app/CMakeLists.txt:1: a pattern hides a missing file",
                "app/b.cpp:1: no CMakeLists.txt names it", "app/c.cpp:1: no CMakeLists.txt names it",
                "fuzz/paste_fuzz.cpp:1: no CMakeLists.txt names it", "tests:1: no CMakeLists.txt names it"}));
}

TEST(House, ThisTreeKeepsItsRules) {
    ASSERT_TRUE(std::filesystem::exists(ORVIK_SOURCE_DIR "/tests/house/rules.cpp"));
    for (const Faults& faults : {house_faults(ORVIK_SOURCE_DIR), build_faults(ORVIK_SOURCE_DIR)}) {
        for (const std::string& fault : faults) {
            ADD_FAILURE() << fault;
        }
    }
}

}  // namespace
