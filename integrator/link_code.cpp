#include "integrator/link_code.h"

namespace zev {

namespace {

constexpr auto npos = std::string_view::npos;

std::string_view InnerText(std::string_view entry) {
    const std::size_t close = entry.rfind(')');
    const std::size_t open = entry.rfind('(');
    if (close == npos || open == npos || close < open)
        return {};
    return entry.substr(open + 1, close - open - 1);
}

}  // namespace

std::string MenuList_GetString(std::string_view entry) {
    const std::string_view inner = InnerText(entry);
    const std::size_t split = inner.find('i');
    std::string arguments;
    if (split == npos) {
        arguments = "'zev1', '";
        arguments += inner;
    } else {
        arguments = "'zev1i";
        arguments += inner.substr(0, split);
        arguments += "', '";
        arguments += inner.substr(split + 1);
    }
    return arguments + "'";
}

std::string DefinitionReference(std::string_view definitionURL) {
    std::string code = "<script language=\"JavaScript1.2\" src=\"";
    code += definitionURL;
    return code + "\"></script>";
}

std::string MenuCode(std::string_view definitionURL) {
    return DefinitionReference(definitionURL) +
           "\r\n<script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>";
}

std::string PopupLinkCode(std::string_view entry, const PopupPlacement& placement) {
    const std::string arguments = MenuList_GetString(entry);
    const std::string start = "<a href=\"\" onmouseover=\"ZEVMenuOpen(" + arguments;
    if (placement.isAtMouse)
        return start + ", event)\" onmouseout=\"ZEVMenuClose(" + arguments + ", false)\">Menu</a>";
    return start + ", " + placement.x + ", " + placement.y + ")\">Menu</a>";
}

}  // namespace zev
