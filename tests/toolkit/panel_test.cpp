// SPDX-License-Identifier: MIT
#include "toolkit/panel.h"

#include "tests/toolkit/find_widget.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <QLabel>
#include <QTest>

#include <map>

#include <gtest/gtest.h>

namespace {

struct Sample : CommandFrame {
    Sample() : CommandFrame("Sample", 2) {}
    TextField first{panel, "First:"};
    NumberField second{panel, "Second label:"};
    TextField third{panel, "Third:"};
    TextField whole{panel, "Whole line:", nullptr, Place::line};
    TextField fourth{panel, "Fourth:"};
    CheckBox box{panel, "Box"};
    TextField fifth{panel, "Fifth:"};
    Choice few{panel, "Few", {"1", "2", "3", "4", "5"}};
    Choice many{panel, "Many", {"a", "b", "c", "d", "e", "f", "g"}};
    Row row{panel};
    Button left{row, "Left", nullptr};
    Stretch stretch{row};
    Button right{row, "Right", nullptr};
};

class PanelTest : public testing::Test {
  protected:
    void SetUp() override {
        sample.open();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(sample.widget()));
    }

    /// Where a control is in the window.
    [[nodiscard]] QRect place(const QString& name) const {
        const auto* widget = find_widget<QWidget>(sample.widget(), name);
        EXPECT_NE(widget, nullptr) << name.toStdString();
        return widget == nullptr ? QRect() : QRect(widget->mapTo(sample.widget(), QPoint()), widget->size());
    }
    [[nodiscard]] int middle(const QString& name) const { return place(name).center().y(); }

    Frame base{"Base"};
    Sample sample;
};

TEST_F(PanelTest, FieldsFillTheLinesFromLeftToRight) {
    // "Whole line:" takes a line of its own; so does "Box", which has no label beside it.
    const std::vector<std::vector<const char*>> lines{
        {"First:", "Second label:"},
        {"Third:"},
        {"Whole line:"},
        {"Fourth:"},
        {"Box"},
        {"Fifth:"},
        {"Few"},
        {"Many"},
        {"Left", "Right"},
    };
    int bottom = 0;
    for (const std::vector<const char*>& line : lines) {
        int right = 0;
        for (const char* name : line) {
            EXPECT_GT(place(name).left(), right) << name;
            EXPECT_GT(place(name).top(), bottom) << name;
            right = place(name).right();
        }
        EXPECT_NEAR(middle(line.front()), middle(line.back()), 1) << line.front();
        bottom = place(line.back()).bottom();
    }
    EXPECT_EQ(place("Third:").left(), place("First:").left());
    EXPECT_EQ(place("Box").left(), place("First:").left());
    EXPECT_EQ(place("Third:").right(), place("Fourth:").right());
    EXPECT_GE(place("Whole line:").right(), place("Second label:").right());
    EXPECT_LT(place("Left").left(), place("First:").left());  // a line begins at the panel's edge
    EXPECT_GE(place("Right").right(), place("Whole line:").right());
}

TEST_F(PanelTest, ALabelStandsLeftOfItsField) {
    int labels = 0;
    std::map<int, int> left_edges;  // of the labels, by their right edges
    for (const QLabel* label : sample.widget()->findChildren<QLabel*>()) {
        const QWidget* field = label->buddy();
        if (field == nullptr) {
            continue;
        }
        ++labels;
        SCOPED_TRACE(label->text().toStdString());
        EXPECT_EQ(label->text(), field->accessibleName());
        EXPECT_LT(label->geometry().right(), field->geometry().left());
        EXPECT_LE(field->geometry().left() - label->geometry().right(), 10);
        EXPECT_TRUE(field->geometry()
                        .adjusted(0, -2, 0, 2)
                        .contains(QPoint(field->geometry().left(), label->geometry().center().y())));
        ++left_edges[label->geometry().right()];
    }
    EXPECT_EQ(labels, 8);
    EXPECT_EQ(left_edges.size(), 2U) << "labels are flush right in two columns";
}

TEST_F(PanelTest, MoreThanFiveItemsTakeTwoLines) {
    for (const char* name : {"2", "3", "4", "5"}) {
        EXPECT_EQ(middle(name), middle("1")) << name;
    }
    const std::pair<const char*, const char*> columns[] = {{"a", "e"}, {"b", "f"}, {"c", "g"}};
    for (const auto& [upper, lower] : columns) {
        EXPECT_EQ(middle(upper), middle("d")) << upper;
        EXPECT_GT(place(lower).top(), place("a").bottom()) << lower;
        EXPECT_EQ(place(lower).left(), place(upper).left()) << lower;
    }
}

}  // namespace
