// SPDX-License-Identifier: MIT
#pragma once

/// A notify procedure: what a control calls when its user has acted on it. It reads the controls it needs
/// through the windows' accessors; nothing is passed.
using Notify = void (*)();
