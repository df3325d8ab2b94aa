// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/message_item.h"

#include <memory>

/// "Plot Setup Window": the file tree on paper.
struct PlotSetup : CommandFrame {
    PlotSetup() : CommandFrame("Plot Setup Window", 2) {
        constexpr int full_scale = 2;
        scale_to.set_value(full_scale);
        plot_command.set_text("lp");
    }

    Choice destination{panel, "Destination:", {"Printer", "File"}};
    Choice paper_format{panel, "Paper Format:", {"A4", "A3", "A2", "A1", "A0"}};
    Choice scale_to{panel, "Scale To:", {"50%", "75%", "100%", "150%", "200%"}};
    TextField file_name{panel, "File Name:", nullptr, Place::line};
    TextField plot_command{panel, "Plot Command:", nullptr, Place::line};
    Heading plot_size_heading{panel, "Plot Size [mm]"};
    NumberField width{panel, "Width:"};
    NumberField height{panel, "Height:"};
};

inline std::unique_ptr<PlotSetup> Orvik_popup29;
inline PlotSetup& plot_setup() { return *Orvik_popup29; }
