// SPDX-License-Identifier: MIT
#include "app/kept_keys.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <sstream>

namespace {

using terminal::Key;

struct NamedKey {
    std::string_view name;
    Key key;
};

constexpr std::array named_keys{
    NamedKey{"Insert", Key::insert}, NamedKey{"Up", Key::up},       NamedKey{"Down", Key::down},
    NamedKey{"Left", Key::left},     NamedKey{"Right", Key::right}, NamedKey{"F1", Key::f1},
    NamedKey{"F2", Key::f2},         NamedKey{"F3", Key::f3},       NamedKey{"F4", Key::f4},
    NamedKey{"F5", Key::f5},         NamedKey{"F6", Key::f6},       NamedKey{"F7", Key::f7},
    NamedKey{"F8", Key::f8},         NamedKey{"F9", Key::f9},
};

bool is_control_name(std::string_view name) {
    return name.size() == 2 && name.front() == '^' && std::isalpha(static_cast<unsigned char>(name[1])) != 0;
}

}  // namespace

KeptKeys::KeptKeys(std::string_view list) {
    std::istringstream names{std::string(list)};
    for (std::string name; names >> name;) {
        const auto* const known = std::ranges::find(named_keys, name, &NamedKey::name);
        if (known != named_keys.end()) {
            keys_.push_back({.key = known->key});
        } else if (is_control_name(name)) {
            const int letter = std::tolower(static_cast<unsigned char>(name[1]));
            keys_.push_back({.letter = static_cast<char>(letter)});
        } else {
            unknown_ += (unknown_.empty() ? "" : " ") + name;
        }
    }
}

bool KeptKeys::holds(const KeyEvent& event) const {
    return std::ranges::any_of(keys_, [&](const KeptKey& kept) {
        return kept.key == Key::none ? event.is_control(kept.letter) : event.key == kept.key;
    });
}
