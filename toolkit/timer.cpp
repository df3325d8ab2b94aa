// SPDX-License-Identifier: MIT
#include "toolkit/timer.h"

#include "toolkit/frame.h"

#include <QTimer>
#include <QWidget>

#include <chrono>

namespace {

const QString timer_name = QStringLiteral("interval timer");

/// The frame's timer, made at first use; it ends with the frame.
QTimer& timer_of(Frame& client) {
    auto* timer = client.widget()->findChild<QTimer*>(timer_name, Qt::FindDirectChildrenOnly);
    if (timer == nullptr) {
        timer = new QTimer(client.widget());
        timer->setObjectName(timer_name);
        timer->setSingleShot(true);
        timer->setTimerType(Qt::PreciseTimer);
    }
    return *timer;
}

}  // namespace

void notify_set_itimer_func(Frame& client, void (*notify)(), const itimerval& value) {
    QTimer& timer = timer_of(client);
    timer.stop();
    timer.disconnect();
    if (notify == nullptr) {
        return;
    }
    QObject::connect(&timer, &QTimer::timeout, &timer, [notify] { notify(); });
    const auto period =
        std::chrono::seconds(value.it_value.tv_sec) + std::chrono::microseconds(value.it_value.tv_usec);
    timer.start(std::chrono::duration_cast<std::chrono::milliseconds>(period));
}

Ticker::Ticker(Frame& frame, int milliseconds, void (*notify)()) : timer_(new QTimer(frame.widget())) {
    timer_->setInterval(milliseconds);
    QObject::connect(timer_, &QTimer::timeout, timer_, [notify] { notify(); });
}

void Ticker::set_on(bool on) {
    if (on != timer_->isActive()) {
        on ? timer_->start() : timer_->stop();
    }
}
