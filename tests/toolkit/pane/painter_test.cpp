// SPDX-License-Identifier: MIT
#include "toolkit/pane/painter.h"

#include "tests/toolkit/pane/fixture.h"
#include "toolkit/pane/colours.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPaintEvent>

#include <algorithm>
#include <array>

namespace {

QRgb to_qrgb(terminal::Rgb colour) { return qRgb(colour.red, colour.green, colour.blue); }

/// Remembers where a widget was painted.
class PaintedArea : public QObject {
  public:
    QRegion region;
    int count = 0;
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            region += static_cast<QPaintEvent*>(event)->region();
            ++count;
        }
        return QObject::eventFilter(object, event);
    }
};

class TerminalPainterTest : public TerminalFixture {
  protected:
    /// The pane as it is seen, without the cursor.
    void look_at(std::string_view text) {
        show_text("\033[2J\033[H\033[?25l");
        show_text(text);
        image = view().grab().toImage();
    }
    [[nodiscard]] QRgb pixel(QPoint place) const {
        return image.pixel(place * image.devicePixelRatio()) | 0xff000000;
    }
    [[nodiscard]] QRect area(int column, int line) const {
        return view().cell_area({view().position_at({0, 0}).row + line, column});
    }
    /// Horizontal lines of about that colour in an area.
    struct Lines {
        int count = 0;
        int height = 0;      ///< from the first to the last
        bool whole = false;  ///< none has a gap
    };
    [[nodiscard]] Lines lines_in(QRect place, QRgb colour) const {
        const auto near = [](int a, int b) { return std::abs(a - b) < 80; };
        const auto is_ink = [&](int x, int y) {
            const QRgb found = pixel({x, y});
            return near(qRed(found), qRed(colour)) && near(qGreen(found), qGreen(colour)) &&
                   near(qBlue(found), qBlue(colour));
        };
        Lines lines;
        int first = 0;
        bool inside = false;
        for (int y = place.top(); y <= place.bottom(); ++y) {
            int inked = 0;
            for (int x = place.left(); x <= place.right(); ++x) {
                inked += is_ink(x, y) ? 1 : 0;
            }
            if (inked > 0) {
                first = lines.count == 0 ? y : first;
                lines.whole = (lines.count == 0 || lines.whole) && inked == place.width();
                lines.count += inside ? 0 : 1;
                lines.height = y - first + 1;
            }
            inside = inked > 0;
        }
        return lines;
    }

    const QRgb ink = to_qrgb(terminal_colours::foreground);
    const QRgb background = to_qrgb(terminal_colours::background);
    QImage image;
};

TEST_F(TerminalPainterTest, ColoursAreThoseAskedFor) {
    struct {
        const char* name;
        const char* sequence;
        QRgb background;
    } const rows[]{
        {"standard", "", background},
        {"named", "\033[41m", to_qrgb(terminal_colours::palette[1])},
        {"cube", "\033[48;5;196m", qRgb(0xff, 0, 0)},
        {"grey", "\033[48;5;232m", qRgb(8, 8, 8)},
        {"direct", "\033[48;2;1;2;3m", qRgb(1, 2, 3)},
        {"reverse", "\033[7m", ink},
        {"reverse_named", "\033[7;32m", to_qrgb(terminal_colours::palette[2])},
    };
    for (const auto& row : rows) {
        look_at(std::string(row.sequence) + " x \033[0m");
        EXPECT_EQ(pixel(area(0, 0).center()), row.background) << row.name;
    }
    look_at("\033[?5h ");
    EXPECT_EQ(pixel(area(0, 0).center()), ink) << "the whole screen";
    show_text("\033[?5l");
}

TEST_F(TerminalPainterTest, ColumnsDoNotDriftBehindWideAndCombinedCharacters) {
    look_at(
        "abcdefgh\u2588\r\n\u4e2d\u6587\u4e2d\u6587\u2588\r\ne\u0301e\u0301cdefgh\u2588\r\n"
        "\033[1;3mWWWWWWWW\033[0m\u2588\r\n\U0001f600\U0001f600abcd\u2588");
    for (int line = 0; line < 5; ++line) {
        EXPECT_EQ(pixel(area(8, line).topLeft()), ink) << line;
        EXPECT_EQ(pixel(area(9, line).topLeft()), background) << line;
    }
}

TEST_F(TerminalPainterTest, CombiningCharactersWithAWidthOfTheirOwnAreDrawnOverTheBase) {
    look_at("x\r\nx\u0336\r\nx\u20dd");
    const QRect plain = area(0, 0);
    for (int y = 0; y < plain.height(); ++y) {
        for (int x = 0; x < plain.width(); ++x) {
            const bool inked = qRed(pixel(plain.topLeft() + QPoint(x, y))) > 150;
            for (const int line : {1, 2}) {
                EXPECT_TRUE(!inked || qRed(pixel(area(0, line).topLeft() + QPoint(x, y))) > 130)
                    << "line " << line << " at " << x << ", " << y;
            }
        }
    }
}

