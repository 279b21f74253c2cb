// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "app/editor_services.h"

namespace zev {

/// Opens an address in the browser associated with HTML files; tells the person when there is none
/// or when it cannot be started. `programFolder` is the program's own folder: a scratch file beside
/// it exists while the association is looked up.
void OpenURL(const std::string& address, const std::string& programFolder,
             const EditorServices& services);

}  // namespace zev
