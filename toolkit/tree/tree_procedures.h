// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

class TreeCanvas;

/// What the canvas calls when its user has acted; the selection is what it is to be by then.
struct TreeProcedures {
    Notify click;         ///< a click or Space on a node has changed the selection
    Notify double_click;  ///< of a node, or Return on the current one
    Notify selection;     ///< the selection has changed in any way; called before the others
    Notify refresh;       ///< F5
    Notify rename;        ///< F2
    Notify remove;        ///< Delete
    Procedure<TreeCanvas&, int, int> resize;  ///< another width and height of the view, in pixels
};
