// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "model/menu_content.h"

namespace zev {

/// The whole definition script of a menu: UTF-8, lines ending in CR LF. Deterministic: the same
/// content gives the same bytes.
std::string GenerateScript(const MenuContent& content);

/// The bytes of a definition file that holds `script`: the script and one more CR LF, with a UTF-8
/// byte order mark in front when anything is outside ASCII, so that a browser reads it right from a
/// page in any encoding.
std::string definitionFileBytes(std::string script);

}  // namespace zev
