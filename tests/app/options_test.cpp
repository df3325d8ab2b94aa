// SPDX-License-Identifier: MIT
#include "app/options.h"

#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace {

auto fields_of(const CommandLineOptions& options) {
    return std::tuple(options.closed, options.work, options.workdir, options.ilabel, options.label,
                      options.host, options.hostname);
}

TEST(CommandLine, IsReadAsStated) {
    const struct {
        const char* name;
        std::vector<std::string> arguments;
        int result;
        CommandLineOptions expected;
    } cases[] = {
        {"nothing", {}, 0, {}},
        {"last of closed and opened holds", {"-closed", "-opened"}, 0, {}},
        {"each with its value",
         {"-work", "/tmp/a b", "-ilabel", "mine", "-host", "h"},
         0,
         {.work = true,
          .ilabel = true,
          .host = true,
          .workdir = "/tmp/a b",
          .label = "mine",
          .hostname = "h"}},
        {"short label", {"-l", "x"}, 0, {.ilabel = true, .label = "x"}},
        {"last without value", {"-l"}, 0, {.ilabel = true}},
        {"value like an option is an error", {"-work", "-host", "x"}, 1, {.work = true}},
        {"nothing is read behind an error", {"-host", "-x", "-closed"}, 1, {.host = true}},
        {"unknown skipped", {"-wor", "-worked", "x", "-closed"}, 0, {.closed = true}},
        {"value is not an option",
         {"-work", "closed", "-host", ""},
         0,
         {.work = true, .host = true, .workdir = "closed"}},
        {"later value replaces", {"-work", "a", "-work", "b"}, 0, {.work = true, .workdir = "b"}},
    };
    for (const auto& [name, arguments, result, expected] : cases) {
        std::vector<std::string> all{"orvik"};
        all.insert(all.end(), arguments.begin(), arguments.end());
        CommandLineOptions options{.closed = true, .workdir = "left over"};
        EXPECT_EQ(process_commandline(all, options), result) << name;
        EXPECT_EQ(fields_of(options), fields_of(expected)) << name;
    }
}

}  // namespace
