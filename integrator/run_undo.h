// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "integrator/page_integration.h"
#include "platform/file_system.h"

namespace zev {

/// What became of a run's pages when it was undone.
struct UndoneRun {
    std::vector<std::string> restoredPages;  ///< full paths; as they were before the run
    /// Are neither as the run left them nor as they were before, or not there any more. They stay
    /// as they are.
    std::vector<std::string> changedPages;
    std::vector<FileError> errors;  ///< pages that could not be read or written
    bool isFinished = true;         ///< false when stopped
    bool isGoingOn = false;  ///< the run has not ended, or somebody undoes it: none is touched

    /// Whether every page is as it was before the run.
    bool isWhole() const {
        return changedPages.empty() && errors.empty() && isFinished && !isGoingOn;
    }
};

/// Puts every page of the run `name`, one of `listRuns`, back as it was, byte for byte. Its record
/// goes when that has succeeded with all of them, and otherwise stays, so that it can be done again
/// for the others; so it can after being killed. The error is that of the record.
FileResult<UndoneRun> undoRun(FileSystem& files, const std::string& folder, const std::string& name,
                              const ShouldGoOn& shouldGoOn = {});

}  // namespace zev
