// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <optional>
#include <string>
#include <string_view>

/// A file of the "File List Browser", or why there is none.
struct ListedFile {
    std::string path;
    std::string name;
    Message refusal;

    explicit operator bool() const { return refusal.empty(); }
};

/// What is said where "Directory:" or "File Name:" is empty.
struct MissingTexts {
    std::string_view directory = "Directory not defined";
    std::string_view name = "File name not defined";
};

/// Whether anything has a path; a link that leads nowhere is there, too.
bool is_there(const std::string& path);

/// The name that a copy gets in a directory: the given one or, where something has it, that with "_NEW"
/// behind. Nothing where both are taken.
std::optional<std::string> name_for_copy(const std::string& directory, const std::string& name);

/// What "File Name:" stands for. A search that ignores case leaves the row it has found there in lower case:
/// that means the selected row's file, unless a file of that very name exists.
std::string listed_name();

/// The file named in the browser, by its "Directory:" and "File Name:", checked in this order.
ListedFile listed_file(const MissingTexts& missing = {});
/// The same for "Load", which asks for the name first.
ListedFile file_to_load();
