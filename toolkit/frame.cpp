// SPDX-License-Identifier: MIT
#include "toolkit/frame.h"

#include "toolkit/accessible_role.h"
#include "toolkit/answer.h"
#include "toolkit/footer.h"
#include "toolkit/mnemonics.h"
#include "toolkit/return_key.h"
#include "toolkit/standing.h"
#include "toolkit/text_conversion.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSpinBox>

#include <algorithm>
#include <cassert>
#include <optional>
#include <utility>

namespace {

constexpr int title_bar_buttons = 170;  ///< room beside the title in common title bars, in pixels

Frame* base_frame = nullptr;

/// Moves an interval of `length` inside [low, high]; what is too long begins at `low`.
int moved_inside(int at, int length, int low, int high) {
    return std::max(low, std::min(at, high - length + 1));
}

QPoint place_in(const QRect& room, QPoint at, QSize size) {
    return {moved_inside(at.x(), size.width(), room.left(), room.right()),
            moved_inside(at.y(), size.height(), room.top(), room.bottom())};
}

}  // namespace

class FrameWidget : public QWidget {
  public:
    FrameWidget(QWidget* owner, Qt::WindowFlags flags) : QWidget(owner, flags) {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        areas = new QVBoxLayout;
        areas->setSpacing(0);
        column->addLayout(areas);
        // Takes the height that no area wants, and keeps room for the title.
        spacer_ = new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Preferred);
        column->addSpacerItem(spacer_);
        auto* footers = new QHBoxLayout;
        footers->setContentsMargins(8, 3, 8, 4);
        footers->setSpacing(16);
        left_footer = new Footer(QStringLiteral("left footer"), Qt::AlignLeft, this);
        right_footer = new Footer(QStringLiteral("right footer"), Qt::AlignRight, this);
        footers->addWidget(left_footer, 1);
        footers->addWidget(right_footer);
        column->addLayout(footers);
    }

    QVBoxLayout* areas = nullptr;
    Footer* left_footer = nullptr;
    Footer* right_footer = nullptr;
    void (*close_notify)() = nullptr;
    bool iconified_at_first = false;

    /// Gives the first control the keyboard.
    void focus_first_control() { focusNextChild(); }

    /// Gives a window that has not been placed yet the size that its controls and its title want; its areas
    /// scroll where that is more than there is room for.
    void settle_size(QSize room) {
        if (!placed_) {
            const int title = fontMetrics().horizontalAdvance(windowTitle()) + title_bar_buttons;
            spacer_->changeSize(std::min(title, room.width()), 0, QSizePolicy::Minimum,
                                QSizePolicy::Preferred);
            layout()->invalidate();
            if (!testAttribute(Qt::WA_Resized)) {
                adjustSize();
                resize(sizeHint());  // adjusting stops at two thirds of the screen
            }
        }
        const QSize least = layout()->totalMinimumSize();
        if (!scrolls_ && (least.width() > room.width() || least.height() > room.height())) {
            let_areas_scroll();
        }
        resize(size().boundedTo(room));
    }
    /// Another window that shows and stands at that very place.
    [[nodiscard]] bool is_taken(QPoint place) const {
        return std::ranges::any_of(QApplication::topLevelWidgets(), [this, place](const QWidget* window) {
            return window != this && window->isVisible() && window->pos() == place &&
                   dynamic_cast<const FrameWidget*>(window) != nullptr;
        });
    }
    /// Who gets the keyboard back when the window closes.
    void set_opener(QWidget* opener) { opener_ = opener == this ? opener_.data() : opener; }
    /// Where the user has put the window; nothing while it stands where it was placed.
    [[nodiscard]] std::optional<QPoint> users_place() const { return users_place_; }
    void place(QPoint at) {
        move(at);
        placed_ = at;
    }

  protected:
    void showEvent(QShowEvent* event) override {
        assign_mnemonics(*this);
        QWidget::showEvent(event);
    }
    void hideEvent(QHideEvent* event) override {
        if (!event->spontaneous() && placed_ && pos() != placed_ && frame_is_known()) {
            users_place_ = pos();
        }
        QWidget::hideEvent(event);
        if (!event->spontaneous() && parentWidget() != nullptr) {
            const bool opener_shows = opener_ != nullptr && opener_->isVisible();
            return_keyboard(opener_shows ? *opener_ : *parentWidget());
        }
    }
    void closeEvent(QCloseEvent* event) override {
        event->setAccepted(close_notify == nullptr);
        if (close_notify != nullptr) {
            close_notify();
        }
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Escape && parentWidget() != nullptr) {
            close();
        } else if (is_return(*event) && is_field(focusWidget())) {
            finish_field();
        } else {
            QWidget::keyPressEvent(event);
        }
    }

  private:
    static bool is_field(const QWidget* control) {
        return qobject_cast<const QLineEdit*>(control) != nullptr ||
               qobject_cast<const QSpinBox*>(control) != nullptr;
    }
    /// Whether the place tells the window manager's frame from the window: just after the window was shown it
    /// does not, and would be taken for one that the user has chosen.
    [[nodiscard]] bool frame_is_known() const {
        const QWidget* owner = parentWidget();
        return pos() != geometry().topLeft() || owner == nullptr ||
               owner->pos() == owner->geometry().topLeft();
    }
    void let_areas_scroll() {
        scrolls_ = true;
        auto* column = static_cast<QVBoxLayout*>(layout());
        auto* content = new QWidget;
        column->removeItem(areas);
        content->setLayout(areas);
        auto* scrolling = new QScrollArea(this);
        scrolling->setFrameShape(QFrame::NoFrame);
        scrolling->setFocusPolicy(Qt::NoFocus);
        scrolling->setWidgetResizable(true);
        scrolling->setWidget(content);
        column->insertWidget(0, scrolling, 1);
        scrolling->lower();
        layout()->activate();  // the least size falls
    }
    void finish_field() {
        for (QPushButton* button : findChildren<QPushButton*>()) {
            if (button->isDefault()) {
                button->click();
                return;
            }
        }
        focusNextChild();
    }

    QSpacerItem* spacer_;
    QPointer<QWidget> opener_;
    bool scrolls_ = false;
    std::optional<QPoint> placed_;
    std::optional<QPoint> users_place_;
};

