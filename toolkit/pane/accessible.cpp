// SPDX-License-Identifier: MIT
#include "toolkit/pane/accessible.h"

#include "toolkit/pane/reader.h"
#include "toolkit/pane/view.h"

#include <QAccessibleWidget>
#include <QMenu>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace {

using Boundary = QAccessible::TextBoundaryType;

/// Part of the text, as offsets.
struct Span {
    int begin = 0;
    int end = 0;
};

QTextBoundaryFinder::BoundaryType finder_type(Boundary type) {
    switch (type) {
        case QAccessible::CharBoundary:
            return QTextBoundaryFinder::Grapheme;
        case QAccessible::WordBoundary:
            return QTextBoundaryFinder::Word;
        default:
            return QTextBoundaryFinder::Sentence;
    }
}

class TerminalAccessible final : public QAccessibleWidget, public QAccessibleTextInterface {
  public:
    explicit TerminalAccessible(TerminalView* view) : QAccessibleWidget(view, QAccessible::Terminal) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                                  : QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.multiLine = 1;
        state.selectableText = 1;
        return state;
    }
    using QAccessibleWidget::text;

    // The context menu, open or not.
    [[nodiscard]] int childCount() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(&view().menu()) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        return child->object() == &view().menu() ? 0 : -1;
    }
    [[nodiscard]] QStringList actionNames() const override {
        return QStringList{showMenuAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name == showMenuAction()) {
            view().show_menu_at_cursor();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

    // The text.
    [[nodiscard]] int characterCount() const override { return reader().size(); }
    [[nodiscard]] QString text(int begin, int end) const override {
        const Span span = within(begin, end < 0 ? characterCount() : end);
        return reader().text(span.begin, span.end);
    }
    QString textAtOffset(int offset, Boundary type, int* begin, int* end) const override {
        return give(span_at(known_offset(offset), type), begin, end);
    }
    QString textBeforeOffset(int offset, Boundary type, int* begin, int* end) const override {
        const Span here = span_at(known_offset(offset), type);
        return give(here.begin == 0 ? Span{} : span_at(here.begin - 1, type), begin, end);
    }
    QString textAfterOffset(int offset, Boundary type, int* begin, int* end) const override {
        const Span here = span_at(known_offset(offset), type);
        const int size = characterCount();
        return give(here.end >= size ? Span{size, size} : span_at(here.end, type), begin, end);
    }
    QString attributes(int /*offset*/, int* begin, int* end) const override {
        *begin = 0;
        *end = characterCount();
        return {};
    }

    // The insertion point is the program's to move.
    [[nodiscard]] int cursorPosition() const override { return reader().caret(); }
    void setCursorPosition(int /*position*/) override {}

    // The selection: one, or none.
    [[nodiscard]] int selectionCount() const override { return view().selection().empty() ? 0 : 1; }
    void selection(int index, int* begin, int* end) const override {
        const bool exists = index == 0 && selectionCount() == 1;
        const terminal::Range range = view().selection().range();
        *begin = exists ? reader().offset_of(range.begin) : 0;
        *end = exists ? reader().offset_of(range.end) : 0;
    }
    void addSelection(int begin, int end) override { setSelection(0, begin, end); }
    void removeSelection(int index) override {
        if (index == 0) {
            view().clear_selection();
        }
    }
    void setSelection(int index, int begin, int end) override {
        if (index == 0) {
            const Span span = within(begin, end);
            view().select({reader().position_of(span.begin), reader().position_of(span.end)});
        }
    }

    // Places on the desktop.
    [[nodiscard]] QRect characterRect(int offset) const override {
        const QRect area = view().cell_area(reader().position_of(offset));
        return {view().mapToGlobal(area.topLeft()), area.size()};
    }
    [[nodiscard]] int offsetAtPoint(const QPoint& point) const override {
        const QPoint inside = view().mapFromGlobal(point);
        return view().rect().contains(inside) ? reader().offset_of(view().position_at(inside)) : -1;
    }
    void scrollToSubstring(int begin, int /*end*/) override {
        view().show_row(reader().position_of(begin).row);
    }

  private:
    [[nodiscard]] TerminalView& view() const { return *static_cast<TerminalView*>(widget()); }
    [[nodiscard]] TerminalReader& reader() const { return view().reader(); }

    [[nodiscard]] Span within(int begin, int end) const {
        const int size = characterCount();
        const int first = std::clamp(begin, 0, size);
        return {first, std::clamp(end, first, size)};
    }
    /// -1 stands for the end of the text, -2 for the insertion point.
    [[nodiscard]] int known_offset(int offset) const {
        if (offset == -2) {
            return cursorPosition();
        }
        return offset == -1 ? characterCount() : std::clamp(offset, 0, characterCount());
    }
    QString give(Span span, int* begin, int* end) const {
        *begin = span.begin;
        *end = span.end;
        return reader().text(span.begin, span.end);
    }
    /// Looks at one line only, however long the text is.
    [[nodiscard]] Span span_at(int offset, Boundary type) const {
        if (type == QAccessible::NoBoundary) {
            return {0, characterCount()};
        }
        const TerminalReader::Line line = reader().line_at(offset);
        const int with_line_feed = std::min(line.end + 1, characterCount());
        if (type == QAccessible::LineBoundary || type == QAccessible::ParagraphBoundary) {
            return {line.begin, with_line_feed};
        }
        if (offset >= line.end) {
            return {std::min(offset, line.end), with_line_feed};
        }
        QTextBoundaryFinder finder(finder_type(type), line.text);
        finder.setPosition(offset - line.begin + 1);
        const auto before = static_cast<int>(finder.isAtBoundary() && type == QAccessible::CharBoundary
                                                 ? finder.position() - 1
                                                 : finder.toPreviousBoundary());
        finder.setPosition(offset - line.begin);
        const auto after = static_cast<int>(finder.toNextBoundary());
        return {line.begin + std::max(0, before), after < 0 ? line.end : line.begin + after};
    }
};

/// What is round a view hands its focus on, and is not itself what has it.
class SurroundingAccessible final : public QAccessibleWidget {
  public:
    explicit SurroundingAccessible(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Client) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.focusable = 0;
        state.focused = 0;
        return state;
    }
};

QAccessibleInterface* make_accessible(const QString& /*class_name*/, QObject* object) {
    if (auto* const view = dynamic_cast<TerminalView*>(object)) {
        return new TerminalAccessible(view);
    }
    auto* const widget = qobject_cast<QWidget*>(object);
    const bool surrounds = widget != nullptr && dynamic_cast<TerminalView*>(widget->focusProxy()) != nullptr;
    return surrounds ? new SurroundingAccessible(widget) : nullptr;
}

}  // namespace

void install_terminal_accessibility() { QAccessible::installFactory(make_accessible); }
