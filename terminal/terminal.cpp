// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"

#include "terminal/engine.h"

namespace terminal {

Terminal::Terminal(const Options& options, Client& client)
    : engine_(std::make_unique<Engine>(options, client)) {}
Terminal::~Terminal() = default;

void Terminal::write(std::string_view bytes) { engine_->write(bytes); }
void Terminal::write_local(std::string_view text) { engine_->write_local(text); }
void Terminal::resize(Size size, std::span<Position> anchors) { engine_->resize(size, anchors); }
void Terminal::permit(const Permissions& permissions) { engine_->permit(permissions); }
void Terminal::clear_all() { engine_->clear_all(); }
void Terminal::reset() { engine_->reset(); }

Size Terminal::size() const { return engine_->size(); }
const Modes& Terminal::modes() const { return engine_->modes(); }
Cursor Terminal::cursor() const { return engine_->cursor(); }
RowId Terminal::first_row() const { return engine_->first_row(); }
RowId Terminal::screen_top() const { return engine_->screen_top(); }
RowId Terminal::end_row() const { return engine_->end_row(); }
Row Terminal::row(RowId id) const { return engine_->row(id); }
std::uint64_t Terminal::stamp() const { return engine_->stamp(); }

const Style& Terminal::style(StyleId id) const { return engine_->style(id); }
void Terminal::append_text(const Cell& cell, std::string& out) const { engine_->append_text(cell, out); }
std::string_view Terminal::link(LinkId id) const { return engine_->link(id); }

Rgb Terminal::palette(int index) const { return engine_->palette().colour(index); }
Rgb Terminal::foreground() const { return engine_->palette().colour(ColourRole::foreground); }
Rgb Terminal::background() const { return engine_->palette().colour(ColourRole::background); }
Rgb Terminal::cursor_colour() const { return engine_->palette().colour(ColourRole::cursor); }
void Terminal::set_standard_colours(Rgb foreground, Rgb background, Rgb cursor,
                                    std::span<const Rgb> palette) {
    engine_->set_standard_colours(foreground, background, cursor, palette);
}

}  // namespace terminal
