// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zev {

/// Full path of the program that runs; empty when the system does not tell.
std::string runningProgram();

}  // namespace zev
