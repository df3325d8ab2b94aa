// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "ClearCase Setup": whether ClearCase is in use, and with which tool.
struct ClearCaseSetup : CommandFrame {
    ClearCaseSetup() : CommandFrame("ClearCase Setup") { config_spec_directory.set_display_length(36); }

    CheckBox enable_clearcase_usage{panel, "Enable Clearcase Usage"};
    TextField cleartool_alias{panel, "ClearTool Alias:"};
    TextField config_spec_directory{panel, "Config Spec Directory:"};
};

inline std::unique_ptr<ClearCaseSetup> Orvik_popup12;
inline ClearCaseSetup& clearcase_setup() { return *Orvik_popup12; }
