// SPDX-License-Identifier: MIT
#pragma once

namespace zev {

/// The program's name as people read it: in titles, and in what the program writes into pages.
inline constexpr const char* kProgramName = "ZEVMenu Creator";

}  // namespace zev
