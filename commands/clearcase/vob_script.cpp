// SPDX-License-Identifier: MIT
#include "commands/clearcase/vob_script.h"

#include "shell/operands.h"
#include "shell/quoting.h"
#include "shell/text.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string_view>
#include <utility>

#include <fmt/format.h>
#include <ftw.h>
#include <sys/stat.h>

namespace {

/// Reads the script, whoever starts it: without a "#" in front a csh gives it to sh as well.
constexpr ShellFamily reader = ShellFamily::other;

class Walker {
  public:
    Walker(const VobCopy& copy, VobPass pass, Progress& progress)
        : copy_(copy),
          pass_(pass),
          progress_(progress),
          source_(remove_trailing_slashes(copy.source)),
          destination_(remove_trailing_slashes(copy.destination)),
          reads_any_name_(takes_word_behind(copy.tool, "'", {.family = reader, .utf8 = true})) {}

    VobLines walk() {
        constexpr int open_directories = 16;
        in_this_thread = this;
        if (nftw(source_.empty() ? "/" : source_.c_str(), take, open_directories, 0) < 0) {
            lines_.fault = std::strerror(errno);
        }
        return std::move(lines_);
    }

  private:
    /// Called by nftw, which gives it nothing of ours.
    static int take(const char* path, const struct stat* status, int kind, FTW* /*place*/) {
        Walker& walker = *in_this_thread;
        walker.lines_.fault = walker.take_entry(path, *status, kind);
        return walker.lines_.fault.empty() ? 0 : 1;
    }

    /// Returns why the walk must end.
    Message take_entry(const std::string& path, const struct stat& status, int kind) {
        const auto is_in_path = [&path](const std::string& skip) {
            return !skip.empty() && path.find(skip) != std::string::npos;
        };
        if (std::ranges::any_of(copy_.skips, is_in_path)) {
            return {};
        }
        if (kind == FTW_DNR || kind == FTW_NS) {
            return fmt::format("Can't read {}", path);
        }
        if (!reads_any_name_ && !takes_word_behind(copy_.tool, path, {.family = reader, .utf8 = true})) {
            return name_refusal(path);
        }
        if (kind == FTW_D) {
            add_directory(path);
        } else if (kind == FTW_F && S_ISREG(status.st_mode)) {
            add_file(path);
        }
        return progress_.next() ? "" : "Stopped";
    }

    [[nodiscard]] std::string target_of(const std::string& path) const {
        return script_word(destination_ + path.substr(source_.size()), reader);
    }

    void add_directory(const std::string& path) {
        const std::string_view command = pass_ == VobPass::make ? "mkdir" : "checkin";
        lines_.text += fmt::format("{} {} -nc {}\n", copy_.tool, command, target_of(path));
    }

    void add_file(const std::string& path) {
        const std::string word = script_word(path, reader);
        if (pass_ == VobPass::make) {
            lines_.text +=
                fmt::format("cp {} {}\n{} mkelem -nc {}\n", word, target_of(path), copy_.tool, word);
        } else {
            lines_.text += fmt::format("{} checkin -nc {}\n", copy_.tool, word);
        }
    }

    static inline thread_local Walker* in_this_thread = nullptr;

    const VobCopy& copy_;
    VobPass pass_;
    Progress& progress_;
    std::string source_;
    std::string destination_;
    bool reads_any_name_;  ///< the tool takes any quoted word for one operand
    VobLines lines_;
};

}  // namespace

VobLines vob_lines(const VobCopy& copy, VobPass pass, Progress& progress) {
    return Walker(copy, pass, progress).walk();
}
