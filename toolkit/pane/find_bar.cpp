// SPDX-License-Identifier: MIT
#include "toolkit/pane/find_bar.h"

#include "toolkit/clear_button.h"
#include "toolkit/pane/view.h"
#include "toolkit/text_conversion.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QToolButton>

using terminal::Position;
using terminal::Range;
using terminal::SearchDirection;

namespace {

constexpr int count_limit = 1000;
constexpr int count_milliseconds = 10;

QToolButton* make_button(QWidget* parent, Qt::ArrowType arrow, const QString& name) {
    auto* button = new QToolButton(parent);
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

Position before_all(const terminal::Terminal& terminal) { return {terminal.first_row(), -1}; }
Position behind_all(const terminal::Terminal& terminal) { return {terminal.end_row(), 0}; }

}  // namespace

TerminalFindBar::TerminalFindBar(TerminalView& view, QWidget* parent)
    : QWidget(parent),
      view_(view),
      field_(new QLineEdit(this)),
      match_case_(new QCheckBox(QStringLiteral("Match case"), this)),
      result_(new QLabel(this)) {
    field_->setAccessibleName(QStringLiteral("Find"));
    field_->setPlaceholderText(QStringLiteral("Find"));
    add_clear_button(*field_);
    field_->findChild<QToolButton*>()->setAccessibleName(QStringLiteral("Clear"));
    match_case_->setAccessibleName(QStringLiteral("Match case"));
    result_->setTextFormat(Qt::PlainText);
    auto* previous = make_button(this, Qt::UpArrow, QStringLiteral("Previous match"));
    auto* next = make_button(this, Qt::DownArrow, QStringLiteral("Next match"));
    auto* close = make_button(this, Qt::NoArrow, QStringLiteral("Close find bar"));
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 3, 6, 3);
    layout->addWidget(field_, 2);
    for (QWidget* control : {static_cast<QWidget*>(previous), static_cast<QWidget*>(next),
                             static_cast<QWidget*>(match_case_), static_cast<QWidget*>(result_)}) {
        layout->addWidget(control);
    }
    layout->addStretch(1);
    layout->addWidget(close);

    connect(field_, &QLineEdit::textChanged, this, [this] { search_as_typed(); });
    connect(match_case_, &QCheckBox::toggled, this, [this] { search_as_typed(); });
    connect(previous, &QToolButton::clicked, this, [this] { go(SearchDirection::backward); });
    connect(next, &QToolButton::clicked, this, [this] { go(SearchDirection::forward); });
    connect(close, &QToolButton::clicked, this, [this] { close_bar(); });
    hide();
}

void TerminalFindBar::open() {
    show();
    field_->selectAll();
    field_->setFocus(Qt::ShortcutFocusReason);
    search_as_typed();
}

void TerminalFindBar::close_bar() {
    view_.set_match({});
    hide();
    view_.setFocus();
}

void TerminalFindBar::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Escape:
            close_bar();
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            go(event->modifiers().testFlag(Qt::ShiftModifier) ? SearchDirection::forward
                                                              : SearchDirection::backward);
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

std::string TerminalFindBar::needle() const { return from_qstring(field_->text()); }

terminal::LetterCase TerminalFindBar::letter_case() const {
    return match_case_->isChecked() ? terminal::LetterCase::significant : terminal::LetterCase::ignored;
}

std::optional<Range> TerminalFindBar::find_from(Position from, SearchDirection direction) const {
    const std::string text = needle();
    return text.empty() ? std::nullopt
                        : terminal::find(view_.terminal(), text, from, direction, letter_case());
}

/// Keeps to the match there is while it still fits, else takes the latest one.
void TerminalFindBar::search_as_typed() {
    std::optional<Range> match;
    if (const Range current = view_.match(); !current.empty()) {
        match = find_from({current.begin.row, current.begin.column - 1}, SearchDirection::forward);
    }
    if (!match) {
        match = find_from(behind_all(view_.terminal()), SearchDirection::backward);
    }
    view_.set_match(match.value_or(Range{}));
    show_result();
}

/// Goes round the end.
void TerminalFindBar::go(SearchDirection direction) {
    const bool forward = direction == SearchDirection::forward;
    const terminal::Terminal& terminal = view_.terminal();
    const Range current = view_.match();
    std::optional<Range> match;
    if (!current.empty()) {
        match = find_from(current.begin, direction);
    }
    const bool goes_round = !match && !current.empty();
    if (!match) {
        match = find_from(forward ? before_all(terminal) : behind_all(terminal), direction);
    }
    view_.set_match(match.value_or(Range{}));
    const QString end = forward ? QStringLiteral("on from the oldest") : QStringLiteral("on from the newest");
    show_result(goes_round && match ? end : QString());
}

void TerminalFindBar::show_result(const QString& from_other_end) {
    const QString result = result_text();
    result_->setText(from_other_end.isEmpty() ? result : result + QStringLiteral(", ") + from_other_end);
}

QString TerminalFindBar::result_text() const {
    if (needle().empty()) {
        return {};
    }
    QElapsedTimer clock;
    clock.start();
    int count = 0;
    int current = 0;
    auto match = find_from(before_all(view_.terminal()), SearchDirection::forward);
    while (match && count < count_limit && !clock.hasExpired(count_milliseconds)) {
        ++count;
        current = *match == view_.match() ? count : current;
        match = find_from(match->begin, SearchDirection::forward);
    }
    if (count == 0) {
        return QStringLiteral("Not found");
    }
    if (match) {
        return QStringLiteral("more than %1 matches").arg(count);
    }
    return QStringLiteral("%1 of %2").arg(current).arg(count);
}