Frame::Frame(std::string_view label)
    : widget_(new FrameWidget(base_frame == nullptr ? nullptr : base_frame->widget(),
                              base_frame == nullptr ? Qt::Window : Qt::Dialog)) {
    if (base_frame == nullptr) {
        base_frame = this;
    }
    set_accessible_role(*widget_, base_frame == this ? QAccessible::Window : QAccessible::Dialog);
    set_label(label);
}

Frame::~Frame() {
    if (base_frame == this) {
        base_frame = nullptr;
    }
    delete widget_;
}

Frame& Frame::base() {
    assert(base_frame != nullptr);
    return *base_frame;
}

void Frame::set_label(std::string_view label) {
    widget_->setWindowTitle(visible_text(label));
    widget_->setWindowIconText(visible_text(label));
    widget_->setAccessibleName(visible_text(label));
}

std::string Frame::label() const { return from_qstring(widget_->windowTitle()); }

void Frame::set_left_footer(std::string_view text) { widget_->left_footer->set_full_text(to_qstring(text)); }

void Frame::set_right_footer(std::string_view text) {
    widget_->right_footer->set_full_text(to_qstring(text));
}

void Frame::explain_right_footer(std::string_view text) { widget_->right_footer->explain(to_qstring(text)); }

std::string Frame::left_footer() const { return from_qstring(widget_->left_footer->full_text()); }

std::string Frame::right_footer() const { return from_qstring(widget_->right_footer->full_text()); }

void Frame::show() {
    if (widget_->iconified_at_first) {
        widget_->iconified_at_first = false;
        widget_->showMinimized();
        return;
    }
    if (widget_->isMinimized()) {
        widget_->showNormal();
    }
    if (widget_->parentWidget() != nullptr) {
        stand_alone(*widget_);
        widget_->set_opener(QApplication::activeWindow());
    }
    widget_->show();
    widget_->raise();
    widget_->activateWindow();
    if (widget_->focusWidget() == nullptr) {
        widget_->focus_first_control();
    }
}

