// SPDX-License-Identifier: MIT
#include "toolkit/menu_button.h"

#include "toolkit/answer.h"
#include "toolkit/button_picture.h"
#include "toolkit/elided.h"
#include "toolkit/mnemonics.h"
#include "toolkit/text_conversion.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QStyleOptionButton>

#include <utility>

/// QPushButton's own menu runs an event loop of its own, in which an assistive program that opened it would
/// wait for its answer until the menu is closed.
class MenuPushButton : public QPushButton {
  public:
    MenuPushButton(const QString& label, QMenu& menu, QWidget* parent) : QPushButton(parent) {
        setFocusPolicy(Qt::TabFocus);  // a click leaves the keyboard where it is
        setText(label);  // not sooner: it makes the accessible interface, which is chosen by the type so far
        set_menu(menu);
        connect(this, &QPushButton::clicked, this, [this] { show_menu(); });  // its mnemonic
    }

    [[nodiscard]] QMenu& menu() const { return *menu_; }
    void set_menu(QMenu& menu) {
        menu_ = &menu;
        menu.setParent(this, menu.windowFlags());
        menu.installEventFilter(this);
        connect(&menu, &QMenu::aboutToHide, this, [this] { setDown(false); });
    }
    void set_about_to_open(Notify notify) { about_to_open_ = notify; }
    /// Whether there was something to show.
    bool show_menu() {
        notify_from(this, about_to_open_);
        if (menu_->isEmpty()) {
            return false;
        }
        setDown(true);
        menu_->setAttribute(Qt::WA_NoMouseReplay);  // a press on the button closes the open menu and no more
        menu_->popup(mapToGlobal(rect().bottomLeft()));
        return true;
    }

    [[nodiscard]] QSize sizeHint() const override {
        constexpr int padding = 22;  // pixels; a push button's usual least width would leave a row no room
        QStyleOptionButton option;
        initStyleOption(&option);
        const int indicator = style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, this);
        const int picture = icon().isNull() ? 0 : iconSize().width();
        const int wide = fontMetrics().horizontalAdvance(shown_label(text())) + picture + indicator + padding;
        return {wide, QPushButton::sizeHint().height()};
    }

  protected:
    void initStyleOption(QStyleOptionButton* option) const override {
        QPushButton::initStyleOption(option);
        option->features |= QStyleOptionButton::HasMenu;
    }
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton) {
            show_menu();
        }
    }
    void keyPressEvent(QKeyEvent* event) override {
        switch (event->key()) {
            case Qt::Key_Space:
            case Qt::Key_Return:
            case Qt::Key_Enter:
            case Qt::Key_Down:
                show_menu();
                break;
            default:
                QPushButton::keyPressEvent(event);
        }
    }
    /// Left and Right in the menu lead to those of the buttons beside this one, as on a menu bar.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress && watched == menu_) {
            const auto& key = *static_cast<const QKeyEvent*>(event);
            const QAction* item = menu_->activeAction();
            const bool opens = item != nullptr && item->menu() != nullptr && item->isEnabled();
            if (key.key() == Qt::Key_Left || (key.key() == Qt::Key_Right && !opens)) {
                walk(key.key() == Qt::Key_Left ? -1 : 1);
                return true;
            }
        }
        return QPushButton::eventFilter(watched, event);
    }

  private:
    void walk(qsizetype step) {
        QList<MenuPushButton*> row;
        for (QPushButton* button : parentWidget()->findChildren<QPushButton*>()) {
            if (auto* const beside = dynamic_cast<MenuPushButton*>(button)) {
                row.append(beside);
            }
        }
        const qsizetype own = row.indexOf(this);
        menu_->close();
        for (qsizetype steps = 1; steps <= row.size(); ++steps) {
            MenuPushButton& next = *row[(own + steps * (row.size() + step)) % row.size()];
            if (next.isVisible() && next.show_menu()) {
                return;
            }
        }
    }

    QMenu* menu_ = nullptr;
    Notify about_to_open_;
};

namespace {

/// A button whose one child is its menu, open or not: Qt tells nobody of the menus that buttons open.
class AccessibleMenuButton : public QAccessibleWidget {
  public:
    explicit AccessibleMenuButton(MenuPushButton& button)
        : QAccessibleWidget(&button, QAccessible::ButtonMenu), button_(button) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        return state;
    }
    [[nodiscard]] int childCount() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(&button_.menu()) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        return child->object() == &button_.menu() ? 0 : -1;
    }
    [[nodiscard]] QStringList actionNames() const override {
        return QStringList{pressAction(), showMenuAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name == pressAction() || name == showMenuAction()) {
            button_.show_menu();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

  private:
    MenuPushButton& button_;
};

QAccessibleInterface* make_interface(const QString& /*class_name*/, QObject* object) {
    auto* button = dynamic_cast<MenuPushButton*>(object);
    return button == nullptr ? nullptr : new AccessibleMenuButton(*button);
}

}  // namespace

MenuButton::MenuButton(Container& parent, Label label, Menu menu, Notify about_to_open)
    : menu_(std::move(menu)) {
    QAccessible::installFactory(make_interface);  // a second installation is ignored
    widget_ = new MenuPushButton(without_mnemonic(label.text), *menu_.widget(), parent.widget());
    widget_->setAccessibleName(to_qstring(label.accessible_name));
    widget_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    widget_->set_about_to_open(about_to_open);
    parent.add({}, widget_, Place::line);
}

MenuButton::MenuButton(Container& parent, std::string_view accessible_name, std::string_view picture,
                       Notify about_to_open)
    : MenuButton(parent, Label{"", accessible_name}, Menu({}), about_to_open) {
    widget_->setIcon(button_picture(picture));
    widget_->setToolTip(to_qstring(accessible_name));
}

void MenuButton::set_menu(Menu menu) {
    widget_->set_menu(*menu.widget());
    menu_ = std::move(menu);
}

void MenuButton::set_label(std::string_view label) {
    constexpr int widest = 120;  // pixels
    widget_->setText(elided(widget_->fontMetrics(), label, widest));
    widget_->setAccessibleName(to_qstring(label));
}

void MenuButton::set_tool_tip(std::string_view text) {
    widget_->setToolTip(plain_tool_tip(text));
    widget_->setAccessibleDescription(visible_text(text));
}
