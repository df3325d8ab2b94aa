// SPDX-License-Identifier: MIT
#include "commands/archive/tar_script.h"

#include "tests/support/hostile_names.h"
#include "tests/support/other_process.h"
#include "tests/support/scratch_directory.h"

#include <cstdlib>

#include <fmt/format.h>

namespace {

namespace fs = std::filesystem;

TEST(TarScript, GivesTarEveryNameAsItIs) {
    const struct {
        std::string archive;
        std::string directory;
        std::vector<PackedFile> files;
        PackedNames names;
        std::string script;
    } cases[] = {
        {"a.tar",
         "/o",
         {{"/d/s", true}, {"/d/f", false}},
         PackedNames::relative,
         "cd /o\ntar cfv a.tar \\\n-C /d/s . \\\n-C /d f\n"},
        {"/x/a b.tar",
         "",
         {{"/d/s", true}, {"/d/f g", false}},
         PackedNames::absolute,
         "tar cfv /x/a\\ b.tar \\\n/d/s \\\n/d/f\\ g\n"},
        {"-", "-o", {{"/-x", false}}, PackedNames::relative, "cd ./-o\ntar cfv ./- \\\n-C / ./-x\n"},
        {"h:a",
         "",
         {{"/d/a\\nb", false}},
         PackedNames::relative,
         "tar cfv ./h:a \\\n--no-unquote \\\n-C /d 'a\\nb'\n"},
        {"d/h:a", "", {{"/d:e", false}}, PackedNames::absolute, "tar cfv d/h:a \\\n/d:e\n"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(pack_script(row.archive, row.directory, row.files, row.names, ShellFamily::bash),
                  "# Orvik pack files using tar\n\n" + row.script);
    }
    EXPECT_EQ(unpack_script("/d/it's.tar", "/o", ShellFamily::bash),
              "# Orvik unpack file\n\ncd /o\ntar xfv '/d/it'\\''s.tar'\n");
    EXPECT_EQ(unpack_script("/d/a.tar", "", ShellFamily::bash), "# Orvik unpack file\n\ntar xfv /d/a.tar\n");
}

/// A tree of hostile names, packed and unpacked by scripts that real shells read.
class TarRoundTrip : public testing::Test {
  protected:
    TarRoundTrip() {
        for (const HostileName& row : hostile_names) {
            if (row.name.find('/') == std::string::npos) {
                home_.write("from/" + row.name, row.name);
                home_.write("dirs/d" + row.name + "/in " + row.name, row.name);
                files_.push_back({home_ / "from" / row.name, false});
            }
        }
        for (const auto& directory : fs::directory_iterator(home_ / "dirs")) {
            files_.push_back({directory.path(), true});
        }
    }
    /// Runs a script; what it lets the world know of a fault.
    [[nodiscard]] std::string faults(const std::string& shell, const std::string& script) const {
        home_.write("script", script);
        const std::string command = fmt::format("cd '{0}' && env HOME='{0}' {1} script >/dev/null 2>faults",
                                                home_.path().string(), shell);
        return std::system(command.c_str()) == 0 ? read_file(home_ / "faults") : "failed";
    }

    const ScratchDirectory home_;
    std::vector<PackedFile> files_;
};

TEST_F(TarRoundTrip, GivesTheSameFiles) {
    const struct {
        std::string shell;
        ShellFamily family;
    } shells[] = {{"LC_ALL=C.UTF-8 dash", ShellFamily::bash}, {"LC_ALL=C.UTF-8 tcsh -f", ShellFamily::csh}};
    const std::string out = home_ / "o:ut '$(touch pwned)`\\";
    const std::string archive = "-a:b \\`touch pwned`'!.tar";
    for (const auto& [shell, family] : shells) {
        fs::remove_all(out);
        fs::create_directory(out);
        EXPECT_EQ(faults(shell, pack_script(archive, out, files_, PackedNames::relative, family)), "")
            << shell;
        fs::create_directory(out + "/far");
        EXPECT_EQ(faults(shell, unpack_script(out + "/" + archive, out + "/far", family)), "") << shell;
        for (const HostileName& row : hostile_names) {
            if (row.name.find('/') == std::string::npos) {
                EXPECT_EQ(read_file(fs::path(out + "/far") / row.name), row.name)
                    << shell << ": " << row.what;
                EXPECT_EQ(read_file(fs::path(out + "/far") / ("in " + row.name)), row.name) << row.what;
            }
        }
        const std::size_t names = files_.size();
        EXPECT_EQ(listing(out + "/far").size(), names) << "nothing else";
        EXPECT_FALSE(fs::exists(home_ / "pwned") || fs::exists(out + "/pwned")) << shell;
    }
}

}  // namespace
