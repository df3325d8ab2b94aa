// SPDX-License-Identifier: MIT
#include "shell/shell_family.h"

#include "shell/text.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include <langinfo.h>
#include <locale.h>

ShellFamily shell_family(std::string_view path) {
    const std::string name = getfilename(path);
    constexpr std::pair<std::string_view, ShellFamily> parts[] = {{"csh", ShellFamily::csh},
                                                                  {"bash", ShellFamily::bash},
                                                                  {"ksh", ShellFamily::ksh},
                                                                  {"zsh", ShellFamily::zsh}};
    for (const auto& [part, family] : parts) {
        if (name.find(part) != std::string::npos) {
            return family;
        }
    }
    constexpr std::array plain{"sh", "dash", "ash", "busybox"};
    return std::ranges::find(plain, name) != plain.end() ? ShellFamily::other : ShellFamily::unknown;
}

bool environment_is_utf8() {
    const locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr);
    if (locale == nullptr) {
        return false;
    }
    const bool utf8 = std::string_view(nl_langinfo_l(CODESET, locale)) == "UTF-8";
    freelocale(locale);
    return utf8;
}
