// SPDX-License-Identifier: MIT
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
        case CopyResult::AlreadyThere:
            break;
    }
    return {};
}

std::string changedFilesText(const std::string& folder,
                             const std::vector<std::string_view>& names) {
    if (names.empty())
        return {};
    std::string text = folder + ": not the files this program was built with:";
    for (const std::string_view name : names)
        text.append(name == names.front() ? " " : ", ").append(name);
    return text;
}

}  // namespace zev
