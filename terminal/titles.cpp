// SPDX-License-Identifier: MIT
#include "terminal/titles.h"

#include "terminal/limits.h"
#include "terminal/text_codes.h"
#include "terminal/utf8.h"

#include <utility>

namespace terminal {

bool Titles::set(int which, std::string_view text) {
    const std::string decoded = set_in_hex_ ? from_hexadecimal(text) : std::string(text);
    const std::string title(cut_utf8(plain_utf8(decoded), max_title));
    return change(which, {title, title});
}

bool Titles::change(int which, const Pair& titles) {
    if (which == 0 || which == 1) {
        now_.icon = titles.icon;
    }
    const bool concerns_window = which == 0 || which == 2;
    if (concerns_window) {
        now_.window = titles.window;
    }
    return concerns_window;
}

void Titles::push() {
    if (saved_.size() < max_saved_states) {
        saved_.push_back(now_);
    }
}

bool Titles::pop(int which) {
    if (saved_.empty()) {
        return false;
    }
    const Pair titles = std::move(saved_.back());
    saved_.pop_back();
    return change(which, titles);
}

void Titles::change_mode(int mode, bool on) {
    set_in_hex_ = mode == 0 ? on : set_in_hex_;
    reported_in_hex_ = mode == 1 ? on : reported_in_hex_;
}

std::string Titles::reported(const std::string& title) const {
    return reported_in_hex_ ? hexadecimal(title) : title;
}

}  // namespace terminal
