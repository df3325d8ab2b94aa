// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Process Information": the process this tool runs as.
struct ProcessInformation : CommandFrame {
    ProcessInformation() : CommandFrame("Process Information") { process_id.set_read_only(); }

    NumberField process_id{panel, "Process ID:"};
};

inline std::unique_ptr<ProcessInformation> Orvik_popup18;
inline ProcessInformation& process_information() { return *Orvik_popup18; }
