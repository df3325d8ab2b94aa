// SPDX-License-Identifier: MIT
#include "toolkit/fields.h"

#include "toolkit/answer.h"
#include "toolkit/paste_into_line.h"
#include "toolkit/return_key.h"
#include "toolkit/text_conversion.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSpinBox>

#include <limits>
#include <utility>

/// A line edit that keeps Return to itself when it has an answer to it; else the window takes the key. What
/// it shows may stand for a name that holds characters which cannot be shown.
class LineEdit : public QLineEdit {
  public:
    LineEdit(Notify notify, QWidget* parent) : QLineEdit(parent), notify_(notify) {}

    [[nodiscard]] QString name() const { return text() == shown_ ? name_ : text(); }
    void set_name(const QString& name, const QString& shown) {
        name_ = name;
        shown_ = shown;
        if (shown != text()) {
            setText(shown);
        }
        setModified(false);
    }
    void restore() {
        setText(shown_);
        setModified(false);
    }

    void set_keys(const FieldKeys& keys) { keys_ = keys; }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (const Notify of_key = procedure_of(*event)) {
            notify_from(this, of_key);
            return;
        }
        QLineEdit::keyPressEvent(event);
        if (is_return(*event)) {
            event->setAccepted(notify_.answers());
            notify_from(this, notify_);
        }
    }

  private:
    [[nodiscard]] Notify procedure_of(const QKeyEvent& event) const {
        if ((event.modifiers() & ~Qt::KeypadModifier) != 0) {
            return {};
        }
        switch (event.key()) {
            case Qt::Key_Up:
                return keys_.up;
            case Qt::Key_Down:
                return keys_.down;
            case Qt::Key_Escape:
                return keys_.escape;
            default:
                return {};
        }
    }

    Notify notify_;
    FieldKeys keys_;
    QString name_;
    QString shown_;
};

namespace {

constexpr int usual_length = 24;  ///< characters

/// A spin box that tells of Return and of steps. Leaving it is no act: a window that is closed or taken down
/// leaves all its fields.
class SpinBox : public QSpinBox {
  public:
    SpinBox(Notify notify, QWidget* parent) : QSpinBox(parent), notify_(notify) {}

    void stepBy(int steps) override {
        QSpinBox::stepBy(steps);
        notify_from(this, notify_);
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        QSpinBox::keyPressEvent(event);
        if (is_return(*event)) {
            event->setAccepted(notify_.answers());
            notify_from(this, notify_);
        }
    }

  private:
    Notify notify_;
};

int width_of(const QWidget& widget, int characters) {
    return widget.fontMetrics().averageCharWidth() * characters;
}

}  // namespace

TextField::TextField(Container& parent, Label label, Notify notify, Place place)
    : widget_(new LineEdit(notify, parent.widget())) {
    widget_->setAccessibleName(to_qstring(label.accessible_name));
    set_display_length(usual_length);
    parent.add(label.text, widget_, place);
}

std::string TextField::text() const { return from_qstring(widget_->name()); }

void TextField::set_text(std::string_view text) { widget_->set_name(to_qstring(text), to_qstring(text)); }

void TextField::set_name(std::string_view name) {
    widget_->set_name(to_qstring(name), visible_controls(to_qstring(name)));
}

bool TextField::is_being_edited() const { return widget_->hasFocus() && widget_->isModified(); }

void TextField::restore() { widget_->restore(); }

void TextField::take_pasted_commands() { make_one_line_of_pastes(*widget_); }

void TextField::set_hint(std::string_view text) { widget_->setPlaceholderText(to_qstring(text)); }

void TextField::on_change(std::function<void()> action) {
    QObject::connect(widget_, &QLineEdit::textChanged, widget_, [action = std::move(action)] { action(); });
}

void TextField::set_keys(const FieldKeys& keys) { widget_->set_keys(keys); }

void TextField::set_focus() { widget_->setFocus(); }

void TextField::select_all() { widget_->selectAll(); }

void TextField::show_beginning() { widget_->setCursorPosition(0); }

void TextField::set_display_length(int characters) {
    widget_->setMinimumWidth(width_of(*widget_, characters));
}

void TextField::set_tool_tip(std::string_view text) {
    widget_->setToolTip(plain_tool_tip(text));
    widget_->setAccessibleDescription(visible_text(text));
}

QWidget* TextField::widget() const { return widget_; }

NumberField::NumberField(Container& parent, Label label, int initial, Notify notify)
    : widget_(new SpinBox(notify, parent.widget())) {
    widget_->setAccessibleName(to_qstring(label.accessible_name));
    widget_->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    widget_->setValue(initial);
    constexpr int digits = 8;
    const int room = width_of(*widget_, digits + 1) + widget_->sizeHint().height();
    widget_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    widget_->setFixedWidth(room);
    parent.add(label.text, widget_, Place::field);
}

int NumberField::value() const { return widget_->value(); }

void NumberField::set_value(int value) { widget_->setValue(value); }

void NumberField::on_change(std::function<void()> action) {
    QObject::connect(widget_, &QSpinBox::valueChanged, widget_, [action = std::move(action)] { action(); });
}

QWidget* NumberField::widget() const { return widget_; }

void NumberField::set_read_only() {
    widget_->setReadOnly(true);
    widget_->setButtonSymbols(QAbstractSpinBox::NoButtons);
}
