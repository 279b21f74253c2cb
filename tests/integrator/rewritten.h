// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "integrator/page_rewriter.h"

namespace zev::test {

// What integration inserts when the library lies in "lib/".
inline const std::string kMarker = "<!-- Added by ZEVMenu Creator, zevmenu.example -->";
inline const std::string kReferences =
    kMarker +
    "<script language=\"JavaScript1.2\">var zev_path = 'lib/';</script>"
    "<script language=\"JavaScript1.2\" src=\"lib/zevmenu_loader.js\"></script>";
inline const std::string kCreation =
    kMarker + "<script language=\"JavaScript1.2\">ZEVCreateMenu()</script>";
inline const std::string kHandlers = "onload=\"ZEVLoadMenu();\" onresize=\"ZEVLoadMenu();\"";

struct Rewritten {
    std::string page;
    IntegrationStatus status;
};

inline Rewritten rewritten(const std::string& page,
                           const RewriteOptions& options = {"lib/", false}) {
    Rewritten result;
    result.page = rewritePage(page, options, result.status);
    return result;
}

}  // namespace zev::test
