// SPDX-License-Identifier: MIT
// What the command history costs its user while he types, with as many commands as can be sorted. Needs a
// display: tests/support/with_display gives it one.
#include "settings/history.h"
#include "settings/notify.h"
#include "shell/process.h"
#include "tests/support/scratch_directory.h"
#include "ui/command_history_manager.h"
#include "ui/windows.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

namespace {

constexpr int commands = 8195;

std::vector<std::string> full_history() {
    std::vector<std::string> rows;
    for (int i = 0; i < commands; ++i) {
        rows.push_back(
            fmt::format("svn commit -m 'change {}' src/module{}/file.cpp", (i * 7919) % commands, i));
    }
    return rows;
}

enum Manager { hidden, shown };

/// The windows with a full history, as the start-up leaves them, and the manager open or not.
class FullHistory : public benchmark::Fixture {
  public:
    void SetUp(const benchmark::State& state) override {
        home_dir = startup_dir = home_.path();
        create_windows();
        CommandHistorySetupInsertDup();
        list().set_rows(full_history());
        if (state.range(0) == shown) {
            command_history_manager().open();
        }
        QCoreApplication::processEvents();
    }
    void TearDown(const benchmark::State& /*state*/) override { destroy_windows(); }

  protected:
    static ScrollingList& list() { return command_history_manager().list; }
    [[nodiscard]] std::string file() const { return home_ / ".orvik-history"; }

  private:
    ScratchDirectory home_;
};

/// Record, save, and show what has changed.
BENCHMARK_DEFINE_F(FullHistory, RecordCommand)(benchmark::State& state) {
    int number = 0;
    for (auto _ : state) {
        record_command(fmt::format("make target{}", ++number));
        QCoreApplication::processEvents();
    }
}
BENCHMARK_REGISTER_F(FullHistory, RecordCommand)->Arg(hidden)->Arg(shown)->Iterations(200)->UseRealTime();

BENCHMARK_DEFINE_F(FullHistory, SaveSynced)(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(save_history(list(), file()));
    }
}
BENCHMARK_REGISTER_F(FullHistory, SaveSynced)->Arg(hidden)->UseRealTime();

BENCHMARK_DEFINE_F(FullHistory, Sort)(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        list().set_rows(full_history());
        QCoreApplication::processEvents();
        state.ResumeTiming();
        CommandHistorySort();
        QCoreApplication::processEvents();
    }
}
BENCHMARK_REGISTER_F(FullHistory, Sort)->Arg(shown)->UseRealTime();

BENCHMARK_DEFINE_F(FullHistory, Update)(benchmark::State& state) {
    (void)save_history(list(), file());
    for (auto _ : state) {
        UpdateCommandHistory();
        QCoreApplication::processEvents();
    }
}
BENCHMARK_REGISTER_F(FullHistory, Update)->Arg(shown)->UseRealTime();

}  // namespace
