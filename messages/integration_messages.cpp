// SPDX-License-Identifier: MIT
#include "messages/integration_messages.h"

namespace zev {

std::string noticeText(WizardNotice notice) {
    switch (notice) {
        case WizardNotice::PagesMissing:
            return "Please select at least one file to continue";
        case WizardNotice::DefinitionMissing:
            return "Please enter menu definition filename";
        case WizardNotice::NoSubmenus:
            return "No dropdown menu found! Popup menu options disabled";
        case WizardNotice::SubmenuMissing:
            return "Please select a popup menu";
        case WizardNotice::PositionMissing:
            return "Please enter the position of the menu";
    }
    return {};
}

}  // namespace zev