void Frame::hide() { widget_->hide(); }

bool Frame::shown() const { return widget_->isVisible(); }

void Frame::start_iconified() { widget_->iconified_at_first = true; }

void Frame::resize(int width, int height) {
    if (!shown()) {
        widget_->resize(width, height);
        return;
    }
    const QRect room = widget_->screen()->availableGeometry();
    const QSize frame = widget_->frameSize() - widget_->size();
    const QSize size = QSize(width, height).boundedTo(room.size() - frame).expandedTo(widget_->minimumSize());
    widget_->resize(size);
    const QPoint inside = place_in(room, widget_->pos(), size + frame);
    if (inside != widget_->pos()) {
        widget_->move(inside);
    }
}

int Frame::width() const { return widget_->width(); }

int Frame::height() const { return widget_->height(); }

void Frame::set_width(int width) { widget_->resize(width, widget_->sizeHint().height()); }

void Frame::place_beside_base(int right, int down) {
    const QWidget* base_widget = base().widget();
    const std::optional<QPoint> users_place = widget_->users_place();
    const QPoint wanted = users_place.value_or(base_widget->pos() + QPoint(right, down));
    const QScreen* users_screen = users_place ? QApplication::screenAt(*users_place) : nullptr;
    const QScreen* screen = users_screen != nullptr ? users_screen : base_widget->screen();
    widget_->settle_size(screen->availableSize() - (base_widget->frameSize() - base_widget->size()));
    place_inside(*screen, wanted);
}

void Frame::place_inside(const QScreen& screen, QPoint wanted) {
    const QWidget* base_widget = base().widget();
    const QRect room = screen.availableGeometry();
    // The window manager's frame round the new window is not known before it is shown: the main window's
    // serves.
    const QSize size = widget_->size() + base_widget->frameSize() - base_widget->size();
    QPoint at = place_in(room, wanted, size);
    constexpr QPoint aside(24, 24);
    for (QPoint next = at; widget_->is_taken(at); at = next) {
        next = place_in(room, at + aside, size);
        if (next == at) {
            break;  // in the screen's corner
        }
    }
    widget_->place(at);
}

void Frame::open_sized(int right, int down, int width, int height) {
    const QWidget* base_widget = base().widget();
    const QSize frame = base_widget->frameSize() - base_widget->size();
    widget_->resize(QSize(width, height).boundedTo(base_widget->screen()->availableSize() - frame));
    place_inside(*base_widget->screen(), base_widget->pos() + QPoint(right, down));
    show();
}

void Frame::iconify() { widget_->showMinimized(); }

void Frame::on_close(void (*notify)()) { widget_->close_notify = notify; }

void Frame::add(std::string_view /*label*/, QWidget* area, Place /*place*/) {
    widget_->areas->addWidget(area);
    // Assistive programs read the areas first.
    widget_->left_footer->raise();
    widget_->right_footer->raise();
}

QWidget* Frame::widget() const { return widget_; }

bool Frame::holds(const QWidget* control) const { return widget_->isAncestorOf(control); }

AnswerFooter::AnswerFooter(const QWidget* control) {
    QWidget* widget = control->parentWidget();
    while (widget != nullptr && dynamic_cast<FrameWidget*>(widget) == nullptr) {
        widget = widget->parentWidget();
    }
    frame_ = widget;
}

void AnswerFooter::show(std::string_view text) const {
    if (auto* frame = dynamic_cast<FrameWidget*>(frame_.data()); frame != nullptr) {
        frame->left_footer->set_full_text(to_qstring(text));
    }
}

BusyState::BusyState(Frame& frame) : frame_(frame) {
    if (frame_.busy_++ == 0) {
        frame_.widget()->setCursor(Qt::WaitCursor);
    }
}

BusyState::~BusyState() {
    if (--frame_.busy_ == 0) {
        frame_.widget()->unsetCursor();
    }
}

void Frame::open(int right, int down) {
    if (!shown()) {
        place_beside_base(right, down);
    }
    show();
}
