// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "integrator/page_findings.h"

namespace zev {

/// What is known of a chosen page before a run.
struct SurveyedPage {
    PageFindings findings;
    std::optional<FileError> error;  ///< it cannot be read; the findings mean nothing then

    bool canBeIntegrated() const { return !error && findings.canBeIntegrated(); }
};

SurveyedPage surveyPage(const FileSystem& files, const std::string& path);

/// Names of the scripts that would go from any of the pages, and from how many of them, in the
/// order in which they are met.
std::vector<std::pair<std::string, std::size_t>> scriptsThatGo(
    const std::vector<SurveyedPage>& pages);

}  // namespace zev
