// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/test_files.h"

namespace zev::test {

/// Sorted names of the folders in `folder`, each a case.
inline std::vector<std::string> caseNames(const std::string& folder) {
    std::vector<std::string> names = namesIn(folder);
    std::erase_if(names, [&folder](const std::string& name) {
        return !std::filesystem::is_directory(folder + "/" + name);
    });
    return names;
}

/// The same for cases sorted into a folder for each group: "group/case".
inline std::vector<std::string> groupedCaseNames(const std::string& folder) {
    std::vector<std::string> names;
    for (const std::string& group : caseNames(folder))
        for (const std::string& name : caseNames(folder + "/" + group))
            names.push_back(group + "/" + name);
    return names;
}

/// The bytes of a file that its case must have; without it the test fails.
inline std::string caseFile(const std::string& path) {
    EXPECT_TRUE(std::filesystem::exists(path)) << path;
    return contentOf(path);
}

/// A test's name from its case's.
inline std::string caseTestName(const testing::TestParamInfo<std::string>& parameter) {
    std::string name = parameter.param;
    std::replace(name.begin(), name.end(), '/', '_');
    return name;
}

}  // namespace zev::test
