// SPDX-License-Identifier: MIT
#pragma once

#include "commands/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Pack / Unpack Using Tar": archives of the selected files.
struct PackUnpackTar : CommandFrame {
    PackUnpackTar() : CommandFrame("Pack / Unpack Using Tar") { tar_file.set_display_length(40); }

    Choice file_names{panel, "File Names", {"Relative", "Absolute"}};
    Row buttons{panel};
    Button get_destination{buttons, "Get Destination", PackUnpackGetDestDir};
    Button pack{buttons, "Pack", MakeTarFileRun};
    Button unpack{buttons, "Unpack", PackUnpackUsingTarUnpack};
    Button gzip{buttons, "Gzip", PackUnpackGzip};
    Button gunzip{buttons, "Gunzip", PackUnpackGunzip};
    Stretch behind_buttons{buttons};
    TextField tar_file{panel, "Tar File:"};
    TextField destination_dir{panel, "Destination Dir:"};
};

inline std::unique_ptr<PackUnpackTar> Orvik_popup37;
inline PackUnpackTar& pack_unpack_tar() { return *Orvik_popup37; }
