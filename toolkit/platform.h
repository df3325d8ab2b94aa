// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Name and version of the library the windows are drawn with, as loaded at run time.
std::string toolkit_version();
/// Vendor, release and protocol version of the X server.
std::string x_server_version();
