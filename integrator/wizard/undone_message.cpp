// SPDX-License-Identifier: MIT
#include "integrator/wizard/undone_message.h"

#include <set>

#include "platform/message_box.h"

namespace zev {

namespace {

std::string pageCount(std::size_t count) {
    return count == 1 ? "1 page is" : std::to_string(count) + " pages are";
}

}  // namespace

std::string undoneText(const std::vector<UndoneRun>& runs) {
    std::set<std::string> restored;
    std::size_t refusedCount = 0;
    bool isFinished = true;
    bool isGoingOn = false;
    for (const UndoneRun& run : runs) {
        restored.insert(run.restoredPages.begin(), run.restoredPages.end());
        refusedCount += run.changedPages.size() + run.errors.size();
        isFinished = isFinished && run.isFinished;
        isGoingOn = isGoingOn || run.isGoingOn;
    }
    if (isGoingOn && restored.empty() && refusedCount == 0)
        return "This run is still going on, or being undone. Nothing was changed.";
    std::string text = pageCount(restored.size()) + " as before the run.";
    if (refusedCount > 0)
        text += "\n" + pageCount(refusedCount) + " left alone.";
    if (!isFinished)
        text += "\nYou stopped it; undo it again for the others.";
    return text;
}

void showUndone(MessageBox& messages, const std::vector<UndoneRun>& runs) {
    MessageRequest request;
    request.text = undoneText(runs);
    for (const UndoneRun& run : runs) {
        for (const std::string& page : run.changedPages)
            request.details += page + ": was changed since the run\n";
        for (const FileError& error : run.errors)
            request.details += error.path + ": " + error.reason + "\n";
    }
    messages.show(request);
}

}  // namespace zev
