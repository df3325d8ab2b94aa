// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

class QWidget;

/// Why the address of a link in the terminal is not opened, as a sentence for the user; empty when it may be.
/// Whatever prints text can make links, so only addresses are opened that show something and start nothing:
/// web pages, mail to be written, and folders and documents on this host, whose name is `host`.
std::string link_refusal(std::string_view address, std::string_view host);

/// Names a link's address in full, with control characters made visible, and opens it when the user agrees.
/// An address that is not opened (see `link_refusal`) is named with the reason. Returns at once.
void offer_link(QWidget* parent, const std::string& address);
