// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "integrator/page_note.h"
#include "integrator/wizard_flow.h"

namespace zev {

/// What the person is told.
std::string noticeText(WizardNotice notice);

/// One line about a page, with the line of the page it is about; its path is not in it.
std::string noteText(const PageNote& note);

}  // namespace zev
