#include "integrator/link_code.h"

#include "script/submenu_list.h"

namespace zev {

namespace {

/// The first "i" cuts the id in two.
std::string argumentsOf(std::string_view submenuId) {
    const std::size_t split = submenuId.find('i');
    std::string arguments;
    if (split == std::string_view::npos) {
        arguments = "'zev1', '";
        arguments += submenuId;
    } else {
        arguments = "'zev1i";
        arguments += submenuId.substr(0, split);
        arguments += "', '";
        arguments += submenuId.substr(split + 1);
    }
    return arguments + "'";
}

}  // namespace

std::string MenuList_GetString(std::string_view entry) {
    return argumentsOf(submenuIdOf(entry));
}

std::string definitionReference(std::string_view definitionURL) {
    std::string code = "<script language=\"JavaScript1.2\" src=\"";
    code += definitionURL;
    return code + "\"></script>";
}

std::string menuCode(std::string_view definitionURL) {
    return definitionReference(definitionURL) +
           "\r\n<script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>";
}

std::string popupLinkCode(std::string_view submenuId, const PopupPlacement& placement) {
    const std::string arguments = argumentsOf(submenuId);
    const std::string start = "<a href=\"\" onmouseover=\"ZEVMenuOpen(" + arguments;
    if (placement.isAtMouse)
        return start + ", event)\" onmouseout=\"ZEVMenuClose(" + arguments + ", false)\">Menu</a>";
    return start + ", " + placement.x + ", " + placement.y + ")\">Menu</a>";
}

}  // namespace zev
