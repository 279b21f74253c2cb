#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace zev {

/// The three run-time scripts that lie beside every saved definition.
inline constexpr std::array<std::string_view, 3> kLibraryFiles = {
    "zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js"};

/// The page template in the program's folder; the preview page is a copy of it.
inline constexpr std::string_view kPageTemplate = "zevmenu.html";
inline constexpr std::string_view kPreviewPage = "orlet_temp.html";
inline constexpr std::string_view kPreviewScript = "orlet_temp.js";

/// What became of one copy.
enum class CopyResult {
    Copied,
    SamePlace,  ///< both paths are equal but for letter case; nothing was done
    SourceMissing,
    NotSaved  ///< the destination could not be replaced; it holds its old content
};

/// Copies one run-time file. ASCII letter case does not count when the two paths are compared.
CopyResult CopyLibraryFile(FileSystem& files, const std::string& source,
                           const std::string& destination);

}  // namespace zev
