// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "checks/menu_problems.h"

namespace zev {

/// What is wrong, such as "Products > News: url: there is no file "news.html"".
std::string problemText(const MenuProblem& problem);

}  // namespace zev
