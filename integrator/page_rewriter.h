#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "html/html_parse.h"

namespace zev {

/// What became of one page.
struct IntegrationStatus {
    bool bPrevious = false;     ///< the page was integrated before
    bool bHeadDone = false;     ///< the script references were written
    bool bBodyDone = false;     ///< the body tag has its event handlers
    bool bEndBodyDone = false;  ///< the call that creates the menu was written
    bool bSuccess = false;      ///< all three were written, and the page was saved
};

struct RewriteOptions {
    std::string libraryURL;          ///< in front of "zevmenu_loader.js", as it is
    bool keepsOtherScripts = false;  ///< false: scripts that do not name JavaScript are dropped
};

/// The bytes of the page loaded in `parser`, with the menu's code put in and that of an earlier run
/// taken out. Sets all of `status` but `bSuccess`. The parser stands on the last token afterwards.
std::string RewritePage(HtmlParse& parser, const RewriteOptions& options,
                        IntegrationStatus& status);

/// How many scripts of the page loaded in `parser` are dropped unless other scripts are kept. The
/// parser stands on the last token afterwards.
std::size_t CountDroppedScripts(HtmlParse& parser);

}  // namespace zev
