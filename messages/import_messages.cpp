// SPDX-License-Identifier: MIT
#include "messages/import_messages.h"

namespace zev {

std::string_view reasonText(LineWarning::Reason reason) {
    switch (reason) {
        case LineWarning::Reason::UnknownMenu:
            return "no item opens the menu it belongs to";
        case LineWarning::Reason::DuplicateKey:
            return "an earlier item has its place";
        case LineWarning::Reason::AboveTop:
            return "the item goes up past the top level";
        case LineWarning::Reason::StartsDeep:
            return "the first item is deeper than the top level; it was put there";
        case LineWarning::Reason::TooManyItems:
            return "the menu holds as many items as it can";
        case LineWarning::Reason::NotUnderstood:
            return "it is not a line that a menu has";
    }
    return {};
}

}  // namespace zev
