#include "messages/library_messages.h"

namespace zev {

std::string CopyProblemText(CopyResult result, const std::string& source,
                            const std::string& destination) {
    switch (result) {
        case CopyResult::SourceMissing:
            return "Error: " + source + " does not exist";
        case CopyResult::NotSaved:
            return "Error: " + destination + " not saved. Please check path permissions";
        case CopyResult::Copied:
        case CopyResult::SamePlace:
            break;
    }
    return {};
}

}  // namespace zev
