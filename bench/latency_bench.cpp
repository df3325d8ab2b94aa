// SPDX-License-Identifier: MIT
// From a key press to its painted echo: a real window, a real pty and a program that answers each key. Needs
// a display: tests/support/with_display gives it one.
#include "bench/floods.h"
#include "tests/support/scratch_directory.h"
#include "toolkit/pane/pane.h"
#include "toolkit/pane/view.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTest>
#include <QVBoxLayout>

#include <algorithm>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <xcb/xcb.h>

namespace {

constexpr int presses = 200;
constexpr int wait_milliseconds = 5'000;

// Answers each key with it, and by hiding or showing the cursor: that is how the answer is told from the
// flood. What the terminal itself answers to queries holds no "x".
constexpr const char* answering_program =
    "exec perl -e '$|=1; while (sysread(STDIN, $key, 1)) "
    "{ next if $key ne \"x\"; $hidden = !$hidden; syswrite(STDOUT, ($hidden ? \"\\e[?25l\" : \"\\e[?25h\") . "
    "$key); }'";

/// A terminal pane in a window of its own, and when it was painted last.
class Typist : public QObject {
  public:
    Typist() {
        auto* layout = new QVBoxLayout(&window_);
        layout->addWidget(pane_.widget());
        window_.resize(800, 600);
        window_.show();
        (void)QTest::qWaitForWindowActive(&window_);
        pane_.set_focus();
        view_->installEventFilter(this);
    }

    /// Gives the window another size, as its user does who drags its corner.
    void resize(int step) { window_.resize(600 + step * 37 % 400, 400 + step * 23 % 300); }
    void start(const std::string& script) {
        pane_.start({"/bin/sh", {"sh", "-c", script}, {"PATH=/usr/bin:/bin", "TERM=xterm"}, "/"});
    }
    [[nodiscard]] bool wait_for_rows(terminal::RowId count) const {
        return QTest::qWaitFor([&] { return view_->terminal().end_row() > count; }, wait_milliseconds);
    }

    /// Milliseconds from the key to when the X server has painted the answer; negative when there is none.
    double press() {
        const bool before = view_->terminal().cursor().visible;
        painted_answer_ = false;
        answer_ = !before;
        QElapsedTimer clock;
        clock.start();
        QTest::sendKeyEvent(QTest::Press, view_, Qt::Key_X, QStringLiteral("x"), Qt::NoModifier);
        while (!painted_answer_ && clock.elapsed() < wait_milliseconds) {
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        }
        synchronize();
        return painted_answer_ ? static_cast<double>(clock.nsecsElapsed()) / 1e6 : -1;
    }

  private:
    /// The event comes before the painting, which the same turn of the event loop does.
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && view_->terminal().cursor().visible == answer_) {
            painted_answer_ = true;
        }
        return QObject::eventFilter(object, event);
    }
    static void synchronize() {
        auto* const connection = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
        std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    }

    QWidget window_;
    TerminalPane pane_{&window_, "terminal"};
    TerminalView* view_ = dynamic_cast<TerminalView*>(pane_.widget()->focusProxy());
    bool painted_answer_ = false;
    bool answer_ = false;
};

enum class Window : std::uint8_t { stays, is_resized };

void press_keys(benchmark::State& state, Typist& typist, Window window = Window::stays) {
    constexpr int pause_milliseconds = 30;
    std::vector<double> times;
    for (auto _ : state) {
        QTest::qWait(pause_milliseconds + static_cast<int>(times.size() % 17));  // any place within a frame
        if (window == Window::is_resized) {
            typist.resize(static_cast<int>(times.size()));
        }
        const double time = typist.press();
        if (time < 0) {
            return state.SkipWithError("a key was not answered");
        }
        times.push_back(time);
        state.SetIterationTime(time / 1e3);
    }
    std::ranges::sort(times);
    const auto at = [&times](double part) {
        return times[static_cast<std::size_t>(part * static_cast<double>(times.size() - 1))];
    };
    state.counters["median_ms"] = at(0.5);
    state.counters["p95_ms"] = at(0.95);
    state.counters["p99_ms"] = at(0.99);
    state.counters["worst_ms"] = times.back();
}

void key_to_echo_idle(benchmark::State& state) {
    Typist typist;
    typist.start(std::string("seq 100; stty raw -echo; ") + answering_program);
    if (!typist.wait_for_rows(100)) {
        return state.SkipWithError("the program did not start");
    }
    press_keys(state, typist);
}

/// Each key comes with another size of the window, whose scrollback is full of lines to be broken anew.
void key_to_echo_while_resized(benchmark::State& state) {
    Typist typist;
    typist.start(
        std::string(
            "seq -f '%09.0f the quick brown fox jumps over the lazy dog and runs away from it' 12000; "
            "stty raw -echo; ") +
        answering_program);
    if (!typist.wait_for_rows(12'000)) {
        return state.SkipWithError("the program did not start");
    }
    press_keys(state, typist, Window::is_resized);
}

/// While another program shows a large file over and over in the same terminal.
void key_to_echo_in_a_flood(benchmark::State& state, std::string (*line)(int)) {
    const ScratchDirectory directory;
    std::string text;
    for (int number = 0; text.size() < 32'000'000; ++number) {
        text += line(number);
    }
    directory.write("large", text);
    Typist typist;
    typist.start("stty raw -echo; while :; do cat " + (directory / "large").string() + "; done & " +
                 answering_program);
    if (!typist.wait_for_rows(10'000)) {
        return state.SkipWithError("nothing floods in");
    }
    press_keys(state, typist);
}

}  // namespace

BENCHMARK(key_to_echo_idle)->UseManualTime()->Iterations(presses)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(key_to_echo_in_a_flood, coloured, coloured_line)
    ->UseManualTime()
    ->Iterations(presses)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(key_to_echo_in_a_flood, clusters, line_of_clusters)
    ->UseManualTime()
    ->Iterations(presses)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(key_to_echo_in_a_flood, repeated, repeated_character)
    ->UseManualTime()
    ->Iterations(presses)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(key_to_echo_in_a_flood, queries, line_of_queries)
    ->UseManualTime()
    ->Iterations(presses)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(key_to_echo_while_resized)->UseManualTime()->Iterations(presses)->Unit(benchmark::kMillisecond);
