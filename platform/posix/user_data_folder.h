// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zev {

/// The folder for what the programs keep of this user: "zevmenu-creator" in $XDG_DATA_HOME, or
/// without that in ~/.local/share. It need not be there. Empty when the user has no such place.
std::string userDataFolder();

}  // namespace zev
