// SPDX-License-Identifier: MIT
#include "toolkit/readable.h"

#include "toolkit/frame.h"

#include <QSocketNotifier>
#include <QWidget>

#include <memory>
#include <utility>

void when_readable(Frame& frame, terminal::Descriptor descriptor,
                   std::function<void(const terminal::Descriptor&)> procedure) {
    auto* const notifier = new QSocketNotifier(descriptor.get(), QSocketNotifier::Read, frame.widget());
    auto shared = std::make_shared<terminal::Descriptor>(std::move(descriptor));
    QObject::connect(notifier, &QSocketNotifier::activated, notifier,
                     [notifier, shared, procedure = std::move(procedure)] {
                         notifier->setEnabled(false);
                         notifier->deleteLater();
                         procedure(*shared);
                     });
}
