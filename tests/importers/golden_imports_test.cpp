// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "importers/import_menu.h"
#include "messages/import_messages.h"
#include "script/script_reader.h"
#include "script/script_writer.h"
#include "tests/support/golden_cases.h"

namespace zev::test {
namespace {

// A folder for each format, and in it one for each case with expected.js, what is written after the
// import, and warnings.txt where there are any. The menu is input.js or input.txt; a case without
// one is named after a sample.
const std::string kCases = ZEV_IMPORT_CASES;
const std::string kSamples = ZEV_IMPORT_SAMPLES;

struct Group {
    const char* folder;  ///< the format's name
    const char* extension;
};

constexpr Group kGroups[] = {
    {"quillmenu", ".js"}, {"orletbar", ".txt"}, {"orletmenu", ".txt"}, {"orletbutton", ".txt"}};

const Group* groupOf(const std::string& caseName) {
    for (const Group& group : kGroups)
        if (caseName.starts_with(std::string(group.folder) + "/"))
            return &group;
    return nullptr;
}

std::string inputOf(const std::string& caseName, const Group& group) {
    const std::string own = kCases + "/" + caseName + "/input" + group.extension;
    if (std::filesystem::exists(own))
        return contentOf(own);
    std::string sample = caseName;
    sample.replace(sample.find('/'), 1, "_");
    return caseFile(kSamples + "/" + sample + group.extension);
}

std::string warningsText(const ImportResult& result) {
    std::string text;
    for (const LineWarning& warning : result.warnings)
        text += "line " + std::to_string(warning.line) + ": " +
                std::string(reasonText(warning.reason)) + "\n";
    return text;
}

TEST(GoldenImportCases, AreFoundForEachFormatAndEachSample) {
    const std::vector<std::string> names = groupedCaseNames(kCases);
    for (const Group& group : kGroups) {
        for (const char* const sample : {"/plain", "/every_rule"})
            EXPECT_TRUE(std::count(names.begin(), names.end(), group.folder + std::string(sample)))
                << group.folder << sample;
    }
}

class GoldenImports : public testing::TestWithParam<std::string> {};

TEST_P(GoldenImports, GiveTheExpectedDefinitionAndWarnings) {
    const Group* const group = groupOf(GetParam());
    ASSERT_NE(group, nullptr) << "no such format: " << GetParam();
    const std::string folder = kCases + "/" + GetParam();
    MenuContent document;
    const ImportResult result =
        importMenu(*findImportFormat(group->folder), inputOf(GetParam(), *group), document);
    EXPECT_EQ(definitionFileBytes(GenerateScript(document)), caseFile(folder + "/expected.js"));
    const std::string warnings = folder + "/warnings.txt";
    EXPECT_EQ(warningsText(result),
              std::filesystem::exists(warnings) ? contentOf(warnings) : std::string());
}

TEST_P(GoldenImports, OpenAgainAsTheyWereSaved) {
    const std::string expected = caseFile(kCases + "/" + GetParam() + "/expected.js");
    MenuContent document;
    EXPECT_EQ(ReadScript(expected, document).errorCount, 0u);
    EXPECT_EQ(definitionFileBytes(GenerateScript(document)), expected);
}

INSTANTIATE_TEST_SUITE_P(Case, GoldenImports, testing::ValuesIn(groupedCaseNames(kCases)),
                         caseTestName);

}  // namespace
}  // namespace zev::test
