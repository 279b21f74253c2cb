// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/command_files.h"
#include "importers/import_menu.h"
#include "platform/file_system.h"

namespace zev {

// What each command does, its arguments already taken apart. Paths may be "-" for standard input
// or output where a command says so.

struct FormatOptions {
    std::string input;
    std::string output;
    bool isCheck = false;   ///< prints what would change and writes nothing
    bool isForced = false;  ///< lines that are not understood may be lost from the input
};

/// `input` and `output` may be "-"; an empty `output` is standard output. Counted when lines were
/// not understood, or with `isCheck` when anything would change.
ExitStatus formatCommand(FileSystem& files, const FormatOptions& options);

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

/// Writes the definition and the run-time scripts into `folder`, made when the folder above it is
/// there. `executable` is the full path of this program.
ExitStatus publishCommand(FileSystem& files, const std::string& executable,
                          const std::string& input, const std::string& folder);

}  // namespace zev
