// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "integrator/link_code.h"

namespace zev {

/// What the person has entered in the wizard's steps.
struct WizardAnswers {
    bool hasBackups = true;
    bool keepsOtherScripts = false;
    std::string library;     ///< path or URL of the run-time files, as typed
    std::string definition;  ///< the same of the definition file
    bool isPopup = false;
    std::string submenuId;  ///< of a popup menu; empty: none is chosen
    PopupPlacement placement = {};
    std::vector<std::string> keptScripts = {};  ///< names of scripts that stay, of all that go
    bool skipsFailing = false;  ///< pages that cannot be integrated stay as they are

    bool needsPosition() const { return isPopup && !placement.isAtMouse; }
    bool operator==(const WizardAnswers&) const = default;
};

}  // namespace zev
