#pragma once

#include <string_view>

#include "importers/import_menu.h"

namespace zev {

/// The reason in English words, as the end of "line 12: ...".
std::string_view ReasonText(ImportWarning::Reason reason);

}  // namespace zev
