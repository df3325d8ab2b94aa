// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// Lines of output that is much work for a terminal; `number` makes each another one.

inline std::string coloured_line(int number) {
    return "\x1b[1;3" + std::to_string(number % 8) + "mline " + std::to_string(number) +
           "\x1b[0m the quick brown fox jumps over the lazy dog\r\n";
}

inline std::string two_bytes(int code) {
    return {static_cast<char>(0xc0 | code >> 6), static_cast<char>(0x80 | (code & 0x3f))};
}

/// Letters with marks over them, ever others: each is laid out anew.
inline std::string line_of_clusters(int number) {
    std::string line;
    for (int cell = 0; cell < 60; ++cell) {
        const int serial = number * 60 + cell;
        line += static_cast<char>('a' + serial % 26);
        line += two_bytes(0x300 + serial / 26 % 112) + two_bytes(0x300 + serial / 2912 % 112);
    }
    return line + "\r\n";
}

/// Few bytes that are much work: a character, 65,535 times over.
inline std::string repeated_character(int /*number*/) { return "x\x1b[65535b\r\n"; }

/// Asks the terminal who it is, thirty times a line.
inline std::string line_of_queries(int /*number*/) {
    std::string line;
    for (int query = 0; query < 30; ++query) {
        line += "\x1b[c";
    }
    return line + "\r\n";
}
