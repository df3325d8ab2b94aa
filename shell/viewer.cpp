// SPDX-License-Identifier: MIT
#include "shell/viewer.h"

#include "shell/background.h"
#include "shell/command_line.h"
#include "shell/editor.h"
#include "shell/program_variable.h"

#include <array>

namespace {

/// How a file is opened: the words before its name, how that is written, and the options behind it.
struct Opening {
    Words words;
    CommandLine& (CommandLine::*put)(std::string_view);
    const char* program = nullptr;  ///< the variable that stands for the program itself
    void (*options)(CommandLine& line) = nullptr;
};

/// In the order of `Viewer`. A variable behind "open -a" may be unset: "open" then asks the desktop.
constexpr std::array<Opening, 8> openings{{
    {"shelltool -c less", &CommandLine::path, nullptr, textedit_command},
    {"$OPENFRAME", &CommandLine::path, "OPENFRAME"},
    {"open -a $OPENPDF", &CommandLine::double_quoted},
    {"open -a $OPENOFFICE", &CommandLine::double_quoted},
    {"open -a $OPENHTML", &CommandLine::double_quoted},
    {"open -a $OPENJPG", &CommandLine::double_quoted},
    {"open -a $OPENSGML", &CommandLine::path},
    {"zebra", &CommandLine::path},
}};

}  // namespace

Message view_file(Viewer viewer, const std::string& path) {
    const Opening& opening = openings.at(static_cast<std::size_t>(viewer));
    if (opening.program != nullptr) {
        Message refusal = unset_program(opening.program);
        if (!refusal.empty()) {
            return refusal;
        }
    }
    CommandLine line(opening.words);
    (line.*opening.put)(path);
    if (opening.options != nullptr) {
        opening.options(line);
    }
    run_in_background(line);
    return {};
}
