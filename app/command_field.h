// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

class TextField;

/// Sends the command in a field and files it; or returns why it was not sent.
[[nodiscard]] Message send_command_field(TextField& field);
