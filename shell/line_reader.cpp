// SPDX-License-Identifier: MIT
#include "shell/line_reader.h"

#include "shell/foreground.h"

Reader LineReader::look(const PaneUse& use) {
    if (use.in_front) {
        return in_front(use);
    }
    return use.full_screen ? Reader::none : nested(use);
}

/// A shell with a line editor that leaves the line to the terminal is not at its prompt. Where that does not
/// show what is typed, a password is asked for.
Reader LineReader::in_front(const PaneUse& use) {
    if (use.reads_lines != use.echoes) {
        return Reader::none;
    }
    if (!use.reads_lines) {
        if (editor_.empty()) {
            editor_ = name_of_(use.group);
        }
        return Reader::shell;
    }
    return editor_.empty() || name_of_(use.group) != editor_ ? Reader::shell : Reader::working_shell;
}

/// Line editors take the terminal character by character and show them themselves. So do programs that take
/// single keys; of these, line editors differ in reading Return as it is, but for those of some shells.
Reader LineReader::nested(const PaneUse& use) const {
    if (use.reads_lines || use.echoes) {
        return Reader::none;
    }
    switch (kind_of_program(name_of_(use.group))) {
        case ProgramKind::shell:
            return Reader::near_shell;
        case ProgramKind::far_shell:
            return Reader::far_shell;
        case ProgramKind::full_screen:
            return Reader::none;
        case ProgramKind::other:
            break;
    }
    return use.translates_return ? Reader::none : Reader::line_editor;
}
