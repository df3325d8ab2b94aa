// SPDX-License-Identifier: MIT
// The program as it is installed.
#include "tests/e2e/orvik_test.h"

#include <cstdlib>
#include <iomanip>
#include <sstream>

namespace {

class Installed : public OrvikTest {};

/// A desktop's menu sets nothing that a log-in sets.
TEST_F(Installed, StartsFromItsDesktopEntry) {
    const std::string prefix = home_ / "installed here";
    ASSERT_EQ(std::system(("cmake --install " ORVIK_BUILD " --prefix '" + prefix + "' >/dev/null").c_str()),
              0);
    const std::string entry = read_file(prefix + "/share/applications/orvik.desktop");
    const std::string key = "\nExec=";
    std::istringstream line(entry.substr(entry.find(key) + key.size()));
    std::string program;
    line >> std::quoted(setup_.program) >> std::quoted(program);
    setup_.options = {program};
    setup_.without = {"LOGNAME", "SHELL", "ORVIK_HOME"};
    home_.write(".bash_profile", "PS1='ready> '\n");
    start();
    expect_in_terminal("ready> ");
    type("echo $LOGNAME:$ORVIK_HOME:$SHELL\n");
    expect_in_terminal(":" + prefix + "/share/orvik:/");
    const Accessible help = open_window("Help");
    expect_awaited([&] { return help.find({"", "Help text"}).text().starts_with("To Get Started\n"); }, true);
}

}  // namespace
