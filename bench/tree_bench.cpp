// SPDX-License-Identifier: MIT
// What a large tree costs: a directory expanded beside `ls -lU` on the same one, and what a user does in a
// tree of 100,000 nodes. Needs a display: tests/support/with_display gives it one.
#include "bench/large_directory.h"
#include "browsers/tree/file_tree.h"
#include "browsers/tree/listing.h"
#include "browsers/tree/open_node.h"
#include "tests/support/scratch_directory.h"
#include "toolkit/frame.h"
#include "toolkit/tree/tree_canvas.h"
#include "ui/file_tree_browser.h"
#include "ui/windows.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>

#include <cstdlib>
#include <memory>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <malloc.h>

namespace {

constexpr int many = 100'000;

struct TreeWindow : CommandFrame {
    TreeWindow() : CommandFrame("Tree") {
        resize(1000, 650);
        open();
        (void)QTest::qWaitForWindowActive(widget());
        view = widget()->findChild<QAbstractScrollArea*>();
    }

    TreeNode* leaf(TreeNode* parent, const std::string& name, NodeKind kind = NodeKind::file) {
        const bool is_root = parent == nullptr;
        const auto* above = is_root ? nullptr : static_cast<FileTag*>(&canvas.record(parent));
        auto tag = std::make_unique<FileTag>(name, is_root ? "/usr/share" : "", above, FileGlance{});
        return canvas.add(parent, std::move(tag), 1, kind);
    }
    void paint() const {
        QApplication::processEvents();
        view->viewport()->repaint();
    }
    void mouse(QEvent::Type type, QPoint place) const {
        const Qt::MouseButton held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, place, view->viewport()->mapToGlobal(place), Qt::LeftButton, held, {});
        event.setTimestamp(time);
        QApplication::sendEvent(view->viewport(), &event);
    }
    void click(const TreeNode* node) {
        constexpr ulong later = 1000;  // milliseconds: no double click
        time += later;
        const TreeCanvas::Area area = canvas.area(node);
        const QPoint place(area.x + 5 - 10 * canvas.horizontal().view_start,
                           area.y + 5 - 10 * canvas.vertical().view_start);
        mouse(QEvent::MouseButtonPress, place);
        mouse(QEvent::MouseButtonRelease, place);
    }

    TreeCanvas canvas{panel, "Tree", {}, Menu("Options"), "Nothing"};
    QAbstractScrollArea* view = nullptr;
    ulong time = 0;  ///< of mouse events
};

/// Read, examined, sorted, added and painted.
void ExpandInTheTree(benchmark::State& state) {
    const std::string path = large_directory().path().string();
    create_windows();
    file_tree_browser().max_files.set_value(most_files);
    file_tree_browser().open();
    TreeNode* root = AddOneLeaf("root", path, file_tree(), nullptr, 0, 1, 1);
    QWidget* view = file_tree_browser().widget()->findChild<QAbstractScrollArea*>()->viewport();
    for (auto _ : state) {
        Progress progress;
        AddInstanceNames(root, list_for_tree(path, {}, progress));
        QApplication::processEvents();
        view->repaint();
        state.PauseTiming();
        if (file_tree().size() != most_files + 1) {
            state.SkipWithError("the directory could not be read");
        }
        file_tree().destroy_children(root);
        QApplication::processEvents();
        state.ResumeTiming();
    }
    destroy_windows();
}
BENCHMARK(ExpandInTheTree)->UseRealTime()->Unit(benchmark::kMillisecond);

/// All below one node, or three levels of 46 each.
enum Shape { flat, deep };

/// A tree of 100,000 nodes; the view is on its middle.
class ManyNodes : public TreeWindow {
  public:
    explicit ManyNodes(const benchmark::State& state) {
        const auto before = mallinfo2();
        {
            const RepaintHold hold(canvas);
            root = leaf(nullptr, "root", NodeKind::directory);
            state.range(0) == flat ? fill(root, many, 0) : fill(root, 46, 2);
        }
        const auto after = mallinfo2();
        megabytes = double(after.uordblks + after.hblkhd - before.uordblks - before.hblkhd) / 1e6;
        middle = nodes[nodes.size() / 2];
        const int row = canvas.area(middle).y / 10;
        canvas.set_view_start(0, row - canvas.vertical().view_length / 2);
        paint();
    }

