// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <QPointer>
#include <QWidget>

#include <string_view>

/// The left footer of the window that holds a control or a menu, as long as there is one.
class AnswerFooter {
  public:
    explicit AnswerFooter(const QWidget* control);
    void show(std::string_view text) const;

  private:
    QPointer<QWidget> frame_;
};

/// Calls a control's procedure, if it has one, and shows its answer. The one place where footers are cleared
/// and set for what controls do.
template <typename... Arguments>
void notify_from(const QWidget* control, const Procedure<Arguments...>& procedure, Arguments... arguments) {
    if (!procedure.answers()) {
        (void)procedure(arguments...);
        return;
    }
    const AnswerFooter footer(control);  // the control may go while the procedure runs
    footer.show("");
    footer.show(procedure(arguments...));
}
