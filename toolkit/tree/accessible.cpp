// SPDX-License-Identifier: MIT
#include "toolkit/tree/accessible.h"

#include "toolkit/text_conversion.h"
#include "toolkit/tree/canvas_observer.h"
#include "toolkit/tree/canvas_widget.h"
#include "toolkit/tree/shown_label.h"

#include <QAccessibleWidget>
#include <QMenu>
#include <QTimer>

#include <memory>
#include <unordered_map>
#include <vector>

namespace {

class AccessibleNodes;

/// A node of the tree.
class NodeAccessible final : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    NodeAccessible(AccessibleNodes& nodes, CanvasWidget& canvas, TreeNode& node)
        : nodes_(nodes), canvas_(canvas), node_(node) {}

    [[nodiscard]] TreeNode& node() const { return node_; }

    [[nodiscard]] bool isValid() const override { return true; }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override { return canvas_.window()->windowHandle(); }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] int childCount() const override {
        node_.children_known = true;
        return canvas_.tree().child_count(&node_);
    }
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::TreeItem; }
    [[nodiscard]] QString text(QAccessible::Text what) const override {
        switch (what) {
            case QAccessible::Name:
                return shown_label(node_.record->label);
            case QAccessible::Description:
                return to_qstring(node_.record->description());
            default:
                return {};
        }
    }
    void setText(QAccessible::Text /*what*/, const QString& /*text*/) override {}
    [[nodiscard]] QRect rect() const override {
        const QRect area = canvas_.area(&node_).translated(-canvas_.visible_area().topLeft());
        return {canvas_.viewport()->mapToGlobal(area.topLeft()), area.size()};
    }
    [[nodiscard]] QAccessible::State state() const override {
        const bool visible = canvas_.isVisible() && canvas_.visible_area().intersects(canvas_.area(&node_));
        QAccessible::State state;
        state.selectable = state.focusable = state.multiSelectable = 1;
        state.selected = node_.selected;
        state.focused = canvas_.current() == &node_ && canvas_.hasFocus();
        state.expandable = node_.directory;
        state.expanded = node_.directory && node_.children != nullptr;
        state.collapsed = node_.directory && node_.children == nullptr;
        state.offscreen = state.invisible = !visible;
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override { return {press, activate, setFocusAction()}; }
    void doAction(const QString& name) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString& name) const override {
        return name == press      ? QStringList{QStringLiteral("Space")}
               : name == activate ? QStringList{QStringLiteral("Return")}
                                  : QStringList();
    }

  private:
    inline static const QString press = QStringLiteral("press");
    inline static const QString activate = QStringLiteral("activate");

    AccessibleNodes& nodes_;
    CanvasWidget& canvas_;
    TreeNode& node_;
};

/// The nodes that assistive programs know of, and what they are told of them. Nothing is told of the others:
/// that would make an object for each.
class AccessibleNodes final : public CanvasObserver {
  public:
    explicit AccessibleNodes(CanvasWidget& canvas) : canvas_(canvas) {}
    ~AccessibleNodes() override {
        for (const auto& [node, id] : ids_) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }

    [[nodiscard]] QAccessibleInterface* of(TreeNode* node) {
        if (node == nullptr) {
            return nullptr;
        }
        if (!node->accessible) {
            node->accessible = true;
            ids_[node] = QAccessible::registerAccessibleInterface(new NodeAccessible(*this, canvas_, *node));
        }
        return QAccessible::accessibleInterface(ids_[node]);
    }
    void roots_are_known() { roots_known_ = true; }
    /// Does something with a node from the event loop, if it is still there then: a question to the user must
    /// not keep the assistive program waiting.
    template <typename Action>
    void later(TreeNode* node, Action action) {
        QTimer::singleShot(0, &canvas_, [this, node, id = ids_[node], action] {
            if (const auto known = ids_.find(node); known != ids_.end() && known->second == id) {
                action(node);
            }
        });
    }

