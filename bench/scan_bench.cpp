// SPDX-License-Identifier: MIT
// What listing a large directory costs, beside `ls -lU` on the same one. Needs a display:
// tests/support/with_display gives it one.
#include "bench/large_directory.h"
#include "browsers/file_list.h"
#include "ui/file_list_browser.h"
#include "ui/windows.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdlib>
#include <random>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

namespace {

/// Read, sort, fill the list of the open browser, and paint.
void ListInTheBrowser(benchmark::State& state) {
    create_windows();
    file_list_browser().open();
    QCoreApplication::processEvents();
    ScrollingList& list = file_list_browser().list;
    for (auto _ : state) {
        const ScanResult result = add_name_to_list(list, scan_directory(large_directory().path()));
        QCoreApplication::processEvents();
        if (result != SCAN_OK || list.rows() != most_files + 1) {
            state.SkipWithError("the directory could not be listed");
        }
    }
    destroy_windows();
}
BENCHMARK(ListInTheBrowser)->UseRealTime()->Unit(benchmark::kMillisecond);

/// The window's answer to its user right after: the next row selected and painted.
void AnswerAfterListing(benchmark::State& state) {
    create_windows();
    file_list_browser().open();
    for (auto _ : state) {
        state.PauseTiming();
        (void)add_name_to_list(file_list_browser().list, scan_directory(large_directory().path()));
        state.ResumeTiming();
        file_list_browser().list.select(1);
        QCoreApplication::processEvents();
    }
    destroy_windows();
}
BENCHMARK(AnswerAfterListing)->UseRealTime()->Unit(benchmark::kMillisecond);

enum Order { sorted, reversed, organ_pipe, shuffled };

/// Long equal beginnings, in orders that make simple sorts slow.
void SortNames(benchmark::State& state) {
    std::vector<std::string> names;
    for (int i = 0; i < most_files; ++i) {
        names.push_back(fmt::format("{}{:05}", std::string(200, 'x'), i));
    }
    switch (state.range(0)) {
        case reversed:
            std::ranges::reverse(names);
            break;
        case organ_pipe:
            std::ranges::reverse(names.begin() + most_files / 2, names.end());
            break;
        case shuffled:
            std::ranges::shuffle(names, std::mt19937(1));
            break;
        default:
            break;
    }
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<std::string> copy = names;
        state.ResumeTiming();
        quicksort(copy);
    }
}
BENCHMARK(SortNames)
    ->Arg(sorted)
    ->Arg(reversed)
    ->Arg(organ_pipe)
    ->Arg(shuffled)
    ->Unit(benchmark::kMillisecond);

}  // namespace
