// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/message_item.h"

#include <memory>

/// "Plot Setup Window": the file tree on paper.
struct PlotSetup : CommandFrame {
    static constexpr int printer = 0;  ///< of the destinations

    PlotSetup() : CommandFrame("Plot Setup Window", 2) {
        constexpr int full_scale = 2;
        scale_to.set_value(full_scale);
        plot_command.set_text("lp");
        plot.set_default();
    }

    Choice destination{panel, "Destination:", {"Printer", "File"}};
    Choice paper_format{panel, "Paper Format:", {"A4", "A3", "A2", "A1", "A0"}};
    Choice scale_to{panel, "Scale To:", {"50%", "75%", "100%", "150%", "200%"}};
    TextField file_name{panel, "File Name:", nullptr, Place::line};
    TextField plot_command{panel, "Plot Command:", nullptr, Place::line};
    Heading plot_size_heading{panel, "Plot Size [mm]"};
    Row buttons{panel, Place::field};
    Button plot{buttons, "Plot", Plot_to_file};
    Stretch behind_buttons{buttons};
    NumberField width{panel, "Width:"};
    NumberField height{panel, "Height:"};
};

inline std::unique_ptr<PlotSetup> Orvik_popup29;
inline PlotSetup& plot_setup() { return *Orvik_popup29; }
