// SPDX-License-Identifier: MIT
#include "tests/support/wait_until.h"
#include "tests/toolkit/tree/canvas_fixture.h"

#include <QAccessible>
#include <QMenu>

#include <algorithm>

namespace {

/// What an assistive program is told: the event, and the name of its object as long as it has one.
std::vector<std::string> heard;

void hear(QAccessibleEvent* event) {
    const std::pair<QAccessible::Event, const char*> kinds[] = {
        {QAccessible::Focus, "focus "},
        {QAccessible::SelectionAdd, "select "},
        {QAccessible::SelectionRemove, "deselect "},
        {QAccessible::SelectionWithin, "selection in "},
        {QAccessible::ObjectCreated, "new "},
        {QAccessible::ObjectDestroyed, "gone "},
    };
    for (const auto& [type, kind] : kinds) {
        if (event->type() == type) {
            heard.push_back(kind + event->accessibleInterface()->text(QAccessible::Name).toStdString());
        }
    }
}

class CanvasAccessibility : public CanvasTest {
  protected:
    void SetUp() override {
        CanvasTest::SetUp();
        tree = QAccessible::queryAccessibleInterface(view);
        ASSERT_NE(tree, nullptr);
        heard.clear();
        before = QAccessible::installUpdateHandler(hear);
    }
    void TearDown() override { QAccessible::installUpdateHandler(before); }

    /// One line a node, indented: its name, description and states.
    [[nodiscard]] static std::string dump(QAccessibleInterface* item, int depth = 0) {
        const QAccessible::State state = item->state();
        const std::pair<bool, const char*> states[] = {
            {state.selectable, ""},        {state.selected, " selected"},
            {state.focused, " focused"},   {state.expandable, " expandable"},
            {state.expanded, " expanded"}, {state.invisible, " hidden"},
            {!state.focusable, " ?"},      {item->role() != QAccessible::TreeItem, " ?"},
        };
        std::string text(static_cast<std::size_t>(2 * depth), ' ');
        text += item->text(QAccessible::Name).toStdString() + " (" +
                item->text(QAccessible::Description).toStdString() + ")";
        for (const auto& [set, name] : states) {
            text += set ? name : "";
        }
        text += '\n';
        for (int i = 0; i < item->childCount(); ++i) {
            EXPECT_EQ(item->indexOfChild(item->child(i)), i);
            EXPECT_EQ(item->child(i)->parent(), item);
            text += dump(item->child(i), depth + 1);
        }
        return text;
    }
    [[nodiscard]] static std::vector<std::string> newly_heard() { return std::exchange(heard, {}); }
    using Heard = std::vector<std::string>;

    QAccessibleInterface* tree = nullptr;
    QAccessible::UpdateHandler before = nullptr;
};

TEST_F(CanvasAccessibility, TheTreeIsReadAsItIs) {
    TreeNode* odd = canvas.add(other, std::make_unique<SampleRecord>("a\nb", "/a\nb"), 1, NodeKind::file);
    canvas.select(two);
    canvas.set_current(odd);
    EXPECT_EQ(tree->role(), QAccessible::Tree);
    EXPECT_EQ(tree->text(QAccessible::Name), "Sample tree");
    ASSERT_EQ(tree->childCount(), 2);
    EXPECT_EQ(dump(tree->child(0)),
              "root (/root) expandable expanded\n"
              "  one (/one)\n"
              "  two (/two) selected expandable expanded\n"
              "    deep (/deep)\n"
              "  three (/three)\n");
    EXPECT_EQ(dump(tree->child(1)), "other (/other) expandable expanded\n  a^Jb (/a\nb) focused\n");
    EXPECT_EQ(tree->indexOfChild(tree->child(1)), 1);
    EXPECT_EQ(tree->child(1)->parent(), tree);
    EXPECT_EQ(tree->focusChild(), tree->child(1)->child(0));
}

TEST_F(CanvasAccessibility, ANodeIsWhereItsLabelIs) {
    for (int i = 0; i < 100; ++i) {
        add(root, "more");
    }
    canvas.set_view_start(0, 0);
    QAccessibleInterface* first = tree->child(0)->child(0);
    QAccessibleInterface* last = tree->child(0)->child(102);
    const TreeArea area = canvas.area(one);
    const QPoint place = view->viewport()->mapToGlobal(QPoint(area.x, area.y));
    EXPECT_EQ(first->rect(), QRect(place, QSize(area.width, area.height)));
    EXPECT_EQ(tree->childAt(place.x() + 2, place.y() + 2), first);
    EXPECT_FALSE(first->state().invisible);
    EXPECT_TRUE(last->state().invisible);
    EXPECT_GT(last->rect().top(), view->viewport()->mapToGlobal(QPoint(0, view->viewport()->height())).y());
    last->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_FALSE(last->state().invisible);
    EXPECT_TRUE(last->state().focused);
}

TEST_F(CanvasAccessibility, ActionsAreThoseOfTheKeyboard) {
    QAccessibleActionInterface* action = tree->child(0)->child(1)->actionInterface();
    EXPECT_EQ(action->actionNames(), (QStringList{"press", "activate", "SetFocus"}));
    canvas.select(one);
    action->doAction("press");
    EXPECT_TRUE(wait_until([] { return !told.empty(); }, patience, [] { QTest::qWait(5); }));
    EXPECT_EQ(newly_told(), (Told{"selection", "click"}));
    EXPECT_EQ(selected(), Nodes{two});
    action->doAction("activate");
    EXPECT_TRUE(wait_until([] { return !told.empty(); }, patience, [] { QTest::qWait(5); }));
    EXPECT_EQ(newly_told(), Told{"double click"});
    action->doAction("press");
    canvas.destroy(two);
    QTest::qWait(0);
    EXPECT_EQ(newly_told(), Told{});
    tree->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(canvas.menu().widget()->isVisible());
    EXPECT_EQ(tree->childCount(), 3);
    EXPECT_EQ(tree->child(2)->object(), canvas.menu().widget());
    canvas.menu().widget()->close();
}

TEST_F(CanvasAccessibility, OnlyNodesThatWereAskedForAreToldOf) {
    canvas.select(one);
    EXPECT_EQ(newly_heard(), Heard{"selection in Sample tree"});
    ASSERT_EQ(tree->child(0)->child(0)->text(QAccessible::Name), "one");
    canvas.deselect(one);
    EXPECT_EQ(newly_heard(), (Heard{"deselect one", "selection in Sample tree"}));
    canvas.set_current(three);
    EXPECT_EQ(newly_heard(), Heard{"focus three"});
    add(two, "unseen");
    EXPECT_EQ(newly_heard(), Heard{});
    ASSERT_EQ(tree->child(0)->childCount(), 3);
    add(root, "seen");
    EXPECT_EQ(newly_heard(), Heard{"new seen"});
    const QAccessible::Id id = QAccessible::uniqueId(tree->child(0)->child(0));
    canvas.destroy(one);
    EXPECT_EQ(newly_heard(), Heard{"gone one"});
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST_F(CanvasAccessibility, ManyChangesAtOnceMakeFewEvents) {
    ASSERT_EQ(tree->child(0)->childCount(), 3);
    {
        const RepaintHold hold(canvas);
        for (int i = 0; i < 1000; ++i) {
            canvas.select(add(root, "more"));
        }
        EXPECT_EQ(newly_heard(), Heard{});
    }
    EXPECT_LT(newly_heard().size(), 40U);
    canvas.clear_selection();
    EXPECT_LT(std::ranges::count(newly_heard(), "selection in Sample tree"), 2);
}

}  // namespace
