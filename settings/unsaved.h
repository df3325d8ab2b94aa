// SPDX-License-Identifier: MIT
#pragma once

/// From now on the right footer of each setup window tells when what it holds is not in the setup file. What
/// it holds now counts as saved.
void watch_setup_windows();
/// The settings have just been saved, or loaded.
void note_settings_saved();
/// Whether one of those windows holds something that is not saved yet.
[[nodiscard]] bool has_unsaved_settings();
