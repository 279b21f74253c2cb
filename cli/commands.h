#pragma once

#include <string>

#include "cli/command_files.h"
#include "importers/import_menu.h"
#include "platform/file_system.h"

namespace zev {

// What each command does, its arguments already taken apart. Paths may be "-" for standard input
// or output where a command says so.

/// `input` and `output` may be "-"; an empty `output` is standard output.
ExitStatus formatCommand(FileSystem& files, const std::string& input, const std::string& output);

struct ImportOptions {
    const ImportFormat* format = nullptr;  ///< never null when the command runs
    std::string input;
    std::string output;
    bool isVerbose = false;  ///< each warning is printed, with its line
};

/// `input` and `output` as for `formatCommand`.
ExitStatus importCommand(FileSystem& files, const ImportOptions& options);

struct RebaseOptions {
    std::string from;  ///< folder the URLs are relative to now
    std::string to;    ///< folder they are to be relative to
    std::string input;
    std::string output;
};

/// `input` and `output` as for `formatCommand`.
ExitStatus rebaseCommand(FileSystem& files, const RebaseOptions& options);

/// `input` may be "-".
ExitStatus submenusCommand(const FileSystem& files, const std::string& input);

/// Writes the definition and the run-time scripts into `folder`, which must be there. `executable`
/// is the full path of this program.
ExitStatus publishCommand(FileSystem& files, const std::string& executable,
                          const std::string& input, const std::string& folder);

}  // namespace zev
