// SPDX-License-Identifier: MIT
// What start-up types into the shell, byte for byte.
#include "tests/e2e/orvik_test.h"

namespace {

const std::string csh_hook =
    R"(alias precmd 'printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n" "$prompt" "$cwd" "$HOST" "$USER"  >! STATUS')";
const std::string bash_hook =
    R"(PROMPT_COMMAND='printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n" "$PS1" "$PWD" "$HOSTNAME" "$USER" > STATUS')";

struct Case {
    const char* name;
    std::string shell;
    std::vector<std::string> options;
    std::string typed;   ///< STATUS stands for the status file's path
    std::string precmd;  ///< what "Precmd:" shows
};

std::ostream& operator<<(std::ostream& out, const Case& row) { return out << row.name; }

const std::vector<Case> cases{
    {"Bash", "my-bash", {}, bash_hook + "\n", bash_hook},
    {"Ksh", "my-ksh", {}, bash_hook + "\n", bash_hook},
    {"Csh", "my-tcsh", {}, csh_hook + "\n", csh_hook},
    {"Both", "csh-or-bash", {}, csh_hook + "\n" + bash_hook + "\n", bash_hook},
    {"Neither", "my-zsh", {}, "", ""},
    {"WorkComesBeforeTheHook", "bash", {"-work", "/tmp"}, "cd /tmp\n" + bash_hook + "\n", bash_hook},
    {"HostComesLast", "bash", {"-host", "earth"}, bash_hook + "\nrlogin earth\n", bash_hook},
    {"HostTakesThePlaceOfWork",
     "bash",
     {"-work", "/tmp", "-host", "earth"},
     bash_hook + "\nrlogin earth\n",
     bash_hook},
    {"WorkWithBlanksIsOneWord", "zsh", {"-work", "/usr/no such place"}, "cd '/usr/no such place'\n", ""},
    {"HostMustBeAHostName", "zsh", {"-host", "earth;reboot"}, "", ""},
    {"ErrorDropsAllOptions", "zsh", {"-host", "earth", "-work", "-closed"}, "", ""},
};

class Hook : public OrvikTest, public testing::WithParamInterface<Case> {
  protected:
    [[nodiscard]] std::string with_status(std::string text) const {
        for (std::size_t at = text.find("STATUS"); at != std::string::npos; at = text.find("STATUS")) {
            text.replace(at, std::string_view("STATUS").size(), status_path());
        }
        return text;
    }
};

TEST_P(Hook, IsTypedAndShown) {
    setup_.options = GetParam().options;
    start_with_recording_shell(GetParam().shell);
    const std::string expected = with_status(GetParam().typed) + "end\r";
    type("end\n");  // typed last, so nothing can follow unseen
    EXPECT_EQ(awaited([this] { return typed(); }, expected), expected);
    EXPECT_EQ(field(open_window("Environment Setup Window"), "Precmd:"), with_status(GetParam().precmd));
}

INSTANTIATE_TEST_SUITE_P(All, Hook, testing::ValuesIn(cases),
                         [](const testing::TestParamInfo<Case>& row) { return std::string(row.param.name); });

}  // namespace
