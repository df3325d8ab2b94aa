// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// Builds the database that `defaults_get_string` reads from the X server's own resources, the user's files
/// and `options`, the texts of the -xrm options. `server_resources` may be null.
void load_resource_database(const char* server_resources, const std::vector<std::string>& options);
