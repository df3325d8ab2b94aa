// SPDX-License-Identifier: MIT
// How the shell in the terminal pane is started.
#include "tests/e2e/orvik_test.h"

#include <csignal>
#include <sstream>

#include <fcntl.h>
#include <unistd.h>

namespace {

class Shell : public OrvikTest {
  protected:
    /// A file of the recording shell.
    [[nodiscard]] std::string noted(std::string_view name) const { return read_file(home_ / name); }
};

std::map<std::string, std::string> parse_environment(const std::string& text) {
    std::map<std::string, std::string> result;
    std::istringstream in(text);
    for (std::string variable; std::getline(in, variable, '\0');) {
        const std::size_t equals = variable.find('=');
        result[variable.substr(0, equals)] = variable.substr(equals + 1);
    }
    return result;
}

TEST_F(Shell, IsALoginShellWithTheEnvironmentOfTheToolAndNoDescriptorsButItsTerminal) {
    const std::string directory = home_ / "some place";
    std::filesystem::create_directory(directory);
    setup_.directory = directory;
    setup_.environment = {{"TERM", "dumb"}, {"LINES", "11"}, {"COLUMNS", "22"}, {"ODD", " a=b\nc "}};
    const int inherited = ::open("/dev/null", O_RDONLY);  // reaches the tool: it is not closed on exec
    ASSERT_GE(inherited, 0);
    start_with_recording_shell("zsh");
    close(inherited);
    EXPECT_EQ(noted("descriptors"), "0 1 2 ");
    EXPECT_EQ(noted("name"), "-zsh");
    EXPECT_EQ(noted("directory"), directory);
    EXPECT_EQ(field(open_window("Environment Setup Window"), "Start-up Directory:"), directory);
    std::map<std::string, std::string> expected = environment_of(setup_);
    expected.erase("LINES");
    expected.erase("COLUMNS");
    expected["TERM"] = "xterm-256color";
    expected["COLORTERM"] = "truecolor";
    EXPECT_EQ(parse_environment(noted("environment")), expected);
}

TEST_F(Shell, KnowsTheSizeOfThePane) {
    start_with_shell("/bin/bash");
    const auto size = [this](const std::string& file) {
        type("stty size > " + file + "\n");
        EXPECT_TRUE(wait_until([&] { return noted(file).ends_with('\n'); }));
        int rows = 0;
        int columns = 0;
        std::istringstream(noted(file)) >> rows >> columns;
        return std::pair(rows, columns);
    };
    const Rectangle pane = terminal_.place();
    const auto [rows, columns] = size("size1");
    ASSERT_GT(rows, 10);
    ASSERT_GT(columns, 40);
    // The window grows by ten lines and twenty columns of its own cells.
    const int cell_height = pane.height / rows;
    const int cell_width = pane.width / columns;
    const Rectangle window = display().place(x_window());
    display().resize(x_window(), window.width + 20 * cell_width, window.height + 10 * cell_height);
    EXPECT_TRUE(wait_until([&] { return terminal_.place().height == pane.height + 10 * cell_height; }));
    const auto grown = size("size2");
    EXPECT_EQ(grown, std::pair(rows + 10, columns + 20));
}

TEST_F(Shell, EndsWithTheTool) {
    start_with_shell("/bin/bash");
    type("echo $$ > process\n");
    ASSERT_TRUE(wait_until([this] { return noted("process").ends_with('\n'); }));
    const pid_t shell = std::stoi(noted("process"));
    EXPECT_EQ(program_->stop(), 0);
    EXPECT_TRUE(wait_until([&] { return kill(shell, 0) != 0; }));
}

}  // namespace