/// Pictures have one weight; ideographs and syllables, as wide as they are, have those of the text.
TEST_F(TerminalPainterTest, WideCharactersHaveTheWeightOfTheirFace) {
    TerminalFont font(QFont(QStringLiteral("monospace"), 10), 1);
    for (const char16_t character : {u'\u4e2d', u'\uD55C', u'\u3042'}) {
        const auto weight = [&](Face face) {
            return font.shaped(QString(QChar(character)), face, 2).runs.front().rawFont().weight();
        };
        EXPECT_EQ(weight(Face::normal), QFont::Normal) << static_cast<int>(character);
        EXPECT_EQ(weight(Face::bold), QFont::Bold) << static_cast<int>(character);
    }
}

TEST_F(TerminalPainterTest, StylesDrawTheirLines) {
    const QRgb red = qRgb(255, 0, 0);
    struct {
        const char* name;
        const char* sequence;
        int lines;   ///< with nothing between them
        int height;  ///< of all together, 0 for any
        bool whole;  ///< without gaps
    } const rows[]{
        {"none", "", 0, 0, false},
        {"underline", "4", 1, 1, true},
        {"double", "21", 2, 3, true},
        {"double_by_colon", "4:2", 2, 3, true},
        {"curly", "4:3", 1, 2, false},
        {"dotted", "4:4", 1, 1, false},
        {"dashed", "4:5", 1, 1, false},
        {"struck", "9", 1, 1, true},
        {"overline", "53", 1, 1, true},
        {"invisible", "8;4;9", 0, 0, false},
        {"two_lines", "9;4", 2, 0, true},
        {"other_colour", "32;58;2;255;0;0;4", 1, 1, true},
        {"indexed", "58:5:196;4", 1, 1, true},
    };
    for (const auto& row : rows) {
        look_at(std::string("\033[38;2;255;0;0;") + row.sequence + "m        \033[0m");
        const Lines lines = lines_in(area(1, 0) | area(6, 0), red);
        EXPECT_EQ(lines.count, row.lines) << row.name;
        EXPECT_TRUE(row.height == 0 || lines.height == row.height) << row.name << ": " << lines.height;
        EXPECT_EQ(lines.whole, row.whole) << row.name;
    }
}

TEST_F(TerminalPainterTest, OnlyRowsThatBlinkArePaintedAnewAndOnlyWhileTheyAreSeen) {
    PaintedArea painted;
    look_at("\033[3;1H\033[5m\u2588\033[0m\u2588");
    view().installEventFilter(&painted);
    const auto colour_is = [this](QRgb colour) {
        return wait([&] {
            image = view().grab(area(0, 2) | area(1, 2)).toImage();
            return (image.pixel(2, 2) | 0xff000000) == colour;
        });
    };
    EXPECT_TRUE(colour_is(background));
    EXPECT_EQ(image.pixel(image.width() - 2, 2) | 0xff000000, ink) << "does not blink";
    EXPECT_TRUE(colour_is(ink));
    EXPECT_TRUE(painted.region.boundingRect().height() <= area(0, 2).height());
    show_text("\033[2J");
    EXPECT_TRUE(wait([&] {
        painted.region = {};
        return !QTest::qWaitFor([&] { return !painted.region.isEmpty(); }, 1300);
    })) << "two turns without painting";
}

TEST_F(TerminalPainterTest, TextThatTakesLongIsPaintedInPartsAndWhole) {
    window.resize(1500, 1100);  // 10,000 characters, so that no machine is done with it at once
    ASSERT_TRUE(wait([this] { return pane.columns() > 150 && pane.rows() > 50; }));
    show_text("\033[?25l");
    std::string text = "\033[H";
    const int cells = pane.rows() * pane.columns();
    for (int cell = 0; cell < cells; ++cell) {
        std::string cluster(1, static_cast<char>('a' + cell % 26));
        for (int rest = cell / 26, mark = 0; mark < 3; ++mark, rest /= 16) {
            cluster += from_qstring(QChar(0x300 + rest % 16));
        }
        text += cluster;
    }
    const auto is_shown = [this](QRect cell) {  // without painting it
        const QRect place(view().mapTo(&window, cell.topLeft()), cell.size());
        const QImage shown =
            window.screen()
                ->grabWindow(window.winId(), place.x(), place.y(), place.width(), place.height())
                .toImage();
        for (int pixel = 0; pixel < shown.width() * shown.height(); ++pixel) {
            if (qRed(shown.pixel(pixel % shown.width(), pixel / shown.width())) > 150) {
                return true;
            }
        }
        return false;
    };
    const auto places = [this] {
        const int right = pane.columns() - 1;
        return std::array{area(0, 0), area(right, pane.rows() / 2), area(right, pane.rows() - 1)};
    };
    ASSERT_TRUE(wait([&] { return std::ranges::none_of(places(), is_shown); })) << "the new size is painted";
    PaintedArea painted;
    view().installEventFilter(&painted);
    ttysw_output(pane, text);
    EXPECT_TRUE(wait([&] { return std::ranges::all_of(places(), is_shown); }));
    EXPECT_GT(painted.count, 1);
}

