// SPDX-License-Identifier: MIT
#pragma once

class CanvasWidget;

/// Makes a canvas known to assistive tools: a tree, whose items are its nodes. An item is made when it is
/// asked for, and goes with its node.
void make_accessible(CanvasWidget& canvas);
