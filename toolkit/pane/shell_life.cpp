// SPDX-License-Identifier: MIT
#include "toolkit/pane/shell_life.h"

#include <csignal>
#include <cstring>
#include <utility>

#include <fmt/format.h>
#include <sys/wait.h>

namespace {

constexpr int readiness_interval_milliseconds = 10;

/// Names from the C library, without the "SIG" before them.
std::string end_text(int status) {
    constexpr std::string_view hint = "press Return to start a new one";
    if (WIFSIGNALED(status)) {
        const char* const name = sigabbrev_np(WTERMSIG(status));
        const std::string signal =
            name != nullptr ? fmt::format("SIG{}", name) : fmt::format("{}", WTERMSIG(status));
        return fmt::format("[shell ended by signal {}; {}]", signal, hint);
    }
    return fmt::format("[shell ended with status {}; {}]", WEXITSTATUS(status), hint);
}

}  // namespace

ShellLife::ShellLife(Events events)
    : events_(std::move(events)), readiness_({.use = [this] { return stream_->pty().use(); }}) {
    readiness_timer_.setInterval(readiness_interval_milliseconds);
    QObject::connect(&readiness_timer_, &QTimer::timeout, [this] { watch_readiness(); });
}

void ShellLife::start(const terminal::Program& program, const Room& room,
                      std::unique_ptr<terminal::Pty> started) {
    program_ = program;
    run(room, std::move(started));
}

void ShellLife::restart(const Room& room) {
    run(room, {});
    if (state_ == State::starting) {
        events_.restarted();
    }
}

void ShellLife::run(const Room& room, std::unique_ptr<terminal::Pty> pty) {
    if (!program_) {
        return;
    }
    drop_stream();
    std::string error;
    if (!pty) {
        pty = terminal::Pty::start(*program_, room.size, error);
    }
    if (!pty) {
        return finish(fmt::format("[shell can't be started: {}; press Return to try again]", error));
    }
    open(std::move(pty));
    resize(room);
    state_ = State::starting;
    readiness_.shell_started(stream_->pty().child());
    readiness_timer_.start();
}

void ShellLife::open(std::unique_ptr<terminal::Pty> pty) {
    if (pty->exit_descriptor() >= 0) {
        exited_ = std::make_unique<QSocketNotifier>(pty->exit_descriptor(), QSocketNotifier::Read);
        QObject::connect(exited_.get(), &QSocketNotifier::activated, [this] { check_for_end(); });
    }
    stream_ = std::make_unique<PtyStream>(
        std::move(pty),
        PtyStream::Events{.output = events_.output,
                          .slice_read =
                              [this] {
                                  readiness_.output_came();
                                  events_.slice_read();
                              },
                          .hung_up = [this] { check_for_end(); },
                          .last_words_read = [this] { finish(end_text(*stream_->pty().exit_status())); }});
}

/// May be called by what is dropped: that is destroyed later.
void ShellLife::drop_stream() {
    readiness_timer_.stop();
    if (exited_) {
        exited_->setEnabled(false);
        exited_.release()->deleteLater();
    }
    if (stream_) {
        stream_->close();
        stream_.release()->deleteLater();
    }
}

void ShellLife::resize(const Room& room) {
    if (stream_) {
        stream_->pty().resize(room.size, room.pixel_width, room.pixel_height);
    }
}

void ShellLife::type(std::string_view bytes) {
    if (stream_) {
        stream_->type(bytes);
    }
}

void ShellLife::report(std::string_view bytes) {
    if (stream_) {
        stream_->write(bytes);
    }
}

void ShellLife::watch_readiness() {
    if (!readiness_.start_up_is_over()) {
        return;
    }
    readiness_timer_.stop();
    state_ = State::running;
    events_.ready();
}

void ShellLife::check_for_end() {
    if (stream_ && stream_->pty().exit_status()) {
        if (exited_) {
            exited_->setEnabled(false);
        }
        stream_->read_last_words();
    }
}

void ShellLife::finish(const std::string& announcement) {
    state_ = State::ended;
    drop_stream();
    events_.ended(announcement);
}
