// SPDX-License-Identifier: MIT
#include "bench/floods.h"
#include "terminal/terminal.h"
#include "terminal/text.h"

#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>

#include <benchmark/benchmark.h>

// What the terminal engine does in a second. Texts are made from a fixed seed.

namespace {

constexpr std::size_t text_size = 1'000'000;
constexpr terminal::Size small{80, 24};
constexpr terminal::Size large{300, 100};

class Silent : public terminal::Client {
  public:
    void reply(std::string_view /*bytes*/) override {}
    void bell() override {}
    void title_changed(std::string_view /*title*/) override {}
};

/// Lines of words up to 80 columns, each word made by `word`.
template <class Word>
std::string make_lines(Word word) {
    std::mt19937 random(1);
    std::string text;
    while (text.size() < text_size) {
        for (int column = 0; column < 70;) {
            const int length = 2 + static_cast<int>(random() % 9);
            text += word(random, length);
            text += ' ';
            column += length + 1;
        }
        text += "\r\n";
    }
    return text;
}

std::string ascii_word(std::mt19937& random, int length) {
    std::string word;
    for (int i = 0; i < length; ++i) {
        word += static_cast<char>('a' + random() % 26);
    }
    return word;
}

std::string plain_text() { return make_lines(ascii_word); }

std::string coloured_text() {
    return make_lines([](std::mt19937& random, int length) {
        const std::string colour = std::to_string(31 + random() % 7);
        return "\x1b[1;" + colour + 'm' + ascii_word(random, length) + "\x1b[0m";
    });
}

/// Words in letters of two bytes and, less often, wide characters of three.
std::string utf8_text() {
    constexpr std::array<std::string_view, 6> letters = {"ä", "я", "λ", "ж", "漢", "字"};
    return make_lines([&letters](std::mt19937& random, int length) {
        std::string word;
        const bool wide = random() % 4 == 0;
        for (int i = 0; i < length; i += wide ? 2 : 1) {
            word += letters[wide ? 4 + random() % 2 : random() % 4];
        }
        return word;
    });
}

std::string line_feeds() {
    std::string text;
    for (std::size_t i = 0; i < text_size / 3; ++i) {
        text += "x\r\n";
    }
    return text;
}

void write_text(benchmark::State& state, const std::string& text, terminal::Size size) {
    Silent client;
    terminal::Terminal terminal({size, 10'000}, client);
    for (auto _ : state) {
        terminal.write(text);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void plain(benchmark::State& state) { write_text(state, plain_text(), small); }
void coloured(benchmark::State& state) { write_text(state, coloured_text(), small); }
void utf8(benchmark::State& state) { write_text(state, utf8_text(), small); }

void flood(benchmark::State& state, std::string (*line)(int)) {
    std::string text;
    for (int number = 0; text.size() < text_size; ++number) {
        text += line(number);
    }
    write_text(state, text, small);
}

void scrolling_small(benchmark::State& state) { write_text(state, line_feeds(), small); }
void scrolling_large(benchmark::State& state) { write_text(state, line_feeds(), large); }

/// What 10,000 and more lines of 90 columns of plain text take.
void scrollback_memory(benchmark::State& state) {
    const auto lines = static_cast<std::size_t>(state.range());
    const std::string line = std::string(90, 'x') + "\r\n";
    Silent client;
    std::size_t bytes = 0;
    for (auto _ : state) {
        terminal::Terminal terminal({{100, 24}, lines}, client);
        for (std::size_t i = 0; i < lines + lines / 2; ++i) {
            terminal.write(line);
        }
        bytes = terminal.scrollback_memory();
    }
    state.counters["MB"] = static_cast<double>(bytes) / 1e6;
}

/// Between two widths and back with a full scrollback, the view standing in its middle.
void reflow(benchmark::State& state, const std::string& text) {
    const auto rows = static_cast<std::size_t>(state.range());
    Silent client;
    terminal::Terminal terminal({small, rows}, client);
    while (terminal.screen_top() < state.range()) {
        terminal.write(text);
    }
    std::array anchors{terminal::Position{terminal.end_row() - state.range() / 2, 0}};
    bool narrow = false;
    for (auto _ : state) {
        narrow = !narrow;
        terminal.resize({narrow ? 60 : 80, 24}, anchors);
    }
    state.counters["rows"] = static_cast<double>(terminal.end_row() - terminal.first_row());
}

void reflow_plain(benchmark::State& state) { reflow(state, plain_text()); }
void reflow_utf8(benchmark::State& state) { reflow(state, utf8_text()); }

/// For a text that does not occur, through 10,000 rows.
void search(benchmark::State& state, terminal::LetterCase letter_case) {
    Silent client;
    terminal::Terminal terminal({small, 10'000}, client);
    terminal.write(plain_text());
    for (auto _ : state) {
        const auto found = find(terminal, "ZZ nowhere", {terminal.end_row(), 0},
                                terminal::SearchDirection::backward, letter_case);
        if (found) {
            state.SkipWithError("found what is not there");
        }
    }
}

void search_ignoring_case(benchmark::State& state) { search(state, terminal::LetterCase::ignored); }
void search_exactly(benchmark::State& state) { search(state, terminal::LetterCase::significant); }

}  // namespace

BENCHMARK(plain);
BENCHMARK(coloured);
BENCHMARK(utf8);
BENCHMARK_CAPTURE(flood, clusters, line_of_clusters);
BENCHMARK_CAPTURE(flood, queries, line_of_queries);
BENCHMARK_CAPTURE(flood, repeated, repeated_character);
BENCHMARK(scrolling_small);
BENCHMARK(scrolling_large);
BENCHMARK(scrollback_memory)->Arg(10'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(reflow_plain)->Arg(10'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(reflow_utf8)->Arg(10'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(search_ignoring_case)->Unit(benchmark::kMicrosecond);
BENCHMARK(search_exactly)->Unit(benchmark::kMicrosecond);
