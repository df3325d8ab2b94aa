// SPDX-License-Identifier: MIT
#pragma once

#include "commands/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/frame.h"
#include "toolkit/scrolling_list.h"

#include <memory>

/// "Email Addresses": the addresses that letters go to.
struct EmailAddresses : CommandFrame {
    EmailAddresses() : CommandFrame("Email Addresses") {
        list.set_insert_duplicates(Duplicates::refused);
        list.set_display_size(48, 16);
    }

    Row buttons{panel};
    Button edit{buttons, "Edit", EmailAddressesEdit};
    Button load{buttons, "Load", EmailAddressesLoad};
    Button save{buttons, "Save", EmailAddressesSave};
    Button sort{buttons, "Sort", EmailAddressesSort};
    Stretch behind_buttons{buttons};
    Choice add_to{panel, "Add To", {"To", "Cc"}};
    ScrollingList list{panel, "Email Addresses list", EmailaAddressesList};
};

inline std::unique_ptr<EmailAddresses> Orvik_popup39;
inline EmailAddresses& email_addresses() { return *Orvik_popup39; }
