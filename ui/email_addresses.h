// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/choices.h"
#include "toolkit/frame.h"
#include "toolkit/scrolling_list.h"

#include <memory>

/// "Email Addresses": the addresses that letters go to.
struct EmailAddresses : CommandFrame {
    EmailAddresses() : CommandFrame("Email Addresses") { list.set_display_size(48, 16); }

    Choice add_to{panel, "Add To", {"To", "Cc"}};
    ScrollingList list{panel, "Email Addresses list"};
};

inline std::unique_ptr<EmailAddresses> Orvik_popup39;
inline EmailAddresses& email_addresses() { return *Orvik_popup39; }
