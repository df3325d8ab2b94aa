// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/text_conversion.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <optional>
#include <string>

/// Answers notices for a test, which would wait for them otherwise.
class NoticeAnswerer {
  protected:
    /// Answers the next notice; `asked` has its texts then.
    void answer(const char* button) {
        asked.reset();
        answering_.setInterval(5);
        answering_.callOnTimeout(&answering_, [this, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) {
                return;
            }
            answering_.stop();
            answering_.disconnect();
            asked = from_qstring(box->text()) + "|" + from_qstring(box->informativeText());
            for (QAbstractButton* each : box->buttons()) {
                if (each->accessibleName() == QLatin1String(button)) {
                    each->click();
                }
            }
        });
        answering_.start();
    }

    std::optional<std::string> asked;

  private:
    QTimer answering_;
};
