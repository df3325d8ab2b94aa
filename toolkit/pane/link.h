// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Why the address of a link in the terminal is not opened, as a sentence for the user; empty when it may be.
/// Whatever prints text can make links, so only addresses are opened that show something and start nothing:
/// web pages, mail to be written, and folders and documents on this host, whose name is `host`.
std::string link_refusal(std::string_view address, std::string_view host);

/// Gives the address to the desktop's own opener (xdg-open), as one argument and without a shell. What
/// becomes of it is not watched. False when the opener cannot be started.
[[nodiscard]] bool open_link(std::string_view address);
