// SPDX-License-Identifier: MIT
#include "shell/shell_family.h"

#include "shell/text.h"

#include <algorithm>
#include <array>
#include <string>

#include <langinfo.h>
#include <locale.h>

ShellFamily shell_family(std::string_view path) {
    const std::string name = getfilename(path);
    const auto named = [&](std::string_view part) { return name.find(part) != std::string::npos; };
    if (named("csh")) {
        return ShellFamily::csh;
    }
    if (named("bash") || named("ksh")) {
        return ShellFamily::bash;
    }
    if (named("zsh")) {
        return ShellFamily::zsh;
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
