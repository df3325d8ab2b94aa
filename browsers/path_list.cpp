// SPDX-License-Identifier: MIT
#include "browsers/path_list.h"

#include "browsers/file_type.h"

#include <fmt/printf.h>
#include <sys/stat.h>

namespace {

bool is_taken(mode_t mode, FileKinds kinds) {
    return !(kinds == FileKinds::directories && S_ISREG(mode)) &&
           !(kinds == FileKinds::regular && S_ISDIR(mode));
}

}  // namespace

PathList path_list(const std::string& directory, const std::vector<std::string>& names, FileKinds kinds,
                   Progress* progress) {
    PathList list;
    for (const std::string& name : names) {
        if (progress != nullptr && !progress->next()) {
            break;
        }
        const std::string path = fmt::sprintf("%s/%s", directory, name);
        const std::optional<mode_t> mode = file_mode(path);
        if (!mode || !is_taken(*mode, kinds)) {
            continue;
        }
        if (path.find('\n') != path.npos) {
            ++list.left_out;
        } else {
            list.text.append(path).append("\n");
        }
    }
    return list;
}