    void added(TreeNode* node) override {
        constexpr std::size_t most_told = 16;
        const TreeNode* parent = canvas_.tree().parent(node);
        if (added_.size() < most_told && QAccessible::isActive() &&
            (parent == nullptr ? roots_known_ : parent->children_known)) {
            added_.push_back(node);
        }
    }
    void forgotten(TreeNode* node) override {
        std::erase(added_, node);
        if (node->accessible) {
            tell(node, QAccessible::ObjectDestroyed);
            QAccessible::deleteAccessibleInterface(ids_[node]);
            ids_.erase(node);
        }
    }
    void selection_changed(TreeNode* node) override {
        selection_changed_ = true;
        tell_if_known(node, node->selected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
    }
    void focused(TreeNode* node) override {
        if (QAccessible::isActive()) {
            tell(node, QAccessible::Focus);
        }
    }
    void settled() override {
        for (TreeNode* node : std::exchange(added_, {})) {
            tell(node, QAccessible::ObjectCreated);
        }
        if (std::exchange(selection_changed_, false)) {
            QAccessibleEvent event(&canvas_, QAccessible::SelectionWithin);
            QAccessible::updateAccessibility(&event);
        }
    }

  private:
    void tell(TreeNode* node, QAccessible::Event what) {
        QAccessibleEvent event(of(node), what);
        QAccessible::updateAccessibility(&event);
    }
    void tell_if_known(TreeNode* node, QAccessible::Event what) {
        if (node->accessible) {
            tell(node, what);
        }
    }

    CanvasWidget& canvas_;
    std::unordered_map<TreeNode*, QAccessible::Id> ids_;
    std::vector<TreeNode*> added_;  ///< and not told of yet
    bool roots_known_ = false;
    bool selection_changed_ = false;
};

QAccessibleInterface* NodeAccessible::parent() const {
    TreeNode* parent = canvas_.tree().parent(&node_);
    return parent == nullptr ? QAccessible::queryAccessibleInterface(&canvas_) : nodes_.of(parent);
}

QAccessibleInterface* NodeAccessible::child(int index) const {
    return nodes_.of(canvas_.tree().child(&node_, index));
}

/// The position of a child among those of `parent`, or the roots; -1 where it is none of them.
int index_among(const NodeTree& tree, const TreeNode* parent, const QAccessibleInterface* child) {
    const auto* item = dynamic_cast<const NodeAccessible*>(child);
    return item != nullptr && tree.parent(&item->node()) == parent ? tree.position(&item->node()) : -1;
}

int NodeAccessible::indexOfChild(const QAccessibleInterface* child) const {
    return index_among(canvas_.tree(), &node_, child);
}

void NodeAccessible::doAction(const QString& name) {
    if (name == setFocusAction()) {
        canvas_.setFocus();
        canvas_.go_to(&node_);
    } else if (name == press || name == activate) {
        canvas_.go_to(&node_);
        const auto act = name == press ? &CanvasWidget::press : &CanvasWidget::activate;
        nodes_.later(&node_, [&canvas = canvas_, act](TreeNode* node) { (canvas.*act)(node); });
    }
}

/// The canvas. Its context menu is one of its children while it is open: it could not be reached otherwise.
class CanvasAccessible final : public QAccessibleWidget {
  public:
    explicit CanvasAccessible(CanvasWidget* canvas) : QAccessibleWidget(canvas, QAccessible::Tree) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.multiSelectable = 1;
        return state;
    }
    [[nodiscard]] int childCount() const override {
        nodes().roots_are_known();
        return roots() + (menu().isVisible() ? 1 : 0);
    }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return index == roots() && menu().isVisible() ? QAccessible::queryAccessibleInterface(&menu())
                                                      : nodes().of(canvas().tree().child(nullptr, index));
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        return child->object() == &menu() ? roots() : index_among(canvas().tree(), nullptr, child);
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        return nodes().of(canvas().node_at(canvas().viewport()->mapFromGlobal(QPoint(x, y))));
    }
    [[nodiscard]] QAccessibleInterface* focusChild() const override {
        return canvas().hasFocus() ? nodes().of(canvas().current()) : nullptr;
    }
    [[nodiscard]] QStringList actionNames() const override {
        return QStringList{showMenuAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name == showMenuAction()) {
            canvas().open_menu_at_current();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

  private:
    [[nodiscard]] CanvasWidget& canvas() const { return *static_cast<CanvasWidget*>(widget()); }
    [[nodiscard]] AccessibleNodes& nodes() const {
        return static_cast<AccessibleNodes&>(canvas().observer());
    }
    [[nodiscard]] QMenu& menu() const { return *canvas().menu().widget(); }
    [[nodiscard]] int roots() const { return canvas().tree().child_count(nullptr); }
};

QAccessibleInterface* make_interface(const QString& /*class_name*/, QObject* object) {
    auto* const canvas = dynamic_cast<CanvasWidget*>(object);
    return canvas != nullptr ? new CanvasAccessible(canvas) : nullptr;
}

}  // namespace

void make_accessible(CanvasWidget& canvas) {
    QAccessible::installFactory(make_interface);  // a second installation is ignored
    canvas.set_observer(std::make_unique<AccessibleNodes>(canvas));
}