    TreeNode* root = nullptr;
    TreeNode* middle = nullptr;
    std::vector<TreeNode*> nodes;  ///< without children
    double megabytes = 0;          ///< with the records

  private:
    void fill(TreeNode* parent, int count, int levels_below) {
        for (int i = 0; i < count; ++i) {
            TreeNode* node = leaf(parent, fmt::format("some_file_{}.cpp", i),
                                  levels_below > 0 ? NodeKind::directory : NodeKind::file);
            if (levels_below > 0) {
                fill(node, count, levels_below - 1);
            } else {
                nodes.push_back(node);
            }
        }
    }
};

void Click(benchmark::State& state) {
    ManyNodes window(state);
    for (auto _ : state) {
        window.click(window.middle);
        window.paint();
    }
    state.counters["MB"] = window.megabytes;
}

/// Twenty entries.
void ExpandSmall(benchmark::State& state) {
    ManyNodes window(state);
    for (auto _ : state) {
        {
            const RepaintHold hold(window.canvas);
            for (int i = 0; i < 20; ++i) {
                window.leaf(window.middle, "some entry");
            }
        }
        window.paint();
        state.PauseTiming();
        window.canvas.destroy_children(window.middle);
        state.ResumeTiming();
    }
}

/// Drawn over the whole view, and let go.
void RubberBand(benchmark::State& state) {
    const ManyNodes window(state);
    const QPoint end(1, window.view->viewport()->height() - 1);
    for (auto _ : state) {
        window.mouse(QEvent::MouseButtonPress, QPoint(window.view->viewport()->width() - 1, 1));
        window.mouse(QEvent::MouseMove, end);
        window.paint();
        window.mouse(QEvent::MouseButtonRelease, end);
        window.paint();
    }
    if (window.canvas.selected_count() == 0) {
        state.SkipWithError("the band has touched nothing");
    }
}

/// Drawn from the first node to the last one.
void RubberBandOverAll(benchmark::State& state) {
    ManyNodes window(state);
    const QSize view = window.view->viewport()->size();
    for (auto _ : state) {
        state.PauseTiming();
        window.canvas.set_view_start(0, 0);
        window.mouse(QEvent::MouseButtonPress, QPoint(view.width() - 1, 1));
        window.canvas.set_view_start(0, window.canvas.vertical().object_length);
        window.mouse(QEvent::MouseMove, QPoint(1, view.height() - 1));
        window.paint();
        state.ResumeTiming();
        window.mouse(QEvent::MouseButtonRelease, QPoint(1, view.height() - 1));
        window.paint();
    }
    if (window.canvas.selected_count() != window.canvas.size()) {
        state.SkipWithError("the band has not touched all nodes");
    }
}

/// There and back, so two pages.
void ScrollTwoPages(benchmark::State& state) {
    const ManyNodes window(state);
    QScrollBar* bar = window.view->verticalScrollBar();
    for (auto _ : state) {
        bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
        window.paint();
        bar->triggerAction(QAbstractSlider::SliderPageStepSub);
        window.paint();
    }
}

/// All nodes are selected before the click.
void ClickAfterSelectingAll(benchmark::State& state) {
    ManyNodes window(state);
    for (auto _ : state) {
        state.PauseTiming();
        {
            const RepaintHold hold(window.canvas);
            for (TreeNode* node : window.nodes) {
                window.canvas.select(node);
            }
        }
        window.paint();
        state.ResumeTiming();
        window.click(window.middle);
        window.paint();
    }
}

void DestroyAll(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        ManyNodes window(state);
        state.ResumeTiming();
        window.canvas.destroy(window.root);
        window.paint();
    }
}

BENCHMARK(Click)->Arg(flat)->Arg(deep)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ExpandSmall)->Arg(flat)->Arg(deep)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(RubberBand)->Arg(flat)->Arg(deep)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(RubberBandOverAll)->Arg(flat)->Arg(deep)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ScrollTwoPages)->Arg(flat)->Arg(deep)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ClickAfterSelectingAll)->Arg(flat)->Arg(deep)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(DestroyAll)->Arg(flat)->Arg(deep)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
