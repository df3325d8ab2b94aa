// SPDX-License-Identifier: MIT
#include "toolkit/buttons.h"

#include "toolkit/answer.h"
#include "toolkit/button_picture.h"
#include "toolkit/mnemonics.h"
#include "toolkit/text_conversion.h"
#include "toolkit/theme.h"

#include <QHelpEvent>
#include <QIcon>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>

namespace {

std::string picture_directory;

std::string picture_name(std::string_view accessible_name) {
    std::string name(accessible_name);
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
}

/// Leaves out of its label what does not fit.
QString fitting(const QPushButton& button) {
    constexpr int margins = 8;
    const QFontMetrics metrics = button.fontMetrics();
    return button.icon().isNull() ? metrics.elidedText(button.text(), Qt::ElideRight,
                                                       button.width() - margins, Qt::TextShowMnemonic)
                                  : button.text();
}

}  // namespace

class LabelButton : public QPushButton {
  public:
    using QPushButton::QPushButton;
    void set_unset(bool unset) {
        unset_ = unset;
        update();
    }

  protected:
    void initStyleOption(QStyleOptionButton* option) const override {
        QPushButton::initStyleOption(option);
        option->text = fitting(*this);
        if (unset_) {
            option->palette.setBrush(QPalette::ButtonText, option->palette.placeholderText());
            option->features |= QStyleOptionButton::Flat;
        }
    }
    bool event(QEvent* event) override {
        const bool shortened = event->type() == QEvent::ToolTip && fitting(*this) != text();
        if (shortened) {
            const QString label = plain_tool_tip(from_qstring(accessibleName()));
            QToolTip::showText(static_cast<const QHelpEvent*>(event)->globalPos(), label + toolTip(), this);
            return true;
        }
        return QPushButton::event(event);
    }

  private:
    bool unset_ = false;
};

QIcon button_picture(std::string_view name) {
    return picture_directory.empty()
               ? QIcon()
               : themed_icon(to_qstring(picture_directory) + '/' + to_qstring(name) + QStringLiteral(".svg"));
}

Button::Button(Container& parent, Label label, Notify notify)
    : widget_(new LabelButton(without_mnemonic(label.text), parent.widget())) {
    widget_->setAccessibleName(to_qstring(label.accessible_name));
    widget_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    widget_->setAutoDefault(false);
    parent.add({}, widget_, Place::line);
    QObject::connect(widget_, &QPushButton::clicked, widget_,
                     [widget = widget_, notify] { notify_from(widget, notify); });
}

void Button::set_default() { widget_->setDefault(true); }

void Button::set_label(std::string_view label) {
    widget_->setText(without_mnemonic(label));
    widget_->setAccessibleName(to_qstring(label));
    assign_mnemonics(*widget_->window());
}

void Button::share_width() { widget_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); }

void Button::set_tool_tip(std::string_view text) {
    widget_->setToolTip(plain_tool_tip(text));
    widget_->setAccessibleDescription(visible_text(text));
}

void Button::leave_focus() { widget_->setFocusPolicy(Qt::TabFocus); }

void Button::set_shown(bool shown) { widget_->setVisible(shown); }

void Button::set_unset(bool unset) { widget_->set_unset(unset); }

ImageButton::ImageButton(Container& parent, std::string_view accessible_name, std::string_view picture,
                         Notify notify, std::string_view tool_tip) {
    auto* button = new QToolButton(parent.widget());
    button->setAccessibleName(to_qstring(accessible_name));
    button->setToolTip(plain_tool_tip(tool_tip));
    button->setAccessibleDescription(visible_text(tool_tip));
    button->setIcon(button_picture(picture));
    button->setFocusPolicy(Qt::TabFocus);  // a click leaves the keyboard where it is
    parent.add({}, button, Place::line);
    QObject::connect(button, &QToolButton::clicked, button,
                     [button, notify] { notify_from(button, notify); });
}

ImageButton::ImageButton(Container& parent, std::string_view accessible_name, Notify notify,
                         std::string_view tool_tip)
    : ImageButton(parent, accessible_name, picture_name(accessible_name), notify, tool_tip) {}

void ImageButton::set_picture_directory(std::string_view path) { picture_directory = path; }
