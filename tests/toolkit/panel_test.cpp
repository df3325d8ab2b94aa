// SPDX-License-Identifier: MIT
#include "toolkit/panel.h"

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
        for (const QWidget* widget : sample.widget()->findChildren<QWidget*>()) {
            if (widget->accessibleName() == name) {
                return {widget->mapTo(sample.widget(), QPoint(0, 0)), widget->size()};
            }
        }
        ADD_FAILURE() << name.toStdString();
        return {};
    }
    [[nodiscard]] int middle(const QString& name) const { return place(name).center().y(); }

    Frame base{"Base"};
    Sample sample;
};

TEST_F(PanelTest, FieldsFillTheLinesFromLeftToRight) {
    const std::vector<std::vector<const char*>> lines{
        {"First:", "Second label:"},
        {"Third:"},
        {"Whole line:"},  // takes a line of its own
        {"Fourth:"},
        {"Box"},  // without a label beside it: a new line, and no field of it
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
    const std::vector<const char*> upper{"a", "b", "c", "d"};
    const std::vector<const char*> lower{"e", "f", "g"};
    for (std::size_t i = 0; i < upper.size(); ++i) {
        EXPECT_EQ(middle(upper[i]), middle("a")) << upper[i];
    }
    for (std::size_t i = 0; i < lower.size(); ++i) {
        EXPECT_GT(place(lower[i]).top(), place("a").bottom()) << lower[i];
        EXPECT_EQ(place(lower[i]).left(), place(upper[i]).left()) << lower[i];
    }
}

}  // namespace
