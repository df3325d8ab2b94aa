// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class QWidget;

/// Names a link's address in full, with control characters made visible, and opens it when the user agrees.
/// An address that is not opened (see `link_refusal`) is named with the reason. Returns at once.
void offer_link(QWidget* parent, const std::string& address);
