// SPDX-License-Identifier: MIT
#include "tests/support/wait_until.h"
#include "tests/toolkit/tree/canvas_fixture.h"

#include <QImage>
#include <QPalette>

#include <functional>

namespace {

class CanvasPainting : public CanvasTest {
  protected:
    [[nodiscard]] QImage picture() const { return view->viewport()->grab().toImage(); }
    [[nodiscard]] QRect area_of(const TreeNode* node) const {
        const TreeArea area = canvas.area(node);
        return QRect(area.x, area.y, area.width, area.height)
            .translated(-10 * canvas.horizontal().view_start, -10 * canvas.vertical().view_start);
    }
    /// How many pixels of an area are not of the background's colour.
    [[nodiscard]] int painted(const QRect& area) const {
        const QImage image = picture();
        const QRgb background = view->palette().color(QPalette::Base).rgb();
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                count += image.rect().contains(x, y) && image.pixel(x, y) != background ? 1 : 0;
            }
        }
        return count;
    }
    /// The room between a node and its children, beside a child.
    [[nodiscard]] QRect gap_before(const TreeNode* child) const {
        const QRect area = area_of(child);
        return {area.left() - 45, area.top(), 40, area.height()};
    }
};

TEST_F(CanvasPainting, LabelsShowWhatTheirNodesAre) {
    const auto inside = [](const QRect& area) { return area.topLeft() + QPoint(3, 3); };
    const QColor highlight = view->palette().color(QPalette::Highlight);
    EXPECT_EQ(painted(gap_before(root)), 0);
    EXPECT_GT(painted(area_of(root)), 50);
    for (const TreeNode* child : {one, two, three}) {
        EXPECT_GT(painted(gap_before(child)), 20);
    }
    canvas.set_current(other);
    canvas.select(two);
    EXPECT_EQ(picture().pixelColor(inside(area_of(two))), highlight);
    EXPECT_NE(picture().pixelColor(inside(area_of(one))), highlight);
    const int unframed = painted(area_of(one));
    canvas.set_current(one);
    EXPECT_GT(painted(area_of(one)), unframed + 30);
    const QRect mark(area_of(other).right() - 9, area_of(other).top(), 10, area_of(other).height());
    EXPECT_GT(painted(mark), 10);
    canvas.set_opened(other);
    EXPECT_EQ(painted(mark), 0);
    canvas.destroy(root);
    canvas.destroy(other);
    EXPECT_GT(painted(view->viewport()->rect()), 50);  // what to do with an empty canvas
}

TEST_F(CanvasPainting, LinksPassTheViewWhereverTheyLeadTo) {
    for (int i = 0; i < 1000; ++i) {
        add(root, "more");
    }
    const TreeArea area = canvas.area(root);
    const int left = area.right();
    for (const int row : {0, area.y / 10 - 20, canvas.vertical().object_length}) {
        canvas.set_view_start(0, row);
        const QRect view_rect = view->viewport()->rect();
        EXPECT_GT(painted({left, view_rect.height() / 2, 50, 20}), 10) << row;
    }
    canvas.set_view_start(0, area.y / 10 - 20);
    // Beside the parent, those to children beyond the view leave it here.
    EXPECT_GT(painted({left + 5, 0, 30, 10}), 20);
    EXPECT_GT(painted({left + 5, view->viewport()->height() - 10, 30, 10}), 20);
    EXPECT_EQ(painted({left + 52, 0, 3, view->viewport()->height()}), 0);  // no link goes on beyond its child
}

TEST_F(CanvasPainting, EveryChangeIsPaintedUnlessHeld) {
    struct : QObject {
        bool eventFilter(QObject* /*object*/, QEvent* event) override {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int paints = 0;
    } counter;
    view->viewport()->installEventFilter(&counter);
    const std::function<void()> changes[] = {
        [this] { canvas.select(one); },        [this] { canvas.deselect(one); },
        [this] { canvas.set_current(three); }, [this] { add(root, "new"); },
        [this] { canvas.set_opened(other); },  [this] { canvas.destroy(two); },
    };
    for (const auto& change : changes) {
        QApplication::processEvents();
        counter.paints = 0;
        change();
        EXPECT_TRUE(wait_until([&] { return counter.paints > 0; }, patience, [] { QTest::qWait(1); }))
            << &change - changes;
    }
    const RepaintHold hold(canvas);
    QApplication::processEvents();
    counter.paints = 0;
    canvas.select(one);
    add(root, "held");
    QApplication::processEvents();
    EXPECT_EQ(counter.paints, 0);
}

}  // namespace
