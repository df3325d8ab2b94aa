// SPDX-License-Identifier: MIT
// What start-up types into the shell, byte for byte.
#include "tests/e2e/orvik_test.h"

namespace {

const std::string csh_hook =
    R"(alias precmd 'printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n" "$prompt" "$cwd" "$HOST" "$USER"  >! STATUS')";
const std::string bash_hook =
    R"(PROMPT_COMMAND='printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n" "$PS1" "$PWD" "$HOSTNAME" "$USER" > STATUS')";

const std::string clearcase_hook =
    R"(PROMPT_COMMAND='printf "P:%s\nC:%s\nH:%s\nU:%s\nV:%s\n" "$PS1" "$PWD" "$HOSTNAME" "$USER" "$CLEARCASE_ROOT" > STATUS')";

struct Case {
    const char* name;
    std::string shell;
    std::vector<std::string> options;
    std::string typed;   ///< STATUS stands for the status file's path
    std::string precmd;  ///< what "Precmd:" shows
    std::string setup;   ///< the setup file
};

std::ostream& operator<<(std::ostream& out, const Case& row) { return out << row.name; }

const std::vector<Case> cases{
    {"Csh", "my-tcsh", {}, csh_hook + "\n", csh_hook},
    {"WorkComesBeforeTheHook",
     "csh-or-bash",
     {"-work", "/tmp"},
     "cd /tmp\n" + csh_hook + "\n" + bash_hook + "\n",
     bash_hook},
    {"HostTakesThePlaceOfWork",
     "my-ksh",
     {"-work", "/tmp", "-host", "earth"},
     bash_hook + "\nrlogin earth\n",
     bash_hook},
    {"WorkWithBlanksIsOneWord", "zsh", {"-work", "/usr/no such place"}, "cd '/usr/no such place'\n", ""},
    {"HostMustBeAHostName", "zsh", {"-host", "earth;reboot"}, "", ""},
    {"ErrorDropsAllOptions", "zsh", {"-host", "earth", "-work", "-closed"}, "", ""},
    {"ClearCase", "bash", {}, clearcase_hook + "\n", clearcase_hook, setup_text({{84, "1"}})},
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
    home_.write("Orvik.setup", GetParam().setup);
    start_with_recording_shell(GetParam().shell);
    send("end");  // behind all that waits, so nothing can follow unseen
    expect_typed(with_status(GetParam().typed) + "end\n");
    EXPECT_EQ(field(open_window("Environment Setup Window"), "Precmd:"), with_status(GetParam().precmd));
}

INSTANTIATE_TEST_SUITE_P(All, Hook, testing::ValuesIn(cases),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
