#include "integrator/link_code.h"

#include "script/submenu_list.h"

namespace zev {

namespace {

/// The first "i" cuts the id in two.
std::string argumentsOf(const std::string& submenuId) {
    const std::size_t split = submenuId.find('i');
    if (split == std::string::npos)
        return "'zev1', '" + submenuId + "'";
    return "'zev1i" + submenuId.substr(0, split) + "', '" + submenuId.substr(split + 1) + "'";
}

}  // namespace

std::string MenuList_GetString(std::string_view entry) {
    return argumentsOf(std::string(submenuIdOf(entry)));
}

std::string definitionReference(const std::string& definitionURL) {
    return "<script language=\"JavaScript1.2\" src=\"" + definitionURL + "\"></script>";
}

std::string menuCode(const std::string& definitionURL) {
    return definitionReference(definitionURL) +
           "\r\n<script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>";
}

std::string popupLinkCode(const std::string& submenuId, const PopupPlacement& placement) {
    const std::string arguments = argumentsOf(submenuId);
    const std::string start = "<a href=\"\" onmouseover=\"ZEVMenuOpen(" + arguments;
    if (placement.isAtMouse)
        return start + ", event)\" onmouseout=\"ZEVMenuClose(" + arguments + ", false)\">Menu</a>";
    return start + ", " + placement.x + ", " + placement.y + ")\">Menu</a>";
}

}  // namespace zev
