// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

#include <string_view>

/// The picture of that name from the picture directory.
QIcon button_picture(std::string_view name);
