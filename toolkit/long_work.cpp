// SPDX-License-Identifier: MIT
#include "toolkit/long_work.h"

#include "toolkit/frame.h"

#include <QKeyEvent>
#include <QTimer>
#include <QWidget>

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

#include <fmt/format.h>

namespace {

struct Shared;

}  // namespace

/// The work that a frame waits for. It is a child of the frame's widget and ends with it.
class LongWork final : public QObject {
  public:
    /// Nobody waits for the frame's work any longer; the footer is as before.
    static void forget(const Frame& frame);
    /// Null when there is none.
    static LongWork* of(const Frame& frame);

    LongWork(Frame& frame, std::string_view items_label, std::function<void()> done);
    ~LongWork() override;
    /// Escape, wherever in the frame the keyboard is.
    bool eventFilter(QObject* watched, QEvent* event) override;

    void start_thread(std::function<void(Progress&)> work);
    void show_count();
    void finish();
    [[nodiscard]] const std::string& items_label() const { return items_label_; }
    [[nodiscard]] bool is_over_within(std::chrono::milliseconds limit) const;

  private:
    void restore_footer();
    void stop();
    void show(std::string text);

    Frame& frame_;
    BusyState busy_;
    std::string items_label_;
    std::string footer_before_;
    std::string footer_;  ///< ours
    std::int64_t shown_items_ = 0;
    std::function<void()> done_;
    std::shared_ptr<Shared> shared_;
    QTimer count_timer_;  ///< the next count is shown when it has run down
};

namespace {

constexpr int footer_interval_milliseconds = 100;
const QString object_name = QStringLiteral("long work");

/// The threads at work. It outlives them all, also such as the system holds until the process is gone.
struct Threads {
    std::mutex mutex;
    std::condition_variable ended;
    int count = 0;
};

Threads& threads() {
    static Threads& all = *new Threads;
    return all;
}

/// What the thread and the waiting frame share.
struct Shared : std::enable_shared_from_this<Shared> {
    std::mutex mutex;
    QWidget* frame = nullptr;  ///< nullptr when nobody waits any more
    LongWork* work = nullptr;  ///< the same for the event loop's thread
    bool is_over = false;
    std::condition_variable over;
    Progress progress{[this] { tell(&LongWork::show_count); }};

    /// Has the event loop call a function of the work, while somebody waits for it.
    void tell(void (LongWork::*function)());
};

void Shared::tell(void (LongWork::*function)()) {
    const auto call = [function, shared = shared_from_this()] {
        if (shared->work != nullptr) {
            (shared->work->*function)();
        }
    };
    const std::lock_guard lock(mutex);
    if (frame != nullptr) {
        QMetaObject::invokeMethod(frame, call, Qt::QueuedConnection);
    }
}

/// The thread. What it holds is gone before it counts as ended.
void run(std::shared_ptr<Shared> shared, std::function<void(Progress&)> work) {
    work(shared->progress);
    work = nullptr;
    {
        const std::lock_guard lock(shared->mutex);
        shared->is_over = true;
    }
    shared->over.notify_all();
    shared->tell(&LongWork::finish);
    shared.reset();
    const std::lock_guard lock(threads().mutex);
    --threads().count;
    threads().ended.notify_all();
}

}  // namespace

LongWork* LongWork::of(const Frame& frame) {
    return static_cast<LongWork*>(
        frame.widget()->findChild<QObject*>(object_name, Qt::FindDirectChildrenOnly));
}

void LongWork::forget(const Frame& frame) {
    if (LongWork* const work = of(frame)) {
        work->restore_footer();
        delete work;
    }
}

LongWork::LongWork(Frame& frame, std::string_view items_label, std::function<void()> done)
    : QObject(frame.widget()),
      frame_(frame),
      busy_(frame),
      items_label_(items_label),
      done_(std::move(done)),
      shared_(std::make_shared<Shared>()) {
    setObjectName(object_name);
    shared_->frame = frame.widget();
    shared_->work = this;
    frame.widget()->installEventFilter(this);
    count_timer_.setSingleShot(true);
    count_timer_.setInterval(footer_interval_milliseconds);
    connect(&count_timer_, &QTimer::timeout, [this] {
        shared_->progress.told();
        if (shared_->progress.items() != shown_items_) {
            show_count();
        }
    });
}

LongWork::~LongWork() {
    shared_->progress.stop();
    shared_->work = nullptr;
    const std::lock_guard lock(shared_->mutex);
    shared_->frame = nullptr;
}

bool LongWork::eventFilter(QObject* /*watched*/, QEvent* event) {
    const bool escape =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (escape) {
        stop();
    }
    return escape;
}

void LongWork::start_thread(std::function<void(Progress&)> work) {
    {
        const std::lock_guard lock(threads().mutex);
        ++threads().count;
    }
    try {
        std::thread(run, shared_, work).detach();
    } catch (const std::system_error&) {  // the system has no thread left
        run(shared_, std::move(work));
    }
}

void LongWork::restore_footer() {
    if (!footer_.empty() && frame_.right_footer() == footer_) {
        frame_.set_right_footer(footer_before_);
    }
}

void LongWork::show(std::string text) {
    if (footer_.empty()) {
        footer_before_ = frame_.right_footer();
    }
    footer_ = std::move(text);
    frame_.set_right_footer(footer_);
}

void LongWork::show_count() {
    if (!shared_->progress.stopping()) {
        shown_items_ = shared_->progress.items();
        show(fmt::format("{}: {}", items_label_, shown_items_));
        count_timer_.start();
    }
}

void LongWork::stop() {
    if (!shared_->progress.stopping()) {
        shared_->progress.stop();
        show("Stopping... (Escape: don't wait)");
        return;
    }
    Frame& frame = frame_;
    forget(frame);  // and with it this
    frame.set_left_footer("Not waited for any longer");
}

void LongWork::finish() {
    const std::function<void()> done = std::move(done_);
    forget(frame_);  // and with it this
    done();
}

bool LongWork::is_over_within(std::chrono::milliseconds limit) const {
    std::unique_lock lock(shared_->mutex);
    return shared_->over.wait_for(lock, limit, [this] { return shared_->is_over; });
}

void start_work(Frame& frame, std::string_view items_label, std::function<void(Progress&)> work,
                std::function<void()> done) {
    LongWork::forget(frame);
    auto* const waiting = new LongWork(frame, items_label, std::move(done));
    waiting->start_thread(std::move(work));
}

void await_work(Frame& frame, std::chrono::milliseconds limit) {
    LongWork* const work = LongWork::of(frame);
    if (work != nullptr && work->is_over_within(limit)) {
        work->finish();
    }
}

bool waits_for_work(const Frame& frame, std::string_view items_label) {
    const LongWork* const work = LongWork::of(frame);
    return work != nullptr && work->items_label() == items_label;
}

void await_stopped_work(std::chrono::milliseconds limit) {
    std::unique_lock lock(threads().mutex);
    (void)threads().ended.wait_for(lock, limit, [] { return threads().count == 0; });
}
