// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "text/path.h"

namespace zev {

/// The three run-time scripts that lie beside every saved definition.
inline constexpr std::array<std::string_view, 3> kLibraryFiles = {
    "zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js"};

/// More than any run-time file has.
inline constexpr std::uint64_t kMaxRunTimeFileBytes = std::uint64_t{64} << 20;

/// The page template in the program's folder; the preview page is a copy of it.
inline constexpr std::string_view kPageTemplate = "zevmenu.html";
inline constexpr std::string_view kPreviewPage = "orlet_temp.html";
inline constexpr std::string_view kPreviewScript = "orlet_temp.js";

enum class CopyResult {
    Copied,
    SamePlace,     ///< source and destination are one file; nothing was done
    AlreadyThere,  ///< the destination has the bytes of the source; nothing was done
    SourceMissing,
    NotSaved  ///< the destination could not be replaced; it holds its old content
};

/// What became of one copy.
struct CopyOutcome {
    CopyResult result = CopyResult::Copied;
    std::string path;    ///< the file at fault; empty when there is none
    std::string reason;  ///< of NotSaved the system's own words
};

/// Copies one run-time file. What stands there and is no run-time file of this program, or is a
/// link, is kept first, as `platform/kept_copy.h` names it. Two paths name one file when they end
/// in the same name and their folders are one on the disk, however those are spelt.
CopyOutcome CopyLibraryFile(FileSystem& files, const std::string& source,
                            const std::string& destination);

enum class CopiedFiles { Scripts, ScriptsAndPreviewPage };

/// Copies the run-time files from the folder `from` to the folder `to`, each one whatever became of
/// those before it. Returns the outcomes that are problems, in the order of the files.
std::vector<CopyOutcome> copyLibrary(FileSystem& files, const Path& from, const Path& to,
                                     CopiedFiles copiedFiles);

}  // namespace zev
