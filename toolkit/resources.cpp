// SPDX-License-Identifier: MIT
#include "toolkit/resources.h"

#include "toolkit/resource_database.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>

#include <X11/Xlib.h>
#include <X11/Xresource.h>
#include <strings.h>
#include <unistd.h>

namespace {

XrmDatabase database = nullptr;

std::string in_home(const std::string& name) {
    const char* home = std::getenv("HOME");
    return home == nullptr ? std::string() : std::string(home) + "/" + name;
}

/// The file of the user's resources for this host (Xlib, section 15.2).
std::string environment_file() {
    if (const char* named = std::getenv("XENVIRONMENT")) {
        return named;
    }
    std::array<char, 256> host{};
    gethostname(host.data(), host.size() - 1);
    return in_home(std::string(".Xdefaults-") + host.data());
}

void merge_file(const std::string& path) {
    if (!path.empty()) {
        XrmCombineFileDatabase(path.c_str(), &database, True);
    }
}

}  // namespace

void load_resource_database(const char* server_resources, const std::vector<std::string>& options) {
    XrmInitialize();
    if (database != nullptr) {
        XrmDestroyDatabase(database);
        database = nullptr;
    }
    if (server_resources != nullptr) {
        database = XrmGetStringDatabase(server_resources);
    } else {
        merge_file(in_home(".Xdefaults"));
    }
    merge_file(environment_file());
    for (const std::string& option : options) {
        XrmPutLineResource(&database, option.c_str());
    }
}

std::string defaults_get_string(std::string_view name, std::string_view class_name,
                                std::string_view fallback) {
    char* type = nullptr;
    XrmValue value{};
    if (database == nullptr || XrmGetResource(database, std::string(name).c_str(),
                                              std::string(class_name).c_str(), &type, &value) == False) {
        return std::string(fallback);
    }
    return value.addr;
}

bool defaults_get_boolean(std::string_view name, std::string_view class_name) {
    const std::string text = defaults_get_string(name, class_name, "");
    return std::ranges::any_of(std::array{"true", "yes", "on", "1"},
                               [&text](const char* word) { return strcasecmp(text.c_str(), word) == 0; });
}

int defaults_get_integer(std::string_view name, std::string_view class_name, int fallback) {
    const std::string text = defaults_get_string(name, class_name, "");
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? number : fallback;
}
