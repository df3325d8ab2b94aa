// SPDX-License-Identifier: MIT
#include "toolkit/tree/canvas_widget.h"

#include "toolkit/answer.h"
#include "toolkit/text_conversion.h"
#include "toolkit/tree/canvas_painter.h"

#include <QHelpEvent>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>
#include <utility>

CanvasWidget::CanvasWidget(TreeCanvas& canvas, const TreeProcedures& procedures, Menu menu,
                           std::string_view empty_text, QWidget* parent)
    : QAbstractScrollArea(parent),
      procedures_(procedures),
      canvas_(canvas),
      menu_(std::move(menu)),
      empty_text_(visible_text(empty_text)) {
    menu_.widget()->setParent(this, menu_.widget()->windowFlags());
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setAutoFillBackground(true);
    constexpr int units_of_a_step = 2;
    horizontalScrollBar()->setSingleStep(units_of_a_step);
    verticalScrollBar()->setSingleStep(units_of_a_step);
}

TreeNode* CanvasWidget::add(TreeNode* parent, std::unique_ptr<NodeRecord> record, int font_size,
                            NodeKind kind, int position) {
    auto node = std::make_unique<TreeNode>(std::move(record));
    node->font_size = static_cast<std::uint8_t>(std::clamp(font_size, 0, LabelFonts::sizes - 1));
    node->directory = kind == NodeKind::directory;
    const QSize size = fonts_.size(*node);
    node->width = size.width();
    node->height = size.height();
    TreeNode* added = tree_.add(std::move(node), parent, position);
    observer_->added(added);
    changed();
    return added;
}

void CanvasWidget::destroy(TreeNode* node) {
    TreeNode* parent = tree_.parent(node);
    const bool had_current = current_ != nullptr;
    tree_.destroy(node, [this](TreeNode* gone) { forget(gone); });
    if (had_current && current_ == nullptr) {
        set_current(parent);
    }
    changed();
}

/// Whatever holds a node that is about to be destroyed lets go of it.
void CanvasWidget::forget(TreeNode* node) {
    current_ = current_ == node ? nullptr : current_;
    last_click_.node = last_click_.node == node ? nullptr : last_click_.node;
    observer_->forgotten(node);
}

void CanvasWidget::set_opened(TreeNode* node, bool opened) {
    node->opened = opened;
    measure(node);
}

/// The label may take more or less room now.
void CanvasWidget::measure(TreeNode* node) {
    const QSize size = fonts_.size(*node);
    tree_.resize(node, size.width(), size.height());
    changed();
}

bool CanvasWidget::select(TreeNode* node) {
    const bool changes = tree_.select(node);
    if (changes) {
        observer_->selection_changed(node);
        settle();
    }
    return changes;
}

bool CanvasWidget::deselect(TreeNode* node) {
    const bool changes = tree_.deselect(node);
    if (changes) {
        observer_->selection_changed(node);
        settle();
    }
    return changes;
}

bool CanvasWidget::clear_selection() {
    const std::vector<TreeNode*> selected = tree_.selected();
    hold();
    for (TreeNode* node : selected) {
        deselect(node);
    }
    release();
    return !selected.empty();
}

void CanvasWidget::select_alone(TreeNode* node) {
    clear_selection();
    select(node);
}

void CanvasWidget::toggle(TreeNode* node) {
    if (!deselect(node)) {
        select(node);
    }
}

void CanvasWidget::set_current(TreeNode* node) {
    if (std::exchange(current_, node) != node) {
        tell_focus();
        viewport()->update();
    }
}

void CanvasWidget::tell_focus() {
    if (current_ != nullptr && hasFocus()) {
        observer_->focused(current_);
    }
}

void CanvasWidget::go_to(TreeNode* node) {
    set_current(node);
    show_area(area(node));
}

void CanvasWidget::tell(const Notify& procedure) const { notify_from(this, procedure); }

void CanvasWidget::tell_selection(const Notify& then) const {
    const QPointer<const CanvasWidget> here(this);  // it may go while the procedure runs
    tell(procedures_.selection);
    if (here) {
        tell(then);
    }
}

void CanvasWidget::press(TreeNode* node) {
    set_current(node);
    select_alone(node);
    tell_selection(procedures_.click);
}

void CanvasWidget::activate(TreeNode* node) {
    set_current(node);
    if (node->selected) {
        tell(procedures_.double_click);
    } else {
        select_alone(node);
        tell_selection(procedures_.double_click);
    }
}

