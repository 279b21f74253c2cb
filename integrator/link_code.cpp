// SPDX-License-Identifier: MIT
#include "integrator/link_code.h"

#include "script/submenu_list.h"
#include "text/percent_encoding.h"

namespace zev {

namespace {

/// The first "i" cuts the id in two.
std::string argumentsOf(const std::string& submenuId) {
    const std::size_t split = submenuId.find('i');
    if (split == std::string::npos)
        return "'zev1', '" + submenuId + "'";
    return "'zev1i" + submenuId.substr(0, split) + "', '" + submenuId.substr(split + 1) + "'";
}

/// What would end an attribute in double quotes or its tag, or break its line, percent-encoded.
std::string withinAttribute(std::string_view url) {
    return percentEncoded(
        url,
        [](char c) {
            const auto byte = static_cast<unsigned char>(c);
            const bool isControl = byte < 0x20 || byte == 0x7F;
            return !isControl && c != '"' && c != '<' && c != '>';
        });
}

}  // namespace

std::string MenuList_GetString(std::string_view entry) {
    return argumentsOf(std::string(submenuIdOf(entry)));
}

std::string definitionReference(const std::string& definitionURL) {
    return "<script language=\"JavaScript1.2\" src=\"" + withinAttribute(definitionURL) +
           "\"></script>";
}

std::string menuCode(const std::string& definitionURL) {
    return definitionReference(definitionURL) +
           "\r\n<script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>";
}

std::string popupLinkTag(const std::string& submenuId, const PopupPlacement& placement) {
    const std::string arguments = argumentsOf(submenuId);
    const std::string start = "<a href=\"\" onmouseover=\"ZEVMenuOpen(" + arguments;
    if (placement.isAtMouse)
        return start + ", event)\" onmouseout=\"ZEVMenuClose(" + arguments + ", false)\">";
    return start + ", " + placement.x + ", " + placement.y + ")\">";
}

std::string popupLinkCode(const std::string& submenuId, const PopupPlacement& placement) {
    return popupLinkTag(submenuId, placement) + "Menu</a>";
}

}  // namespace zev
