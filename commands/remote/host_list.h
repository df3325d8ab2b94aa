// SPDX-License-Identifier: MIT
#pragma once

#include "commands/remote/account.h"

/// The account in a row of "Remote Hosts", numbered as in "Select Host"; "My Host" has no user.
[[nodiscard]] Account listed_account(int row);
