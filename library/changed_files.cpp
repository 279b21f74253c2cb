// SPDX-License-Identifier: MIT
#include "library/changed_files.h"

#include "library/built_files.h"
#include "text/hash.h"

namespace zev {

std::vector<std::string_view> changedRunTimeFiles(const FileSystem& files, const Path& folder,
                                                  CopiedFiles copiedFiles) {
    std::vector<std::string_view> names;
    for (const BuiltFile& built : kBuiltFiles) {
        if (built.name == kPageTemplate && copiedFiles == CopiedFiles::Scripts)
            continue;
        const FileResult<std::string> bytes =
            files.readFile(folder.child(built.name), kMaxRunTimeFileBytes);
        if (bytes.isOk() &&
            (bytes.value().size() != built.sizeBytes || hashOf(bytes.value()) != built.hash))
            names.push_back(built.name);
    }
    return names;
}

}  // namespace zev
