// SPDX-License-Identifier: MIT
#include "toolkit/strip.h"

#include "toolkit/accessible_role.h"
#include "toolkit/frame.h"
#include "toolkit/text_conversion.h"

#include <QKeyEvent>
#include <QVBoxLayout>
#include <QWidget>

class StripWidget final : public QWidget {
  public:
    StripWidget(QWidget* parent, void (*leave_strip)()) : QWidget(parent), leave(leave_strip) {}

    void (*leave)();

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Escape) {
            leave();
        } else {
            QWidget::keyPressEvent(event);
        }
    }
};

Strip::Strip(Frame& parent, std::string_view accessible_name, void (*leave)())
    : widget_(new StripWidget(parent.widget(), leave)), lines_(new QVBoxLayout(widget_)) {
    constexpr int margin = 10;
    constexpr int gap = 4;
    lines_->setContentsMargins(margin, gap, margin, gap);
    lines_->setSpacing(gap);
    set_accessible_role(*widget_, QAccessible::Grouping);  // before the name: that is told to Qt's own object
    widget_->setAccessibleName(to_qstring(accessible_name));
    widget_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    widget_->setBackgroundRole(QPalette::ToolTipBase);  // it is to be noticed
    widget_->setForegroundRole(QPalette::ToolTipText);
    widget_->setAutoFillBackground(true);
    widget_->hide();
    parent.add({}, widget_, Place::line);
}

void Strip::add(std::string_view /*label*/, QWidget* control, Place /*place*/) { lines_->addWidget(control); }

void Strip::set_shown(bool shown) {
    const QWidget* const focus = widget_->window()->focusWidget();
    if (!shown && focus != nullptr && widget_->isAncestorOf(focus)) {
        widget_->leave();
    }
    widget_->setVisible(shown);
}

QWidget* Strip::widget() const { return widget_; }
