// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "model/menu_content.h"
#include "script/definition_lines.h"
#include "script/line_warning.h"

namespace zev {

/// Replays a menu script, one statement a line, into a new menu; returns the warnings.
///
///     qlm_state.NAME = VALUE;                                      menu-wide default
///     qlmenu1 = new mainMenu('horizontal', 'NBG', 'HBG', 'NFT', 'HFT', 'BGIMG');
///     qlmenu1 = new subMenu('2i1', 'NBG', 'HBG', 'NFT', 'HFT', 'BGIMG');
///     qlmenu1.NAME = VALUE;                                        property of that menu
///     qlmenu1.addItems('CAPTION', 'URL', 'TARGET');
///     qlmenu1.addImages('URL', 'IMAGE OUT', 'IMAGE OVER', 'TARGET');
///
/// A submenu's id spells the positions of the items that lead to it, from 1.
std::vector<LineWarning> readQuillmenu(DefinitionLines& lines, MenuContent& content);

}  // namespace zev
