// SPDX-License-Identifier: MIT
#pragma once

#include "app/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/text_pane.h"

#include <memory>

/// "Notebook": text that the user keeps.
struct Notebook : CommandFrame {
    Notebook() : CommandFrame("Notebook") {
        save.set_default();
        file_name.set_text("notebook.txt");
        text.set_display_size(72, 20);
    }

    Row buttons{panel};
    Button save{buttons, "Save", NotebookSave};
    Button load{buttons, "Load", NotebookLoad};
    Button print{buttons, "Print", NotebookPrint};
    Button clear{buttons, "Clear", NotebookClear};
    Stretch stretch{buttons};
    TextField file_name{panel, "File Name:"};
    TextPane text{panel, "Notebook text"};
};

inline std::unique_ptr<Notebook> Orvik_popup16;
inline Notebook& notebook() { return *Orvik_popup16; }
