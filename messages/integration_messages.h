// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "integrator/wizard_flow.h"

namespace zev {

/// What the person is told.
std::string noticeText(WizardNotice notice);

}  // namespace zev
