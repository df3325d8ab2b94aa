// SPDX-License-Identifier: MIT
#pragma once

#include "commands/subversion/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Checkout from Repository": a working copy, from one of three repositories.
struct CheckoutFromRepository : CommandFrame {
    CheckoutFromRepository() : CommandFrame("Checkout from Repository") {
        repository_1_url.set_display_length(48);
    }

    Choice repository{panel, "Repository", {"Repository 1", "Repository 2", "Repository 3"}};
    TextField repository_1_url{panel, "Repository 1 URL:"};
    TextField repository_2_url{panel, "Repository 2 URL:"};
    TextField repository_3_url{panel, "Repository 3 URL:"};
    TextField destination_directory{panel, "Destination Directory:"};
    TextField revision{panel, "Revision:"};
    Row buttons{panel, Place::field};
    Button checkout{buttons, "Checkout", SubversionCheckoutButton};
    Button list{buttons, "List", SubversionListButton};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<CheckoutFromRepository> Orvik_popup44;
inline CheckoutFromRepository& checkout_from_repository() { return *Orvik_popup44; }
