// SPDX-License-Identifier: MIT
// What holds for every window: names, the order of the keyboard, room, Escape.
#include "ui/windows.h"

#include "toolkit/frame.h"
#include "toolkit/mnemonics.h"
#include "ui/main_window.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <set>
#include <tuple>

#include <gtest/gtest.h>

namespace {

QString name_of(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

QAccessible::Role role_of(QWidget* widget) { return QAccessible::queryAccessibleInterface(widget)->role(); }

/// A spin box's own line edit.
bool is_inner_part(const QWidget* widget) {
    return qobject_cast<const QAbstractSpinBox*>(widget->parentWidget()) != nullptr;
}

bool takes_keyboard(const QWidget* widget) {
    return widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0 &&
           widget->focusProxy() == nullptr;
}

/// The controls that the keyboard goes to, in the order it does.
std::vector<QWidget*> keyboard_order(QWidget* window) {
    std::vector<QWidget*> controls;
    for (QWidget* next = window->nextInFocusChain(); next != window; next = next->nextInFocusChain()) {
        if (next->window() == window && next->isVisibleTo(window) && takes_keyboard(next)) {
            controls.push_back(next);
        }
    }
    return controls;
}

/// Whether a control comes after another to a reader: further right on the same line, or lower. Columns are
/// read one by one, so what counts is where the two stand within the innermost widget that holds both.
bool read_after(const QWidget* later, const QWidget* earlier) {
    while (!earlier->parentWidget()->isAncestorOf(later)) {
        earlier = earlier->parentWidget();
    }
    while (later->parentWidget() != earlier->parentWidget()) {
        later = later->parentWidget();
    }
    const QRect before = earlier->geometry();
    const QRect after = later->geometry();
    const bool same_line = after.top() <= before.bottom() && before.top() <= after.bottom();
    return same_line ? after.left() > before.right() : after.top() > before.bottom();
}

/// Does something with every window while it is open. It does not wait for the window manager: the layout is
/// made when a window is shown.
template <typename Action>
void for_each_open_window(Action action) {
    for (Frame* window : all_windows()) {
        SCOPED_TRACE(window->label());
        const bool popup = window != &Frame::base();
        if (popup) {
            window->open();
        } else {
            window->show();
        }
        action(*window->widget());
        if (popup) {
            window->hide();
        }
    }
}

class EveryWindow : public testing::Test {
  protected:
    void SetUp() override { create_windows(); }
    void TearDown() override { destroy_windows(); }
};

TEST_F(EveryWindow, NamesItsControlsAndNoTwoAlike) {
    for_each_open_window([](QWidget& window) {
        EXPECT_FALSE(name_of(&window).isEmpty());
        std::set<std::tuple<QAccessible::Role, QString, QWidget*>> seen;
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            const QAccessible::Role role = role_of(widget);
            const bool is_item = role == QAccessible::RadioButton || role == QAccessible::CheckBox;
            if (widget->window() != &window || is_inner_part(widget) ||
                !(takes_keyboard(widget) || role == QAccessible::Grouping || role == QAccessible::Button)) {
                continue;
            }
            const QString name = name_of(widget);
            EXPECT_FALSE(name.isEmpty()) << widget->metaObject()->className();
            // Items recur in several groups.
            EXPECT_TRUE(seen.insert({role, name, is_item ? widget->parentWidget() : nullptr}).second)
                << name.toStdString();
        }
        EXPECT_FALSE(seen.empty());
    });
}

TEST_F(EveryWindow, IsWalkedByTheKeyboardAsItIsRead) {
    for_each_open_window([](QWidget& window) {
        const std::vector<QWidget*> controls = keyboard_order(&window);
        ASSERT_FALSE(controls.empty());
        for (std::size_t i = 1; i < controls.size(); ++i) {
            EXPECT_TRUE(read_after(controls[i], controls[i - 1]))
                << name_of(controls[i]).toStdString() << " after " << name_of(controls[i - 1]).toStdString();
        }
    });
}

TEST_F(EveryWindow, GivesTheKeyboardToItsFirstControl) {
    for_each_open_window([](QWidget& window) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }, 5000));
        EXPECT_EQ(QApplication::focusWidget(), keyboard_order(&window).front());
    });
}

TEST_F(EveryWindow, ClosesWithEscapeFromEveryControl) {
    for (Frame* popup : all_windows()) {
        if (popup == &Frame::base()) {
            continue;
        }
        SCOPED_TRACE(popup->label());
        popup->open();
        for (QWidget* control : keyboard_order(popup->widget())) {
            popup->open();
            control->setFocus();
            QTest::keyClick(popup->widget()->focusWidget(), Qt::Key_Escape);
            EXPECT_FALSE(popup->shown()) << name_of(control).toStdString();
        }
    }
}

class EveryWindowAtSize : public testing::TestWithParam<int> {};

TEST_P(EveryWindowAtSize, HasRoomForItsTexts) {
    const QFont usual = QApplication::font();
    QFont font = usual;
    font.setPointSize(GetParam());
    QApplication::setFont(font);
    create_windows();
    for_each_open_window([](const QWidget& window) {
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            const bool footer = widget->accessibleDescription().endsWith("footer");  // shortened on purpose
            if (widget->window() != &window || !widget->isVisible() || footer) {
                continue;
            }
            SCOPED_TRACE(name_of(widget).toStdString());
            EXPECT_TRUE(window.rect().contains(QRect(widget->mapTo(&window, QPoint()), widget->size())));
            constexpr int button_margins = 10;
            if (const auto* button = qobject_cast<QPushButton*>(widget)) {  // wants more than its text needs
                const int text_width = button->fontMetrics().horizontalAdvance(shown_label(button->text()));
                EXPECT_GE(button->width(), text_width + button_margins);
            } else if (qobject_cast<QLabel*>(widget) != nullptr ||
                       qobject_cast<QAbstractButton*>(widget) != nullptr) {
                EXPECT_GE(widget->width(), widget->sizeHint().width());
            }
            if (is_inner_part(widget)) {
                constexpr const char* longest_process_id = "4194304";
                EXPECT_GE(widget->width(), widget->fontMetrics().horizontalAdvance(longest_process_id));
            } else {
                EXPECT_GE(widget->height(), widget->minimumSizeHint().height());
            }
        }
    });
    destroy_windows();
    QApplication::setFont(usual);
}

INSTANTIATE_TEST_SUITE_P(Points, EveryWindowAtSize, testing::Values(7, 9, 14),
                         testing::PrintToStringParamName());

}  // namespace
