// SPDX-License-Identifier: MIT
#include "browsers/tree/postscript.h"

#include <algorithm>

#include <fmt/printf.h>

namespace {

std::string title_block() {
    const auto [corner, width, height, upright] = title_frame;
    std::string text = fmt::sprintf("%d %d moveto\n", corner.x, corner.y);
    for (const PlotPoint step : {PlotPoint{width, 0}, {0, height}, {-width, 0}, {0, -height}}) {
        text += fmt::sprintf("%d %d rlineto\n", step.x, step.y);
    }
    for (const int x : upright) {
        text += "stroke\n";
        text += fmt::sprintf("%d %d moveto\n", x, corner.y);
        text += fmt::sprintf("%d %d rlineto\n", 0, height);
    }
    return text + "stroke\n";
}

}  // namespace

std::string generate_psheader(const PlotPage& page) {
    std::string text =
        "%!PS-Adobe-3.0\n"
        "%%Creator: Orvik Command Center\n";
    text += fmt::sprintf("%%%%Title: %s\n", page.title);
    text += fmt::sprintf("%%%%CreationDate: %s  %s\n", page.date, page.time);
    text +=
        "%%DocumentFonts: Courier-Bold Courier\n"
        "% Plot file generated from Orvik Command Center\n"
        "%%StartProlog\n"
        "/FSD {findfont exch scalefont def} bind def\n"
        "/SMS {setfont moveto show} bind def\n"
        "%%EndProlog\n"
        "%%BeginSetup\n";
    text += fmt::sprintf("/F1 %d /Helvetica FSD\n", page.label_size);
    text += fmt::sprintf("/F2 %d /Helvetica-Bold FSD\n", page.label_size);
    text += fmt::sprintf("/F3 %d  /Times FSD\n", heading_size);
    text += fmt::sprintf("/F4 %d  /Helvetica FSD\n", value_size);
    text +=
        "%%EndSetup\n"
        "%%Page: ? 1\n"
        "0.5 setlinewidth\n";
    text += title_block();
    for (const TitleText& each : title_texts(page)) {
        text += fmt::sprintf("(%s) %d %d %s SMS\n", each.text, each.place.x, each.place.y,
                             each.kind == TitleText::Kind::heading ? "F3" : "F4");
    }
    return text + "0 setlinewidth\n";
}

std::string generate_psfile(const PlotPage& page) {
    std::string text;
    for (const PlotMark& mark : page.marks) {
        text += fmt::sprintf("(%s) %d %d %s SMS\n", mark.label, mark.place.x, mark.place.y,
                             mark.is_directory ? "F2" : "F1");
        if (mark.line) {
            text += fmt::sprintf("%d %d moveto\n", mark.line->from.x, mark.line->from.y);
            text += fmt::sprintf("%d %d lineto\n", mark.line->to.x, mark.line->to.y);
            text += "stroke\n";
        }
    }
    return text;
}

std::string generate_pstrailer() { return "showpage\n%%EOF\n"; }

bool is_plain_postscript(const PlotPage& page) {
    return std::ranges::all_of(page.marks, [](const PlotMark& mark) {
        return std::ranges::all_of(
            mark.label, [](char c) { return c >= ' ' && c <= '~' && c != '(' && c != ')' && c != '\\'; });
    });
}
