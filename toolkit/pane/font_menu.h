// SPDX-License-Identifier: MIT
#pragma once

class QMenu;
class TerminalView;

/// Fills a menu with what changes a terminal's font while the tool runs: its size, and its family.
void fill_font_menu(QMenu& menu, TerminalView& view);
