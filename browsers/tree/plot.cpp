// SPDX-License-Identifier: MIT
// "Plot Setup Window": the tree on paper, or in a file.
#include "browsers/file_facts.h"
#include "browsers/notify.h"
#include "browsers/tree/file_tree.h"
#include "browsers/tree/plot_page.h"
#include "browsers/tree/postscript.h"
#include "browsers/window_work.h"
#include "shell/background.h"
#include "shell/command_line.h"
#include "shell/files.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "shell/text.h"
#include "toolkit/notice.h"
#include "ui/file_tree_browser.h"
#include "ui/plot_setup.h"

#include <cstdint>
#include <cstring>
#include <ctime>
#include <memory>
#include <utility>

#include <fmt/format.h>
#include <unistd.h>

namespace {

constexpr char printed_file[] = "/tmp/orvik.plot";
constexpr std::string_view items_label = "Files plotted";
constexpr std::string_view names_spoil_postscript =
    "Not all names show in PostScript as they are: in a .pdf file they do";
const Message cannot_open = "Can't open plot file";

/// What is to be plotted, and how. It is copied into the threads that do it.
struct Plot {
    std::shared_ptr<const std::vector<PlotNode>> nodes;
    PlotScale scale{};
    TreeExtents extents;
    Paper paper{};
    std::string printed_by;  ///< the plot command; empty for a file
    std::string file_name;
    PlotPage page;
    SaveOptions saving;

