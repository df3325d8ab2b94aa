// SPDX-License-Identifier: MIT
#include "tests/browsers/tree/tree_windows.h"
#include "tests/support/notice_answerer.h"
#include "ui/message_board.h"
#include "ui/plot_setup.h"

#include <QSpinBox>
#include <QXmlStreamReader>

#include <csignal>

#include <sys/resource.h>

namespace {

class PlotTest : public TreeWindows, protected NoticeAnswerer {
  protected:
    enum Destination { printer, file };

    void SetUp() override {
        TreeWindows::SetUp();
        home.write("top/<&>(\x01)", "");
        home.write("top/two words", "");
        open(child(root(path("top")), "sub"));
        plot_setup().destination.set_value(file);
    }
    [[nodiscard]] std::string plot_to(const std::string& file_name) const {
        plot_setup().file_name.set_text(file_name);
        return footer_after(Plot_to_file, plot_setup());
    }
    /// What a program that reads plots writes.
    [[nodiscard]] std::string output_of(const std::string& command) const {
        EXPECT_EQ(std::system(("cd '" + home.path().string() + "' && " + command + " >out").c_str()), 0);
        return read_file(home / "out");
    }
    static void expect_all(const std::string& text, const Labels& labels) {
        for (const std::string& label : labels) {
            EXPECT_NE(text.find(label), std::string::npos) << label << " in " << text;
        }
    }
};

TEST_F(PlotTest, IsReadByOtherPrograms) {
    plot_setup().paper_format.set_value(1);
    EXPECT_EQ(plot_to(path("tree.PDF")), "");
    EXPECT_EQ(plot_setup().right_footer(), "");
    expect_all(output_of("pdftotext tree.PDF -"),
               {"Root Directory", path("top"), "For", "top\n", "two words", "x.h", "<&>(^A)"});
    expect_all(output_of("pdfinfo tree.PDF"), {"pts (A3)", "Pages:           1"});

    EXPECT_EQ(plot_to(path("tree.svg")), "");
    std::string texts;
    QXmlStreamReader svg(QByteArray::fromStdString(read_file(home / "tree.svg")));
    while (!svg.atEnd()) {
        svg.readNext();
        texts += svg.isCharacters() ? svg.text().toString().toStdString() : "";
    }
    EXPECT_FALSE(svg.hasError()) << svg.errorString().toStdString();
    expect_all(texts, {"Root Directory", "b c", "x.h", "<&>(^A)"});

    EXPECT_EQ(plot_to(path("spoilt")), "");
    EXPECT_NE(plot_setup().right_footer(), "");
    std::filesystem::remove(home / "top/<&>(\x01)");
    EXPECT_EQ(plot_to(path("tree")), "");
    EXPECT_EQ(plot_setup().right_footer(), "");
    expect_all(output_of("gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=txtwrite -o - tree"),
               {"Root Directory", path("top"), "b c", "x.h", "deep"});
    EXPECT_GT(control<QSpinBox>(plot_setup(), "Width:").value(), 10);
    EXPECT_GT(control<QSpinBox>(plot_setup(), "Height:").value(), 10);
}

TEST_F(PlotTest, AsksWhenItIsTooBig) {
    plot_setup().scale_to.set_value(4);
    file_tree_browser().font_size.set_value(3);
    (void)AddOneLeaf(std::string(60, 'w'), path("top/a"), file_tree(), nullptr, 0, 0, 3);
    home.write("old", "kept");
    const struct {
        const char* button;
        const char* name;
        bool is_there;
        std::string begins;
    } cases[] = {{"Cancel", "new", true, ""},
                 {"Cancel", "old", true, "kept"},
                 {"Cancel", "new.pdf", false, ""},
                 {"Yes", "old", true, "%!PS-Adobe-3.0\n"}};
    for (const auto& row : cases) {
        answer(row.button);
        EXPECT_EQ(plot_to(path(row.name)), "");
        EXPECT_EQ(asked, "Plot too big to fit size of paper|Continue?") << row.name;
        EXPECT_EQ(std::filesystem::exists(home / row.name), row.is_there) << row.name;
        const std::string contents = row.is_there ? read_file(home / row.name) : "";
        EXPECT_EQ(contents.substr(0, row.begins.empty() ? std::string::npos : row.begins.size()), row.begins);
    }
}

TEST_F(PlotTest, GoesToThePlotCommand) {
    plot_setup().destination.set_value(printer);
    plot_setup().plot_command.set_text("cp -t " + home.path().string());
    EXPECT_EQ(footer_after(Plot_to_file, plot_setup()), "");
    EXPECT_TRUE(
        message_board().text.text().ends_with("cp -t " + home.path().string() + " /tmp/orvik.plot&\n"));
    EXPECT_TRUE(wait([this] { return read_file(home / "orvik.plot").ends_with("%%EOF\n"); }));
    expect_all(read_file(home / "orvik.plot"), {"%%Title: /tmp/orvik.plot\n", "(x.h) "});
}

TEST_F(PlotTest, IsRefused) {
    home.write("old.ps", "kept");
    EXPECT_EQ(plot_to(""), "Plot file name not specified");
    EXPECT_EQ(plot_to(path("top")), "Can't open plot file");
    EXPECT_EQ(plot_to(path("none/plot")), "Can't open plot file");

    struct rlimit usual {};
    getrlimit(RLIMIT_FSIZE, &usual);
    const auto handled = std::signal(SIGXFSZ, SIG_IGN);
    const struct rlimit small { 100, usual.rlim_max };
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_EQ(plot_to(path("old.ps")), "Can't write plot file: File too large");
    setrlimit(RLIMIT_FSIZE, &usual);
    std::signal(SIGXFSZ, handled);
    EXPECT_EQ(read_file(home / "old.ps"), "kept");

    plot_setup().destination.set_value(printer);
    plot_setup().plot_command.set_text("");
    EXPECT_EQ(Plot_to_file(), "Plot command not specified");
    FileTreeClearAll();
    plot_setup().plot_command.set_text("lp");
    EXPECT_EQ(Plot_to_file(), "No file trees displayed");
}

}  // namespace
