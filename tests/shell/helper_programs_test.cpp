// SPDX-License-Identifier: MIT
// The scripts in data/bin, among programs that record what they are called with.
#include "tests/support/scratch_directory.h"

#include <cstdlib>
#include <filesystem>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

struct Call {
    std::vector<std::string> programs;  ///< "link=program" for one that another name leads to
    std::string command;
    std::string called;  ///< or what is said and the status
};

/// Runs a command where no other programs are found than the scripts and those that are named.
std::string calls_of(const Call& call) {
    const ScratchDirectory directory;
    for (const char* needed : {"basename", "readlink"}) {
        fs::create_directories(directory / "bin");
        fs::create_symlink(fs::path("/usr/bin") / needed, directory / "bin" / needed);
    }
    for (const std::string& program : call.programs) {
        const std::size_t sign = program.find('=');
        if (sign != std::string::npos) {
            fs::create_symlink(program.substr(sign + 1), directory / "bin" / program.substr(0, sign));
        } else {
            directory.write_script("bin/" + program,
                                   "#!/bin/sh\nprintf %s \"${0##*/}\"; printf '|%s' \"$@\"; echo\n");
        }
    }
    const std::string line = fmt::format(
        "cd {0} && PATH={1}/data/bin:{0}/bin && export PATH && ({2}) >out 2>&1 || echo status $? >>out",
        directory.path().string(), ORVIK_SOURCE_DIR, call.command);
    EXPECT_EQ(std::system(line.c_str()), 0);
    return read_file(directory / "out");
}

TEST(HelperPrograms, OpenCallsTheProgramOrAsksTheDesktop) {
    const Call cases[] = {
        {{"viewer", "xdg-open"}, "open -a viewer '/x/a b'", "viewer|/x/a b\n"},
        {{"viewer", "xdg-open"}, "open -a viewer --full /x/a", "viewer|--full|/x/a\n"},
        {{"xdg-open"}, "open -a viewer --full /x/a", "xdg-open|/x/a\n"},
        {{"viewer", "xdg-open"}, "open -a $PWD/bin/viewer x", "viewer|x\n"},
        {{"xdg-open"}, "open -a '' '/x/$(a)'", "xdg-open|/x/$(a)\n"},
        {{"xdg-open"}, "open -a /Applications/TextEdit.app a b", "xdg-open|a\nxdg-open|b\n"},
        // As it stands when the variable behind "-a" is not set: a file that could be run is not.
        {{"viewer", "xdg-open"}, "cd bin; open -a ./viewer", "xdg-open|./viewer\n"},
        {{"open", "xdg-open"}, "open -n a", "open|-n|a\n"},
        {{"xdg-open"}, "open 'a b'", "xdg-open|a b\n"},
        {{"open"}, "open -a none a", "open|a\n"},
        {{}, "open -a none a", "open: nothing opens a: looked for none, xdg-open, open\nstatus 127\n"},
        {{}, "open a", "open: nothing opens a: looked for xdg-open, open\nstatus 127\n"},
        {{}, "open -a", "open: no file\nstatus 2\n"},
    };
    for (const Call& row : cases) {
        EXPECT_EQ(calls_of(row), row.called) << row.command;
    }
}

TEST(HelperPrograms, ShelltoolRunsACommandInTheTerminalThatThereIs) {
    const std::string line = "shelltool -c vi '/x/a b' -Wp 1 -2 -Ws 640 480 -Wx small -WT lucidasans-10";
    const Call cases[] = {
        {{"vi", "xterm", "x-terminal-emulator=xterm", "konsole"},
         line,
         "x-terminal-emulator|-fn|6x13|-geometry|106x36+1+-2|-e|vi|/x/a b\n"},
        {{"vi", "gnome-terminal", "gnome-terminal.wrapper", "x-terminal-emulator=gnome-terminal.wrapper"},
         line,
         "gnome-terminal|--geometry=106x36+1+-2|--|vi|/x/a b\n"},
        {{"vi", "xfce4-terminal"}, "shelltool -c vi x -Ws 0 0 -Wx large", "xfce4-terminal|-x|vi|x\n"},
        {{"vi", "konsole"}, line, "konsole|-e|vi|/x/a b\n"},
        {{"less", "xterm"}, "shelltool -c less -n x", "xterm|-fn|7x14|-e|less|-n|x\n"},
        {{"xterm"}, line, "shelltool: vi: not found\nstatus 127\n"},
        {{"vi"},
         line,
         "shelltool: no terminal emulator: looked for x-terminal-emulator gnome-terminal konsole "
         "xfce4-terminal mate-terminal lxterminal qterminal xterm\nstatus 127\n"},
        {{"xterm"}, "shelltool -c", "shelltool: no command\nstatus 2\n"},
    };
    for (const Call& row : cases) {
        EXPECT_EQ(calls_of(row), row.called) << row.command;
    }
}

}  // namespace
