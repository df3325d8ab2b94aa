// SPDX-License-Identifier: MIT
#include "toolkit/pane/link.h"

#include "tests/support/scratch_directory.h"
#include "tests/toolkit/pane/fixture.h"

#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>

#include <cstdlib>

namespace {

namespace fs = std::filesystem;

TEST(TerminalLink, OnlyWhatShowsSomethingIsOpened) {
    const ScratchDirectory scratch;
    const std::string here = scratch.path();
    for (const char* name : {"notes.txt", "a b.txt", "plain", "start.desktop", "app.jar", "web.jnlp"}) {
        scratch.write(name, "some text\n");
    }
    scratch.write_script("run.sh", "#!/bin/sh\n");
    fs::create_symlink("run.sh", scratch.path() / "link.txt");
    const struct {
        std::string address;
        const char* refusal;  ///< part of it; empty when opened
    } rows[]{
        {"https://example.org/a?b=c#d", ""},
        {"HTTP://example.org", ""},
        {"mailto:user@example.org?Subject=a%20b&cc=x@example.org&body=c", ""},
        {"mailto:user@example.org?subject=a&attach=/etc/passwd", "take a file along"},
        {"mailto:user@example.org?%41ttachment=/etc/passwd", "take a file along"},
        {"file://" + here, ""},
        {"file://" + here + "/notes.txt", ""},
        {"file:" + here + "/notes.txt", ""},
        {"file://localhost" + here + "/a%20b.txt", ""},
        {"file://This.Host" + here + "/plain", ""},
        {"file://elsewhere" + here + "/notes.txt", "another host, elsewhere"},
        {"file://" + here + "/missing.txt", "no such file"},
        {"file://" + here + "/notes.txt%00.sh", "control characters"},
        {"file://" + here + "/run.sh", "no document"},
        {"file://" + here + "/link.txt", "no document"},
        {"file://" + here + "/start.desktop", "no document"},
        {"file://" + here + "/app.jar", "no document"},
        {"file://" + here + "/web.jnlp", "no document"},
        {"file:///dev/null", "no document"},
        {"ssh://host", "\"ssh:\" are not opened"},
        {"ssh:-oProxyCommand=xterm", "not opened"},
        {"telnet://host", "not opened"},
        {"x-man-page://ls", "not opened"},
        {"javascript:alert(1)", "not opened"},
        {"data:text/html,x", "not opened"},
        {"http:///path", "no host"},
        {"https://[::1", "no valid address"},
        {"-oProxyCommand=xterm", "no valid address"},
        {"example.org", "no valid address"},
        {"", "no valid address"},
    };
    for (const auto& row : rows) {
        const std::string refusal = link_refusal(row.address, "this.host");
        EXPECT_TRUE(*row.refusal == '\0' ? refusal.empty() : refusal.find(row.refusal) != std::string::npos)
            << row.address << ": " << refusal;
    }
}

class TerminalLinkTest : public TerminalFixture {
  protected:
    void SetUp() override {
        TerminalFixture::SetUp();
        const std::string file = opened_file();
        scratch.write_script("xdg-open", "#!/bin/sh\nprintf '%s|' \"$#\" \"$@\" >" + file + ".new\nmv " +
                                             file + ".new " + file + "\n");
        setenv("PATH", (scratch.path().string() + ':' + path).c_str(), 1);
        const std::string more_than_a_row(static_cast<std::size_t>(pane.columns()) + 10, ' ');
        show_text("\033[H\033]8;;" + address + "\033\\" + more_than_a_row + "\033]8;;\033\\ rest");
    }
    void TearDown() override { setenv("PATH", path.c_str(), 1); }

    [[nodiscard]] std::string opened_file() const { return scratch.path() / "opened"; }
    [[nodiscard]] static QDialog* notice() {
        return qobject_cast<QDialog*>(QApplication::activeModalWidget());
    }
    [[nodiscard]] static QPushButton* button(const char* label) {
        for (QPushButton* each : notice()->findChildren<QPushButton*>()) {
            if (each->text() == QLatin1String(label)) {
                return each;
            }
        }
        return nullptr;
    }
    void click(QPoint place, Qt::KeyboardModifiers modifiers) const {
        QTest::mouseClick(&view(), Qt::LeftButton, modifiers, place);
    }

