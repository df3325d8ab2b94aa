// SPDX-License-Identifier: MIT
#include "toolkit/help_pane.h"

#include "tests/support/scratch_directory.h"
#include "tests/toolkit/find_widget.h"
#include "toolkit/frame.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

#include <gtest/gtest.h>

namespace {

struct Help : Frame {
    Help() : Frame("Help") {}
    HelpPane text{*this, "Help text"};
};

class HelpPaneTest : public testing::Test {
  protected:
    void SetUp() override {
        folder.write("one.html", "<h1>One</h1><p>Shell, shell and SHELL.</p><a href=\"two.html\">on</a>");
        folder.write("two.html", "<h1>Two</h1><p>a shell</p>");
        help.open();
        ASSERT_TRUE(QTest::qWaitForWindowActive(help.widget()));
        ASSERT_TRUE(help.text.show_page((folder / "one.html").string()));
        browser = find<QTextBrowser>("Help text");
    }

    template <typename Widget>
    Widget* find(const QString& name) {
        return find_widget<Widget>(help.widget(), name);
    }
    [[nodiscard]] QString title() const { return browser->document()->firstBlock().text(); }
    /// Whether the window shows this beside the search field.
    [[nodiscard]] bool tells(const QString& result) const {
        const QList<QLabel*> labels = help.widget()->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
            return label->isVisible() && label->text() == result;
        });
    }
    void search(const QString& text) {
        auto* field = find<QLineEdit>("Find:");
        field->selectAll();
        QTest::keyClicks(field, text);
    }
    /// The match that is selected, and where it is in the text.
    [[nodiscard]] std::pair<std::string, int> match() const {
        const QTextCursor cursor = browser->textCursor();
        return {cursor.selectedText().toStdString(), cursor.selectionStart()};
    }
    using Match = std::pair<std::string, int>;

    ScratchDirectory folder;
    Frame base{"Base"};
    Help help;
    QTextBrowser* browser = nullptr;
};

TEST_F(HelpPaneTest, ShowsPagesFollowsALinkAndGoesBack) {
    EXPECT_EQ(title(), "One");
    for (const std::string& no_page :
         {(folder / "three.html").string(), folder.path().string(), std::string()}) {
        EXPECT_FALSE(help.text.show_page(no_page)) << no_page;
        EXPECT_EQ(title(), "One") << no_page;
    }
    auto* back = find<QPushButton>("Back");
    EXPECT_FALSE(back->isEnabled());
    ASSERT_TRUE(browser->hasFocus());
    QTest::keyClick(browser, Qt::Key_Tab);
    QTest::keyClick(browser, Qt::Key_Return);
    EXPECT_EQ(title(), "Two");
    ASSERT_TRUE(back->isEnabled());
    back->click();
    EXPECT_EQ(title(), "One");
    EXPECT_FALSE(back->isEnabled());
}

TEST_F(HelpPaneTest, SearchMarksAndCountsTheMatches) {
    const std::tuple<const char*, const char*, int> cases[] = {
        {"shell", "3 matches", 3}, {"One", "1 match", 1}, {"tcsh", "Not found", 0}};
    for (const auto& [text, result, marked] : cases) {
        search(text);
        EXPECT_TRUE(tells(result)) << text;
        EXPECT_EQ(browser->extraSelections().size(), marked) << text;
    }
    search("shell");
    ASSERT_TRUE(help.text.show_page((folder / "two.html").string()));
    EXPECT_TRUE(tells("1 match"));  // of the page that is shown
    EXPECT_EQ(browser->extraSelections().size(), 1);
    find<QLineEdit>("Find:")->clear();
    EXPECT_FALSE(tells("1 match"));
    EXPECT_EQ(browser->extraSelections().size(), 0);
}

TEST_F(HelpPaneTest, NextAndPreviousGoRoundTheEnds) {
    const Match first{"Shell", 4};
    const Match second{"shell", 11};
    const Match third{"SHELL", 21};
    search("shell");
    EXPECT_EQ(match(), first);
    auto* next = find<QPushButton>("Next");
    auto* previous = find<QPushButton>("Previous");
    const std::pair<QPushButton*, Match> clicks[] = {{next, second},     {next, third},
                                                     {next, first},      {previous, third},
                                                     {previous, second}, {previous, first}};
    for (const auto& [button, expected] : clicks) {
        button->click();
        EXPECT_EQ(match(), expected) << button->text().toStdString();
    }
    auto* field = find<QLineEdit>("Find:");
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(match(), second);
    QTest::keyClick(field, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(match(), first);
    search("tcsh");
    next->click();
    EXPECT_EQ(match().first, "");
}

}  // namespace
