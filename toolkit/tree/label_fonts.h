// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/font.h"
#include "toolkit/tree/node_tree.h"

#include <QFont>
#include <QSize>

#include <array>
#include <memory>

/// A font for labels, measured.
struct LabelFont {
    explicit LabelFont(const QFont& wanted);

    QFont font;
    int ascent;
    int height;                          ///< of a line
    std::array<double, 128> advances{};  ///< of printable ASCII: most labels are measured by adding these up
};

/// The fonts of a canvas: one of each size for files, one for directories. Found when they are first used.
class LabelFonts {
  public:
    static constexpr int sizes = 4;      ///< extra small, small, medium and large
    static constexpr int padding = 5;    ///< left and right of the text
    static constexpr int mark_room = 9;  ///< at the right edge of a directory that has not been opened
    static constexpr int line_room = 1;  ///< above and below the text

    void set(int font_size, const Font& file, const Font& directory);
    [[nodiscard]] const LabelFont& of(const TreeNode& node);
    /// How much room a node's label takes.
    [[nodiscard]] QSize size(const TreeNode& node);

  private:
    struct Pair {
        Font file;
        Font directory;
    };
    std::array<Pair, sizes> wanted_;
    std::array<std::unique_ptr<LabelFont>, 2 * sizes> found_;
};