    [[nodiscard]] bool is_printed() const { return !printed_by.empty(); }
};

void add_nodes(std::vector<PlotNode>& nodes, const TreeNode* node, const TreeNode* parent) {
    const FileTag& tag = file_tag(node);
    const TreeArea area = file_tree().area(node);
    PlotNode plotted{.path = tag.path(), .label = tag.label, .place = {area.x, area.y}};
    if (parent != nullptr) {
        const TreeArea from = file_tree().area(parent);
        plotted.link = {{from.right(), from.y + from.height / 2}, {area.x, area.y + area.height / 2}};
        plotted.parent_characters = label_characters(file_tag(parent).label);
    }
    nodes.push_back(std::move(plotted));
    for (const TreeNode* child : file_tree().children(node)) {
        add_nodes(nodes, child, node);
    }
}

/// In the order of the tree, a node before its children.
std::vector<PlotNode> shown_nodes() {
    std::vector<PlotNode> nodes;
    for (const TreeNode* root : file_tree().roots()) {
        add_nodes(nodes, root, nullptr);
    }
    return nodes;
}

Plot plot_as_set() {
    const PlotSetup& window = plot_setup();
    Plot plot{.nodes = std::make_shared<const std::vector<PlotNode>>(shown_nodes())};
    plot.scale = {plot_percents.at(window.scale_to.value()),
                  plot_font_sizes.at(file_tree_browser().font_size.value())};
    plot.extents = find_tree_size(*plot.nodes, plot.scale.font_size);
    plot.paper = papers.at(window.paper_format.value());
    if (window.destination.value() == PlotSetup::printer) {
        plot.printed_by = window.plot_command.text();
        // Everybody may write into /tmp: a link that somebody has put there must not lead to another file.
        plot.saving = {.links = Links::replace, .exact_mode = 0600, .durability = Durability::renamed};
    }
    plot.file_name = window.file_name.text();
    plot.page.root_directory = file_tree_browser().root_directory.text();
    const char* const login = getlogin();
    plot.page.user = login == nullptr ? user_name : login;
    plot.page.label_size = plot.scale.label_size();
    const std::string now = status_time(std::time(nullptr));
    plot.page.date = now.substr(0, now.find(' '));
    plot.page.time = now.substr(now.rfind(' ') + 1);
    return plot;
}

/// Where the plot goes, as far as it is known before anything is written.
struct PlotFile {
    std::string path;
    bool is_free = false;  ///< no file is there yet
    int error = 0;         ///< errno of what keeps it from being written
};

PlotFile plot_file_of(const Plot& plot) {
    PlotFile file{.path = plot.is_printed() ? printed_file : path_meant(plot.file_name)};
    const Replacement replacement(file.path, plot.saving);
    file.is_free = !replacement.old();
    file.error = replacement.error();
    return file;
}

enum class Format : std::uint8_t { postscript, pdf, svg };

Format format_of(const Plot& plot) {
    const std::string name = plot.is_printed() ? "" : convert_tolower(plot.page.title);
    if (name.ends_with(".pdf")) {
        return Format::pdf;
    }
    return name.ends_with(".svg") ? Format::svg : Format::postscript;
}

std::string contents_of(const Plot& plot) {
    switch (format_of(plot)) {
        case Format::pdf:
            return pdf_of(drawing_of(plot.page, plot.paper));
        case Format::svg:
            return svg_of(drawing_of(plot.page, plot.paper));
        case Format::postscript:
            break;
    }
    return generate_psheader(plot.page) + generate_psfile(plot.page) + generate_pstrailer();
}

struct Written {
    Message fault;
    bool shows_all_names = true;
};

Written write(Plot plot, Progress& progress) {
    plot.page.marks = plot_marks(*plot.nodes, plot.extents, plot.scale, progress);
    if (progress.stopping()) {
        return {.fault = "Stopped"};
    }
    const int error = save_file(plot.page.title, contents_of(plot), plot.saving);
    if (error != 0) {
        return {.fault = fmt::format("Can't write plot file: {}", std::strerror(error))};
    }
    return {.shows_all_names = format_of(plot) != Format::postscript || is_plain_postscript(plot.page)};
}

Message finish(const Plot& plot, const Written& written) {
    if (!written.fault.empty()) {
        return written.fault;
    }
    plot_setup().set_right_footer(written.shows_all_names ? "" : names_spoil_postscript);
    if (plot.is_printed()) {
        run_in_background(CommandLine::of_user(plot.printed_by).word(printed_file), "&");
    }
    return {};
}

/// A PostScript file is there, and empty, after "Cancel"; one that was there before keeps its contents, but
/// for the one that is printed.
Message cancel(const Plot& plot, const PlotFile& file) {
    if (format_of(plot) != Format::postscript || !(file.is_free || plot.is_printed())) {
        return {};
    }
    return work_for(
        plot_setup(), items_label,
        [plot](Progress& /*progress*/) { return save_file(plot.page.title, "", plot.saving); },
        [](int error) -> Message { return error == 0 ? "" : cannot_open; });
}

Message plot_at(Plot plot, const PlotFile& file) {
    if (file.error != 0) {
        return cannot_open;
    }
    plot.page.title = file.path;
    const PlotSize size = plot_size(plot.extents, plot.scale.percent);
    plot_setup().width.set_value(millimetres(size.width));
    plot_setup().height.set_value(millimetres(size.height));
    if (!size.fits(plot.paper) &&
        notice_prompt(plot_setup(), "Plot too big to fit size of paper", {"Yes", "Cancel"},
                      DefaultButton::first, {"Continue?"}) != 0) {
        return cancel(plot, file);
    }
    return work_for(
        plot_setup(), items_label, [plot](Progress& progress) { return write(plot, progress); },
        [plot](const Written& written) { return finish(plot, written); });
}

}  // namespace

void FileTreePlot() { plot_setup().open(); }

Message Plot_to_file() {
    const PlotSetup& window = plot_setup();
    const bool printed = window.destination.value() == PlotSetup::printer;
    if (printed && window.plot_command.text().empty()) {
        return "Plot command not specified";
    }
    if (!printed && window.file_name.text().empty()) {
        return "Plot file name not specified";
    }
    if (file_tree().size() == 0) {
        return "No file trees displayed";
    }
    plot_setup().set_right_footer("");
    const Plot plot = plot_as_set();
    return work_for(
        plot_setup(), items_label, [plot](Progress& /*progress*/) { return plot_file_of(plot); },
        [plot](const PlotFile& file) { return plot_at(plot, file); });
}
