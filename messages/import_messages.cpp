#include "messages/import_messages.h"

namespace zev {

std::string_view ReasonText(ImportWarning::Reason reason) {
    switch (reason) {
        case ImportWarning::Reason::UnknownMenu:
            return "no item opens the menu it belongs to";
        case ImportWarning::Reason::DuplicateKey:
            return "an earlier item has its place";
        case ImportWarning::Reason::AboveTop:
            return "the item goes up past the top level";
        case ImportWarning::Reason::StartsDeep:
            return "the first item is deeper than the top level; it was put there";
        case ImportWarning::Reason::TooManyItems:
            return "the menu holds as many items as it can";
    }
    return {};
}

}  // namespace zev
