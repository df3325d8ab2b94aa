// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/drawing.h"
#include "toolkit/progress.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

// The tree on paper: what stands where, in points from the paper's lower left corner. Nothing here knows a
// window or a file's format.

struct PlotPoint {
    int x = 0;
    int y = 0;
    bool operator==(const PlotPoint&) const = default;
};
struct PlotLine {
    PlotPoint from;
    PlotPoint to;
};

/// A node as the canvas shows it: pixels from the tree's upper left corner, downwards.
struct PlotNode {
    std::string path;
    std::string label;
    PlotPoint place;                    ///< the label's upper left corner
    std::optional<PlotLine> link = {};  ///< from its parent's label to its own
    int parent_characters = 0;          ///< of its parent's label
};

/// Portrait, in points.
struct Paper {
    int long_side;
    int short_side;
};
// By the items of the "Plot Setup Window", and of the browser's "Font Size".
inline constexpr std::array papers{Paper{841, 595}, Paper{1190, 841}, Paper{1684, 1190}, Paper{2381, 1684},
                                   Paper{3367, 2381}};
inline constexpr std::array plot_percents{50, 75, 100, 150, 200};
inline constexpr std::array plot_font_sizes{10, 12, 14, 14};

struct PlotScale {
    int percent;
    int font_size;  ///< of the labels, before they are scaled

    [[nodiscard]] int label_size() const { return percent * font_size / 100; }
};

/// The room that a tree takes on the canvas, in pixels.
struct TreeExtents {
    int xmin_tree = 100'000'000;
    int ymin_tree = 100'000'000;
    int xmax_tree = 0;
    int ymax_tree = 0;  ///< the top of the lowest label
};
TreeExtents find_tree_size(const std::vector<PlotNode>& nodes, int font_size);
/// How many characters a label has; a byte that is no UTF-8 counts as one.
int label_characters(std::string_view label);

/// In points.
struct PlotSize {
    int width;
    int height;

    [[nodiscard]] bool fits(const Paper& paper) const;
};
PlotSize plot_size(const TreeExtents& extents, int percent);
int millimetres(int points);

/// A node on the page.
struct PlotMark {
    std::string label;
    bool is_directory;
    PlotPoint place;               ///< where the label's base line begins
    std::optional<PlotLine> line;  ///< from its parent
};
/// Places the nodes whose paths lead somewhere; fewer when it is asked to stop. Asks the disk for each.
std::vector<PlotMark> plot_marks(const std::vector<PlotNode>& nodes, const TreeExtents& extents,
                                 PlotScale scale, Progress& progress);

struct PlotPage {
    std::string title;
    std::string root_directory;
    std::string user;
    std::string date;
    std::string time;
    int label_size = 0;
    std::vector<PlotMark> marks;
};

// The title block at the foot of the page.

/// A frame with upright lines in it.
struct TitleFrame {
    PlotPoint corner{50, 20};
    int width = 500;
    int height = 20;
    std::array<int, 2> upright{400, 470};
};
inline constexpr TitleFrame title_frame;

struct TitleText {
    enum class Kind : bool { heading, value };
    std::string text;
    PlotPoint place;
    Kind kind;
};
inline constexpr int heading_size = 6;
inline constexpr int value_size = 8;
std::vector<TitleText> title_texts(const PlotPage& page);

/// The page for formats that the toolkit writes.
Drawing drawing_of(const PlotPage& page, const Paper& paper);
