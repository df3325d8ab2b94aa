// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// A page of lines and texts, in points from its lower left corner, and the files that it can become.

struct DrawnLine {
    int x0;
    int y0;
    int x1;
    int y1;
    double width;
};

enum class DrawnFont : std::uint8_t { sans, sans_bold, serif };

struct DrawnText {
    int x;  ///< where the base line begins
    int y;
    int size;
    DrawnFont font;
    std::string text;  ///< bytes of any kind; what is no text is shown visibly
};

struct Drawing {
    std::string title;
    int width;
    int height;
    std::vector<DrawnLine> lines = {};
    std::vector<DrawnText> texts = {};
};

// Both may be called in any thread.

/// The contents of a PDF file. Its texts can be found and copied.
[[nodiscard]] std::string pdf_of(const Drawing& drawing);
/// The contents of an SVG file.
[[nodiscard]] std::string svg_of(const Drawing& drawing);