// The view.

QPoint CanvasWidget::view_origin() const {
    return {horizontalScrollBar()->value() * pixels_per_unit, verticalScrollBar()->value() * pixels_per_unit};
}

QRect CanvasWidget::visible_area() const { return {view_origin(), viewport()->size()}; }

QRect CanvasWidget::area(const TreeNode* node) const {
    const TreeArea label = tree_.layout().area(*node);
    return {label.x, label.y, label.width, label.height};
}

TreeNode* CanvasWidget::node_at(QPoint in_view) const {
    const QPoint place = in_tree(in_view);
    return tree_.at(place.x(), place.y());
}

void CanvasWidget::set_tree_size(QSize size) {
    tree_size_ = size;
    changed();
}

QSize CanvasWidget::object_size() const {
    return tree_size_.expandedTo({tree_.layout().width(), tree_.layout().height()});
}

int CanvasWidget::view_units(Qt::Orientation orientation) const {
    const QSize view = viewport()->size();
    return (orientation == Qt::Horizontal ? view.width() : view.height()) / pixels_per_unit;
}

/// What fits into the view needs no unit more, whatever part of one is left over.
int CanvasWidget::object_units(Qt::Orientation orientation) const {
    const QSize beyond = (object_size() - viewport()->size()).expandedTo({0, 0});
    const int pixels = orientation == Qt::Horizontal ? beyond.width() : beyond.height();
    return view_units(orientation) + (pixels + pixels_per_unit - 1) / pixels_per_unit;
}

void CanvasWidget::update_scroll_bars() {
    for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()}) {
        const int view = view_units(bar->orientation());
        bar->setPageStep(view);
        bar->setRange(0, object_units(bar->orientation()) - view);
    }
}

void CanvasWidget::show_area(const QRect& area) {
    const QRect view = visible_area();
    const auto scroll = [](QScrollBar& bar, int begin, int end, int view_begin, int view_end) {
        constexpr int rounded_up = pixels_per_unit - 1;
        if (begin < view_begin || end - begin > view_end - view_begin) {
            bar.setValue(begin / pixels_per_unit);
        } else if (end > view_end) {
            bar.setValue(bar.value() + (end - view_end + rounded_up) / pixels_per_unit);
        }
    };
    scroll(*horizontalScrollBar(), area.left(), area.right(), view.left(), view.right());
    scroll(*verticalScrollBar(), area.top(), area.bottom(), view.top(), view.bottom());
}

void CanvasWidget::hold() { ++holds_; }

void CanvasWidget::release() {
    if (--holds_ == 0 && std::exchange(changed_while_held_, false)) {
        changed();
    }
}

/// The nodes or their places have changed.
void CanvasWidget::changed() {
    if (holds_ == 0) {
        update_scroll_bars();
    }
    settle();
}

void CanvasWidget::settle() {
    if (holds_ > 0) {
        changed_while_held_ = true;
        return;
    }
    viewport()->update();
    observer_->settled();
}

void CanvasWidget::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    notify_from<TreeCanvas&, int, int>(this, procedures_.resize, canvas_, viewport()->width(),
                                       viewport()->height());
    update_scroll_bars();
}

void CanvasWidget::scrollContentsBy(int dx, int dy) {
    viewport()->scroll(dx * pixels_per_unit, dy * pixels_per_unit);
}

void CanvasWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    if (tree_.size() == 0) {
        paint_empty_text(painter);
        return;
    }
    const CanvasLook look{.palette = palette(),
                          .framed = hasFocus() ? current_ : nullptr,
                          .band = band_ && band_->dragged ? band_->area() : QRect()};
    painter.translate(-view_origin());
    CanvasPainter(painter, fonts_, look).paint(tree_.layout(), event->rect().translated(view_origin()));
}

/// The line that stands there for a tree without nodes.
void CanvasWidget::paint_empty_text(QPainter& painter) const {
    constexpr int margin = 20;
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, empty_text_);
}

bool CanvasWidget::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        return show_tool_tip(*static_cast<QHelpEvent*>(event));
    }
    return QAbstractScrollArea::viewportEvent(event);
}

bool CanvasWidget::show_tool_tip(const QHelpEvent& event) {
    const TreeNode* node = node_at(event.pos());
    if (node == nullptr) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(event.globalPos(), plain_tool_tip(node->record->tool_tip()), viewport(),
                           area(node).translated(-view_origin()));
    }
    return true;
}
