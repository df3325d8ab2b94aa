// SPDX-License-Identifier: MIT
#pragma once

#include "shell/shell_family.h"

#include <string>
#include <string_view>

/// A file name that a shell or its line editor would act on. Where one runs a command, that makes a file
/// "pwned".
struct HostileName {
    std::string_view what;
    std::string name;
    unsigned holds = 0;  ///< of the following

    static constexpr unsigned script = 1;   ///< text beyond ASCII
    static constexpr unsigned control = 2;  ///< ASCII control characters
    static constexpr unsigned broken = 4;   ///< bytes that are no plain text

    /// Whether the name can be brought into a shell; that is also when it must be.
    [[nodiscard]] bool is_for(const Shell& shell) const {
        switch (shell.family) {
            case ShellFamily::bash:
            case ShellFamily::ksh:
            case ShellFamily::zsh:
                return true;
            case ShellFamily::csh:
                return (holds & broken) == 0 && (shell.utf8 || (holds & script) == 0);
            case ShellFamily::other:
                return (holds & (broken | control)) == 0 && (shell.utf8 || (holds & script) == 0);
            case ShellFamily::unknown:
                break;
        }
        return what == "ordinary" || what == "option";
    }
};

inline const HostileName hostile_names[] = {
    {"ordinary", "plain.txt"},
    {"harmless signs", "/a-b_c.d+e,f:g@h%i=j"},
    {"blank", "two words"},
    {"blank in front", " leading"},
    {"blank behind", "trailing "},
    {"apostrophe", "it's"},
    {"two apostrophes", "''"},
    {"apostrophes around", "'; touch pwned; '"},
    {"double quote", "a\"; touch pwned; \"b"},
    {"semicolon", "a;touch pwned;"},
    {"ampersand", "a&touch pwned&"},
    {"pipe", "a|touch pwned"},
    {"redirection", "a>pwned<b"},
    {"backquotes", "a`touch pwned`"},
    {"substitution", "$(touch pwned)"},
    {"variable", "${HOME}$USER"},
    {"arithmetic", "$((1+1))"},
    {"subscript", "a[$(touch pwned)]"},
    {"assignment", "a=$(touch pwned)"},
    {"ANSI quote", "$'x'"},
    {"braces", "a{b,c}d"},
    {"brackets", "a[b]c"},
    {"parentheses", "(touch pwned)"},
    {"star", "*"},
    {"question mark", "?"},
    {"tilde", "~"},
    {"comment", "#x"},
    {"caret", "^a^b"},
    {"history mark", "!!"},
    {"history mark inside", "a!b 'c"},
    {"backslash", "\\"},
    {"backslash behind", "a\\"},
    {"backslash inside", "a\\nb c"},
    {"backslash and apostrophe", "a\\';touch pwned;echo \\'"},
    {"option", "-x"},
    {"option with a blank", "-x y"},
    {"editor's command", "+!touch pwned"},
    {"command path", "=ls"},
    {"process number", "%self"},
    {"all of them", "a 'c\"d\\!f$(g)"},
    {"line feed", "a\ntouch pwned\nb", HostileName::control},
    {"backslash and line feed", "a\\\nb", HostileName::control},
    {"tab", "a\tb", HostileName::control},
    {"carriage return", "a\rtouch pwned\r", HostileName::control},
    {"cursor key", "\x1b[A", HostileName::control},
    {"kill line", "a\x15touch pwned;", HostileName::control},
    {"interrupt", "a\x03touch pwned;", HostileName::control},
    {"end of file", "a\x04", HostileName::control},
    {"literal next", "a\x16", HostileName::control},
    {"rubout", "a\x7f'", HostileName::control},
    {"first control character", "\x01", HostileName::control},
    {"accent", "caf\xC3\xA9", HostileName::script},
    {"accent and quotes", "l'\xC3\xA9t\xC3\xA9; touch pwned", HostileName::script},
    {"accent and tab", "caf\xC3\xA9\t!", HostileName::script | HostileName::control},
    {"ideograph", "\xE4\xBD\xA0 \xE5\xA5\xBD", HostileName::script},
    {"right to left", "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D x", HostileName::script},
    {"combining mark", "e\xCC\x81 x", HostileName::script},
    {"emoji", "\xF0\x9F\x98\x80 x", HostileName::script},
    {"word-deleting letters", "\xC5\x88\xC5\x88\xC5\x88;touch pwned;echo '", HostileName::script},
    {"no-break space", "a\xC2\xA0;touch pwned", HostileName::script},
    {"noncharacter", "\xEF\xBF\xBE x \"touch pwned;: \"", HostileName::broken},
    {"last noncharacter", "\xEF\xBF\xBF x \"touch pwned;: \"", HostileName::broken},
    {"private use", "\xEE\x80\xA7;touch pwned;\xEE\x80\xA7", HostileName::broken},
    {"private use alone",
     "a\xEE\x80\x95"
     "b",
     HostileName::broken},
    {"far private use", "\xF4\x80\x80\x80", HostileName::broken},
    {"C1 control character", "31m\xC2\x9B", HostileName::broken},
    {"bytes", "bad\xFF\xFE;touch pwned;", HostileName::broken},
    {"cut character", "cut\xC3", HostileName::broken},
    {"character that a blank parts", "a\xC3 \xA9", HostileName::broken},
    {"overlong apostrophe", "\xE0\x80\xA7;touch pwned;\xC0\xA7", HostileName::broken},
    {"overlong slash", "\xF0\x80\x80\xAF x", HostileName::broken},
    {"surrogate", "\xED\xA0\x80 x", HostileName::broken},
    {"beyond Unicode", "\xF4\x90\x80\x80 x", HostileName::broken},
};
