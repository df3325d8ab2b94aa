// SPDX-License-Identifier: MIT
// Working in the "File List Browser" on as large a directory as it lists: each until the window is painted.
// Needs a display: tests/support/with_display gives it one.
#include "browsers/listing.h"
#include "browsers/notify.h"
#include "tests/support/scratch_directory.h"
#include "tests/support/wait_until.h"
#include "ui/file_list_browser.h"
#include "ui/windows.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

namespace {

constexpr int most_files = 9997;

/// The browser on a directory of so many files.
class LargeList {
  public:
    explicit LargeList(int files) {
        create_windows();
        for (int i = 0; i < files; ++i) {
            directory_.write(fmt::format("{}some file {:04}.cpp", i % 2 == 0 ? "A" : "b", i), "");
        }
        file_list_browser().open();
        file_list_browser().directory.set_text(directory_.path().string());
        (void)FileListBrowserDirectory();
        (void)wait_until([] { return !file_list_browser().right_footer().empty(); }, patience,
                         [] { QCoreApplication::processEvents(); });
    }
    ~LargeList() { destroy_windows(); }

  private:
    ScratchDirectory directory_;
};

template <typename Step>
void measure(benchmark::State& state, Step step) {
    const LargeList list(most_files);
    for (auto _ : state) {
        step();
        QCoreApplication::processEvents();
    }
}

/// The whole list is searched, regardless of case, for its last row.
void Find(benchmark::State& state) {
    measure(state, [] {
        file_list_browser().list.clear_selection();
        file_list_browser().text.set_text("BSOME FILE 9995");
        (void)FileListBrowserFind();
    });
}
BENCHMARK(Find)->UseRealTime()->Unit(benchmark::kMillisecond);

void Filter(benchmark::State& state) {
    measure(state, [] {
        file_list_browser().display_files.set_value(2);
        file_list_browser().text_string.set_text("99");
        (void)FileListBrowserFilter();
    });
}
BENCHMARK(Filter)->UseRealTime()->Unit(benchmark::kMillisecond);

/// From the last row of those that begin with "A" to the first with "b", over 5,000 rows.
void JumpByKey(benchmark::State& state) {
    measure(state, [] {
        auto* view = file_list_browser().widget()->findChild<QAbstractItemView*>();
        file_list_browser().list.select(1);
        QKeyEvent key(QEvent::KeyPress, Qt::Key_B, {}, "b");
        QCoreApplication::sendEvent(view, &key);
    });
}
BENCHMARK(JumpByKey)->UseRealTime()->Unit(benchmark::kMillisecond);

/// A directory that is not listed since it holds too much.
void RefuseAMillion(benchmark::State& state) {
    const ScratchDirectory million;
    for (int i = 0; i < 1'000'000; ++i) {
        million.write(std::to_string(i), "");
    }
    for (auto _ : state) {
        if (scan_directory(million.path()).result != SCAN_TOO_MANY) {
            state.SkipWithError("listed");
        }
    }
}
BENCHMARK(RefuseAMillion)->UseRealTime()->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace
