// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"

#include <array>
#include <cassert>
#include <cstdio>

// Replies. They hold numbers and fixed texts only: whatever a program writes, nothing of it may come back as
// if it had been typed.

namespace terminal {

namespace {

constexpr int reply_work = 64;                // about as many cells are written in the time
constexpr std::size_t replies_at_once = 512;  // the user's keys go between

}  // namespace

/// Replies are written in 7-bit form; the C1 controls in them become single bytes for who wants them so. They
/// are handed over whole and some together, at the latest when the output read with their questions has been
/// worked off.
void Terminal::reply(std::string_view bytes) {
    spend(reply_work);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const bool c1 = controls_ == Controls::of_8_bits && bytes[i] == '\x1b' && i + 1 < bytes.size();
        replies_ += c1 ? static_cast<char>(bytes[++i] + 0x40) : bytes[i];
    }
    if (replies_.size() >= replies_at_once) {
        hand_over_replies();
    }
}

/// What the terminal is at a conformance level: up to 64, a VT420. Then: 132 columns, printer port, selective
/// erase, national sets, technical characters, locator port, state reports, windows, horizontal scrolling,
/// colours, rectangles. Nothing is connected to the ports, as the status reports say.
void Terminal::da1(Function function) {
    if (function.parameters.get(0) != 0) {
        return;
    }
    if (level_ == 1) {
        reply("\x1b[?1;2c");  // a VT100 with advanced video
        return;
    }
    reply("\x1b[?" + std::to_string(60 + level_) + ";1;2;6;9;15;16;17;18;21;22;28c");
}

void Terminal::decid(Function /*function*/) { da1({}); }

/// VT420; programs take the number for the patch level of an xterm and expect SGR mouse reports from 277 on.
void Terminal::da2(Function function) {
    if (function.parameters.get(0) == 0) {
        reply("\x1b[>41;380;0c");
    }
}

void Terminal::da3(Function function) {
    if (function.parameters.get(0) == 0) {
        reply("\x1bP!|00000000\x1b\\");
    }
}

void Terminal::xtversion(Function function) {
    if (function.parameters.get(0) == 0) {
        reply("\x1bP>|Orvik\x1b\\");
    }
}

void Terminal::report_position(std::string_view introducer, std::string_view end) {
    const int row = inner_.origin ? cursor_.row - margins_.top : cursor_.row;
    const int column = inner_.origin ? cursor_.column - margins_.left : cursor_.column;
    reply(std::string(introducer) + std::to_string(row + 1) + ';' + std::to_string(column + 1) +
          std::string(end));
}

void Terminal::dsr(Function function) {
    switch (function.parameters.get(0)) {
        case 5:
            return reply("\x1b[0n");
        case 6:
            return report_position("\x1b[", "R");
        default:
            return;
    }
}

namespace {

/// Device status reports that are always the same.
struct Status {
    int request;
    std::string_view reply;
};
constexpr Status statuses[] = {
    {15, "\x1b[?13n"},                             // no printer
    {25, "\x1b[?21n"},                             // user-defined keys are locked
    {26, "\x1b[?27;1;0;0n"},                       // North American keyboard, ready, of a VT320 or later
    {53, "\x1b[?50n"},                             // no locator
    {55, "\x1b[?50n"},       {56, "\x1b[?57;0n"},  // of no kind
    {62, "\x1b[0*{"},                              // no space for macros
    {75, "\x1b[?70n"},                             // no errors on the line
    {85, "\x1b[?83n"},                             // not configured for several sessions
};

}  // namespace

void Terminal::decdsr(Function function) {
    const int request = function.parameters.get(0);
    if (request == 6) {
        return report_position("\x1b[?", ";1R");
    }
    if (request == 63) {  // the checksum of macros, of which there are none
        return report_checksum(function.parameters.get(1), 0);
    }
    for (const Status& status : statuses) {
        if (status.request == request) {
            reply(status.reply);
        }
    }
}

void Terminal::report_checksum(int id, int sum) {
    std::array<char, 32> text{};
    const auto value = static_cast<unsigned>(sum) & 0xFFFFU;
    const int length = std::snprintf(text.data(), text.size(), "\x1bP%d!~%04X\x1b\\", id, value);
    reply({text.data(), static_cast<std::size_t>(length)});
}

/// The line settings of a VT100: no parity, 8 bits, 19,200 baud.
void Terminal::decreqtparm(Function function) {
    const int kind = function.parameters.get(0);
    if (kind <= 1) {
        reply("\x1b[" + std::to_string(kind + 2) + ";1;1;128;128;1;0x");
    }
}

/// DECRQLP: there is no locator.
void Terminal::decrqlp(Function /*function*/) { reply("\x1b[0&w"); }

/// DECRQDE: rows and columns, the first of each, and the page.
void Terminal::decrqde(Function /*function*/) {
    reply("\x1b[" + std::to_string(size().rows) + ';' + std::to_string(size().columns) + ";1;1;1\"w");
}

/// The user-preferred supplemental set is DEC's, of 94 characters.
void Terminal::decrqupss(Function /*function*/) { reply("\x1bP0!u%5\x1b\\"); }

}  // namespace terminal