    const ScratchDirectory scratch;
    const std::string path = getenv("PATH");
    const std::string address = "https://example.org@evil.example/?a=$(id)&b='c'";
};

TEST_F(TerminalLinkTest, IsOpenedWithControlAndAClickOnceItsAddressWasSeen) {
    click(cell(3, 0), {});
    click(cell(79, 1), Qt::ControlModifier);  // behind the link
    EXPECT_EQ(notice(), nullptr);
    click(cell(3, 0), Qt::ControlModifier);
    ASSERT_TRUE(wait([] { return notice() != nullptr; }));
    EXPECT_EQ(from_qstring(notice()->findChild<QPlainTextEdit*>()->toPlainText()), address);
    QTest::mouseClick(button("Cancel"), Qt::LeftButton);
    ASSERT_TRUE(wait([] { return notice() == nullptr; }));
    EXPECT_FALSE(fs::exists(opened_file()));
    EXPECT_TRUE(wait([this] { return view().hasFocus(); }));

    click(cell(3, 0), Qt::ControlModifier);
    ASSERT_TRUE(wait([] { return notice() != nullptr; }));
    QTest::mouseClick(button("Open"), Qt::LeftButton);
    ASSERT_TRUE(wait([this] { return fs::exists(opened_file()); }));
    EXPECT_EQ(read_file(opened_file()), "1|" + address + '|');
}

TEST_F(TerminalLinkTest, CanBeAPlainWebAddress) {
    show_text("\033[2J\033[Hsee (https://example.org/a), or not\n");
    click(cell(2, 0), Qt::ControlModifier);
    EXPECT_EQ(notice(), nullptr);
    QTest::mouseMove(&view(), cell(8, 0));
    const terminal::RowId row = view().position_at({0, 0}).row;
    EXPECT_EQ(view().link_at(cell(8, 0)), "https://example.org/a");
    EXPECT_TRUE(wait([&] { return view().address_in(row) == Columns{5, 26}; }));
    click(cell(8, 0), Qt::ControlModifier);
    ASSERT_TRUE(wait([] { return notice() != nullptr; }));
    EXPECT_EQ(notice()->findChild<QPlainTextEdit*>()->toPlainText(), "https://example.org/a");
    QTest::mouseClick(button("Cancel"), Qt::LeftButton);
}

TEST_F(TerminalLinkTest, ThatStartsAProgramCanOnlyBeCopied) {
    show_text("\033[H\033]8;;ssh://host/\033\\link\033]8;;\033\\");
    click(cell(1, 0), Qt::ControlModifier);
    ASSERT_TRUE(wait([] { return notice() != nullptr; }));
    EXPECT_EQ(button("Open"), nullptr);
    QTest::mouseClick(button("Copy Address"), Qt::LeftButton);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "ssh://host/");
}

TEST_F(TerminalLinkTest, IsUnderlinedWhereverItIsSeenWhileThePointerIsOnIt) {
    const auto underlined = [this](int column) {
        const QImage image =
            view().grab(view().cell_area({view().position_at({0, 0}).row + 1, column})).toImage();
        bool lined = false;
        for (int y = 0; y < image.height(); ++y) {
            lined = lined || image.pixel(2, y) != image.pixel(2, 0);
        }
        return lined;
    };
    EXPECT_FALSE(underlined(3));
    QTest::mouseMove(&view(), cell(3, 0));
    EXPECT_TRUE(wait([&] { return underlined(3); }));
    EXPECT_FALSE(underlined(10));
    EXPECT_EQ(view().cursor().shape(), Qt::IBeamCursor);
    QTest::keyPress(&view(), Qt::Key_Control);
    EXPECT_EQ(view().cursor().shape(), Qt::PointingHandCursor);
    QTest::keyRelease(&view(), Qt::Key_Control);
    EXPECT_EQ(view().cursor().shape(), Qt::IBeamCursor);
    show_text("\033[H\033[2L");  // the text moves away from under the pointer
    EXPECT_TRUE(wait([&] { return !underlined(3); }));
}

}  // namespace
