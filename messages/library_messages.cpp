#include "messages/library_messages.h"

namespace zev {

std::string copyProblemText(const CopyOutcome& outcome) {
    switch (outcome.result) {
        case CopyResult::SourceMissing:
            return "Error: " + outcome.path + " does not exist";
        case CopyResult::NotSaved:
            return "Error: " + outcome.path + " not saved. Please check path permissions";
        case CopyResult::Copied:
        case CopyResult::SamePlace:
            break;
    }
    return {};
}

}  // namespace zev
