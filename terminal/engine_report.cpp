// SPDX-License-Identifier: MIT
#include "terminal/engine.h"
#include "terminal/sgr.h"

#include <cassert>

// Replies. They hold numbers and fixed texts only: whatever a program writes, nothing of it may come back as
// if it had been typed.

namespace terminal {

void Engine::reply(std::string_view bytes) { client_.reply(bytes); }

/// A VT420 with selective erase, colours and rectangular editing.
void Engine::da1(Function function) {
    if (function.parameters.get(0) == 0) {
        reply("\x1b[?64;6;22;28c");
    }
}

void Engine::decid(Function /*function*/) { reply("\x1b[?64;6;22;28c"); }

/// VT420; programs take the number for the patch level of an xterm and expect SGR mouse reports from 277 on.
void Engine::da2(Function function) {
    if (function.parameters.get(0) == 0) {
        reply("\x1b[>41;380;0c");
    }
}

void Engine::da3(Function function) {
    if (function.parameters.get(0) == 0) {
        reply("\x1bP!|00000000\x1b\\");
    }
}

void Engine::xtversion(Function function) {
    if (function.parameters.get(0) == 0) {
        reply("\x1bP>|Orvik\x1b\\");
    }
}

void Engine::report_position(std::string_view introducer, std::string_view end) {
    const int row = inner_.origin ? cursor_.row - margins_.top : cursor_.row;
    const int column = inner_.origin ? cursor_.column - margins_.left : cursor_.column;
    reply(std::string(introducer) + std::to_string(row + 1) + ';' + std::to_string(column + 1) +
          std::string(end));
}

void Engine::dsr(Function function) {
    switch (function.parameters.get(0)) {
        case 5:
            return reply("\x1b[0n");
        case 6:
            return report_position("\x1b[", "R");
        default:
            return;
    }
}

void Engine::decdsr(Function function) {
    switch (function.parameters.get(0)) {
        case 6:
            return report_position("\x1b[?", ";1R");
        case 15:  // no printer
            return reply("\x1b[?13n");
        case 25:  // no user-defined keys
            return reply("\x1b[?21n");
        case 26:  // North American keyboard, ready
            return reply("\x1b[?27;1;0;0n");
        default:
            return;
    }
}

/// The line settings of a VT100: no parity, 8 bits, 19,200 baud.
void Engine::decreqtparm(Function function) {
    const int kind = function.parameters.get(0);
    if (kind <= 1) {
        reply("\x1b[" + std::to_string(kind + 2) + ";1;1;128;128;1;0x");
    }
}

/// Of xterm's window operations only the size in characters is told. Nothing may move the window or read its
/// title.
void Engine::xtwinops(Function function) {
    if (function.parameters.get(0) == 18) {
        reply("\x1b[8;" + std::to_string(size().rows) + ';' + std::to_string(size().columns) + 't');
    }
}

void Engine::device_control(const ControlFunction& function, std::string_view data) {
    if (function.prefix == 0 && function.final == 'q' && function.intermediates[0] == '$' &&
        function.intermediate_count == 1) {
        decrqss(data);
    } else if (function.prefix == 0 && function.final == 'q' && function.intermediates[0] == '+' &&
               function.intermediate_count == 1) {
        reply("\x1bP0+r\x1b\\");  // XTGETTCAP: no such capability
    }
    assert(is_consistent());
}

/// DECRQSS: the settings asked for by the end of the sequence that would make them.
void Engine::decrqss(std::string_view request) {
    const auto pair = [](int first, int second) {
        return std::to_string(first) + ';' + std::to_string(second);
    };
    std::string setting;
    if (request == "m") {
        setting = sgr_text(style_) + 'm';
    } else if (request == "r") {
        setting = pair(margins_.top + 1, margins_.bottom) + 'r';
    } else if (request == "s" && inner_.side_margins) {
        setting = pair(margins_.left + 1, margins_.right) + 's';
    } else if (request == " q") {
        const int steady = 2 + 2 * static_cast<int>(cursor_shape_);
        setting = std::to_string(inner_.cursor_blinking ? steady - 1 : steady) + " q";
    } else if (request == "\"q") {
        setting = std::string(guarded_ ? "1" : "0") + "\"q";
    } else if (request == "\"p") {
        setting = "64;1\"p";
    } else if (request == "*x") {
        setting = std::string(whole_rectangles_ ? "2" : "1") + "*x";
    }
    reply(setting.empty() ? "\x1bP0$r\x1b\\" : "\x1bP1$r" + setting + "\x1b\\");
}

}  // namespace terminal
