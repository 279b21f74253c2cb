// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "script/line_warning.h"

namespace zev {

/// The reason in English words, as the end of "line 12: ...".
std::string_view reasonText(LineWarning::Reason reason);

}  // namespace zev
