// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <cstdint>
#include <functional>
#include <string>

#include <sys/time.h>

/// The picture before a row of a list.
enum class Glyph : std::uint8_t {
    none,
    arrow,           ///< leads up a directory
    directory,       ///< a folder
    document,        ///< a file
    directory_link,  ///< a link that leads to a folder
    document_link,   ///< a link that leads to a file
    executable,      ///< a file that can be run
};

struct ListRow {
    std::string text;
    Glyph glyph = Glyph::none;

    bool operator==(const ListRow&) const = default;
};

/// What a user did with a row of a list.
struct ListEvent {
    enum class Kind : std::uint8_t {
        press,     ///< the left mouse button went down on the row
        select,    ///< the keyboard came to the row, or its context menu is about to open
        activate,  ///< Return was pressed on the row
    };
    Kind kind = Kind::press;
    int row = 0;
    int x = 0;  ///< of a press, in the list, in pixels
    int y = 0;
    timeval time{};  ///< of a press
};

/// What a list calls when its user has acted on a row, which is selected by then.
using ListNotify = Procedure<const ListEvent&>;

/// A key with a meaning of its own in a list, and what it calls.
struct ListKey {
    enum class Key : std::uint8_t { backspace, remove, f2, f5 };
    Key key;
    Notify notify;
};

/// A text at the right edge of each row, asked for as rows come into view. It is no part of a row's text.
struct ListColumn {
    std::function<std::string(int row)> text;
    int characters = 0;  ///< the room it gets
};
