// SPDX-License-Identifier: MIT
#include "browsers/tree/plot_page.h"

#include "browsers/tree/postscript.h"
#include "tests/support/scratch_directory.h"

#include <gtest/gtest.h>

namespace {

class PlotPageTest : public testing::Test {
  protected:
    PlotPageTest() { home.write("top/a(b", ""); }
    /// A root with a file, a node whose file is gone, and a line without length.
    [[nodiscard]] std::vector<PlotNode> nodes() const {
        return {
            {.path = home / "top", .label = "top", .place = {13, 31}},
            {.path = home / "top/a(b",
             .label = "a(b",
             .place = {101, 10},
             .link = {{{51, 40}, {101, 19}}},
             .parent_characters = 3},
            {.path = home / "top/gone", .label = "gone", .place = {101, 30}, .link = {{{51, 40}, {101, 39}}}},
            {.path = home / "top", .label = "again", .place = {101, 51}, .link = {{{101, 60}, {101, 60}}}}};
    }
    [[nodiscard]] PlotPage page(PlotScale scale) const {
        Progress progress;
        return {.title = "/tmp/t.ps",
                .root_directory = "/home/top",
                .user = "tester",
                .date = "2026-11-22",
                .time = "04:05:06",
                .label_size = scale.label_size(),
                .marks = plot_marks(nodes(), find_tree_size(nodes(), scale.font_size), scale, progress)};
    }

    ScratchDirectory home;
};

TEST_F(PlotPageTest, MeasuresAndDecidesWhatFits) {
    const TreeExtents extents = find_tree_size(nodes(), 12);
    EXPECT_EQ(extents.xmin_tree, 13);
    EXPECT_EQ(extents.ymin_tree, 10);
    EXPECT_EQ(extents.xmax_tree, 101 + 36);  // "again"
    EXPECT_EQ(extents.ymax_tree, 51);
    EXPECT_EQ(label_characters("\xc3\xa4\xe2\x82\xac\xff"), 3);
    const struct {
        int width;
        int height;
        int percent;
        int paper;
        bool fits;
        int millimetres;  // of the width
    } cases[] = {{300, 100, 200, 0, false, 211}, {272, 385, 200, 0, true, 191},
                 {272, 386, 200, 0, false, 191}, {545, 771, 100, 0, true, 192},
                 {546, 771, 100, 0, false, 192}, {546, 771, 100, 1, true, 192},
                 {4663, 6595, 50, 4, true, 822}};
    for (const auto& row : cases) {
        const PlotSize size = plot_size({10, 10, 10 + row.width, 10 + row.height}, row.percent);
        EXPECT_EQ(size.fits(papers.at(static_cast<std::size_t>(row.paper))), row.fits)
            << row.width << 'x' << row.height;
        EXPECT_EQ(millimetres(size.width), row.millimetres) << row.width;
    }
}

TEST_F(PlotPageTest, IsWrittenAsPostScript) {
    const PlotPage plotted = page({150, 12});
    EXPECT_EQ(generate_psheader(plotted), R"(%!PS-Adobe-3.0
%%Creator: Orvik Command Center
%%Title: /tmp/t.ps
%%CreationDate: 2026-11-22  04:05:06
%%DocumentFonts: Courier-Bold Courier
% Plot file generated from Orvik Command Center
%%StartProlog
/FSD {findfont exch scalefont def} bind def
/SMS {setfont moveto show} bind def
%%EndProlog
%%BeginSetup
/F1 18 /Helvetica FSD
/F2 18 /Helvetica-Bold FSD
/F3 6  /Times FSD
/F4 8  /Helvetica FSD
%%EndSetup
%%Page: ? 1
0.5 setlinewidth
50 20 moveto
500 0 rlineto
0 20 rlineto
-500 0 rlineto
0 -20 rlineto
stroke
400 20 moveto
0 20 rlineto
stroke
470 20 moveto
0 20 rlineto
stroke
(Root Directory) 52 42 F3 SMS
(For) 402 42 F3 SMS
(Date) 472 42 F3 SMS
(/home/top) 52 23 F4 SMS
(tester) 402 23 F4 SMS
(2026-11-22   04:05:06) 472 23 F4 SMS
0 setlinewidth
)");
    // H is (51 + 16) * 150 / 100 = 100, the left edge 13 * 150 / 100 = 19.
    EXPECT_EQ(generate_psfile(plotted),
              "(top) 50 112 F2 SMS\n"
              "(a(b) 182 143 F1 SMS\n"
              "103 110 moveto\n"
              "182 142 lineto\n"
              "stroke\n"
              "(again) 182 82 F2 SMS\n");
    EXPECT_EQ(generate_pstrailer(), "showpage\n%%EOF\n");
    EXPECT_FALSE(is_plain_postscript(plotted));
}

TEST_F(PlotPageTest, IsTheSamePageAsADrawing) {
    const Drawing drawing = drawing_of(page({50, 14}), papers.at(1));
    EXPECT_EQ(drawing.title, "/tmp/t.ps");
    EXPECT_EQ(drawing.width, 841);
    EXPECT_EQ(drawing.height, 1190);
    ASSERT_EQ(drawing.lines.size(), 7U);  // the frame, its two upright lines, and a link
    EXPECT_EQ(drawing.lines.back().y1, 34 - 9 + 70);
    ASSERT_EQ(drawing.texts.size(), 9U);
    EXPECT_EQ(drawing.texts[5].text, "2026-11-22   04:05:06");
    EXPECT_EQ(drawing.texts[6].font, DrawnFont::sans_bold);
    EXPECT_EQ(drawing.texts[7].text, "a(b");
    EXPECT_EQ(drawing.texts[7].size, 7);
}

}  // namespace