TEST_F(TerminalPainterTest, BellFlashesInTheMarginUnlessSwitchedOff) {
    look_at("");
    const auto frame_flashes = [this] {
        pane.ring_bell();
        image = view().grab().toImage();
        return pixel({1, 1}) == to_qrgb(terminal_colours::cursor);
    };
    pane.set_visual_bell(VisualBell::off);
    EXPECT_FALSE(frame_flashes());
    pane.set_visual_bell(VisualBell::on);
    EXPECT_TRUE(wait(frame_flashes)) << "when it has rung again: bells that follow at once are passed over";
    EXPECT_TRUE(wait([this] {
        image = view().grab().toImage();
        return pixel({1, 1}) == background;
    }));
}

TEST_F(TerminalPainterTest, CursorHasTheShapeAskedFor) {
    struct {
        const char* name;
        const char* shape;  ///< DECSCUSR, then the character under the cursor
        bool top_left, top_right, bottom_right;
        const char* move = "\033[H";
    } const rows[]{
        {"block", "2 q ", true, true, true},
        {"underline", "4 q ", false, false, true},
        {"bar", "6 q ", true, false, false},
        {"wide_block", "2 q\u4e2d", true, true, true},
        {"wide_underline", "4 q\u4e2d", false, false, true},
        {"wide_block_on_its_second_cell", "2 q\u4e2d", true, true, true, "\033[;2H"},
        {"wide_bar_on_its_second_cell", "6 q\u4e2d", true, false, false, "\033[;2H"},
    };
    const QRgb colour = to_qrgb(terminal_colours::cursor);
    for (const auto& row : rows) {
        look_at(std::string("\033[?25h\033[") + row.shape + row.move);
        const bool wide = std::string_view(row.name).starts_with("wide");
        const QRect place = area(0, 0) | area(wide ? 1 : 0, 0);
        EXPECT_EQ(pixel(place.topLeft()) == colour, row.top_left) << row.name;
        EXPECT_EQ(pixel(place.topRight()) == colour, row.top_right) << row.name;
        EXPECT_EQ(pixel(place.bottomRight()) == colour, row.bottom_right) << row.name;
    }
}

TEST_F(TerminalPainterTest, CursorBlinksAndIsSeenWhereItMoves) {
    QApplication::setCursorFlashTime(1000);
    const auto is_seen = [this](int column) {
        image = view().grab().toImage();
        return pixel(area(column, 0).center()) == to_qrgb(terminal_colours::cursor);
    };
    look_at("\033[?25h\033[1 q");
    EXPECT_TRUE(is_seen(0));
    EXPECT_TRUE(wait([&] { return !is_seen(0); }));
    show_text(" ");
    EXPECT_TRUE(wait([&] { return is_seen(1); }));
    show_text("\033[2 q");
    EXPECT_FALSE(QTest::qWaitFor([&] { return !is_seen(1); }, 700)) << "steady";
}

TEST_F(TerminalPainterTest, CursorIsFilledOnlyWithTheFocus) {
    const QRgb colour = to_qrgb(terminal_colours::cursor);
    look_at("\033[?25h");
    EXPECT_EQ(pixel(area(0, 0).center()), colour);
    pane.widget()->setFocusProxy(nullptr);
    view().clearFocus();
    ASSERT_TRUE(wait([this] {
        image = view().grab().toImage();
        return pixel(area(0, 0).center()) == background;
    }));
    EXPECT_EQ(pixel(area(0, 0).topLeft()), colour);
    pane.widget()->setFocusProxy(&view());
}

TEST_F(TerminalPainterTest, OpenUpdateIsNotPaintedForAWhile) {
    constexpr int limit_milliseconds = 150;
    start(
        "stty -echo; echo up; read a; printf '\\033[?2026hpart'; read b; printf 'whole\\033[?2026l'; exec "
        "cat");
    ASSERT_TRUE(wait_for_text("up"));
    paint();
    PaintedArea painted;
    view().installEventFilter(&painted);
    QElapsedTimer since_before;
    since_before.start();
    press(Qt::Key_Return);
    ASSERT_TRUE(wait([&] { return !painted.region.isEmpty(); })) << "also when the update never ends";
    EXPECT_TRUE(view().terminal().modes().synchronized_output);
    EXPECT_GE(since_before.elapsed(), limit_milliseconds);
    painted.region = {};
    press(Qt::Key_Return);
    EXPECT_TRUE(wait([&] { return !painted.region.isEmpty(); }));
    EXPECT_TRUE(text().ends_with("partwhole")) << text();
}

}  // namespace
