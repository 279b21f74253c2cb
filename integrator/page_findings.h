// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "integrator/page_rewriter.h"
#include "platform/file_system.h"

namespace zev {

/// What to know about a page before it is integrated.
struct PageFindings {
    bool isIntegrated = false;  ///< by an earlier run
    /// What integration would drop, but for what an earlier run wrote; as in `IntegrationStatus`.
    std::vector<std::string> removedScripts;
    bool hasHead = false;
    bool hasBody = false;
    bool hasBodyEnd = false;
    bool hasFrameSet = false;
    /// Where the page says that its relative addresses count from, when that may be another folder
    /// than its own: a reference relative to the page would be looked for there. Else empty.
    std::string base;
    bool isUtf16 = false;
    bool isXhtml = false;
    bool isWritable = true;  ///< only known of a file

    bool canBeIntegrated() const { return hasHead && hasBody && hasBodyEnd; }
};

PageFindings inspectPage(std::string_view page, const RewriteOptions& options);

/// The same for a file, of any size.
FileResult<PageFindings> inspectPage(const FileSystem& files, const std::string& path,
                                     const RewriteOptions& options);

}  // namespace zev
