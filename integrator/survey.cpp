// SPDX-License-Identifier: MIT
#include "integrator/survey.h"

#include <set>
#include <string_view>
#include <unordered_map>

namespace zev {

SurveyedPage surveyPage(const FileSystem& files, const std::string& path) {
    FileResult<PageFindings> findings = inspectPage(files, path, {});
    if (!findings.isOk())
        return {{}, findings.error()};
    return {findings.take(), {}};
}

std::vector<std::pair<std::string, std::size_t>> scriptsThatGo(
    const std::vector<SurveyedPage>& pages) {
    std::vector<std::pair<std::string, std::size_t>> scripts;
    std::unordered_map<std::string_view, std::size_t> indexOfName;
    for (const SurveyedPage& page : pages) {
        std::set<std::string_view> ofPage;
        for (const std::string& name : page.findings.removedScripts) {
            if (!ofPage.insert(name).second)
                continue;
            const auto [known, isNew] = indexOfName.emplace(name, scripts.size());
            if (isNew)
                scripts.emplace_back(name, 0);
            ++scripts[known->second].second;
        }
    }
    return scripts;
}

}  // namespace zev
