// SPDX-License-Identifier: MIT
#include "browsers/tree/name_pattern.h"

#include "shell/text.h"

bool NamePattern::matches(std::string_view label) const {
    const std::string shown = case_sensitive ? std::string(label) : convert_tolower(label);
    const std::string wanted = case_sensitive ? text : convert_tolower(text);
    switch (place) {
        case Place::beginning:
            return shown.starts_with(wanted);
        case Place::end:
            return shown.ends_with(wanted);
        case Place::anywhere:
            break;
    }
    return shown.find(wanted) != std::string::npos;
}
