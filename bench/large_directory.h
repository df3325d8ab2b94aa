// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/scratch_directory.h"

#include <benchmark/benchmark.h>

/// One less than what the browsers take at most.
inline constexpr int most_files = 9997;

/// A directory with so many files, whose names come in no order.
const ScratchDirectory& large_directory();

/// The peer: `ls -lU` of it.
void ListWithLs(benchmark::State& state);
