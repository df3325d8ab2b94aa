// SPDX-License-Identifier: MIT
#include "toolkit/tree/tree_canvas.h"

#include "toolkit/text_conversion.h"
#include "toolkit/tree/accessible.h"
#include "toolkit/tree/canvas_widget.h"

#include <QScrollBar>

TreeCanvas::TreeCanvas(Container& parent, std::string_view accessible_name, const Procedures& procedures,
                       Menu menu, std::string_view empty_text)
    : widget_(new CanvasWidget(*this, procedures, std::move(menu), empty_text, parent.widget())) {
    make_accessible(*widget_);
    widget_->setAccessibleName(to_qstring(accessible_name));
    parent.add({}, widget_, Place::line);
}

void TreeCanvas::set_fonts(int font_size, const Font& file, const Font& directory) {
    widget_->fonts().set(font_size, file, directory);
}

Menu& TreeCanvas::menu() { return widget_->menu(); }

void TreeCanvas::set_focus() { widget_->setFocus(); }

TreeNode* TreeCanvas::add(TreeNode* parent, std::unique_ptr<NodeRecord> record, int font_size, NodeKind kind,
                          int position) {
    return widget_->add(parent, std::move(record), font_size, kind, position);
}

void TreeCanvas::destroy(TreeNode* node) { widget_->destroy(node); }

void TreeCanvas::destroy_children(TreeNode* node) {
    const RepaintHold hold(*this);
    for (TreeNode* child : children(node)) {
        destroy(child);
    }
}

void TreeCanvas::set_opened(TreeNode* node, bool opened) { widget_->set_opened(node, opened); }

int TreeCanvas::size() const { return widget_->tree().size(); }

std::vector<TreeNode*> TreeCanvas::roots() const { return widget_->tree().children(nullptr); }

std::vector<TreeNode*> TreeCanvas::children(const TreeNode* node) const {
    return widget_->tree().children(node);
}

TreeNode* TreeCanvas::parent(const TreeNode* node) const { return widget_->tree().parent(node); }

int TreeCanvas::position_among_siblings(const TreeNode* node) const { return widget_->tree().position(node); }

bool TreeCanvas::is_directory(const TreeNode* node) const { return node->directory; }

bool TreeCanvas::is_opened(const TreeNode* node) const { return node->opened; }

NodeRecord& TreeCanvas::record(const TreeNode* node) const { return *node->record; }

bool TreeCanvas::is_selected(const TreeNode* node) const { return node->selected; }

int TreeCanvas::selected_count() const { return widget_->tree().selected_count(); }

void TreeCanvas::select(TreeNode* node) { widget_->select(node); }

void TreeCanvas::deselect(TreeNode* node) { widget_->deselect(node); }

void TreeCanvas::clear_selection() { widget_->clear_selection(); }

TreeNode* TreeCanvas::current() const { return widget_->current(); }

void TreeCanvas::set_current(TreeNode* node) { widget_->set_current(node); }

TreeCanvas::Scrolling TreeCanvas::horizontal() const {
    return {CanvasWidget::pixels_per_unit, widget_->horizontalScrollBar()->value(),
            widget_->view_units(Qt::Horizontal), widget_->object_units(Qt::Horizontal)};
}

TreeCanvas::Scrolling TreeCanvas::vertical() const {
    return {CanvasWidget::pixels_per_unit, widget_->verticalScrollBar()->value(),
            widget_->view_units(Qt::Vertical), widget_->object_units(Qt::Vertical)};
}

void TreeCanvas::set_view_start(int horizontal, int vertical) {
    widget_->horizontalScrollBar()->setValue(horizontal);
    widget_->verticalScrollBar()->setValue(vertical);
}

void TreeCanvas::show(TreeNode* node) { widget_->show_area(widget_->area(node)); }

TreeCanvas::Area TreeCanvas::area(const TreeNode* node) const {
    const QRect area = widget_->area(node);
    return {area.x(), area.y(), area.width(), area.height()};
}

int TreeCanvas::width() const { return widget_->object_size().width(); }

int TreeCanvas::height() const { return widget_->object_size().height(); }

void TreeCanvas::set_size(int width, int height) { widget_->set_tree_size({width, height}); }

std::vector<TreeNode*> rectobj_get_selected_list(const TreeCanvas& canvas) {
    return canvas.widget_->tree().selected();
}

RepaintHold::RepaintHold(TreeCanvas& canvas) : widget_(*canvas.widget_) { widget_.hold(); }

RepaintHold::~RepaintHold() { widget_.release(); }
