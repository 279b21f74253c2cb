// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "script/script_reader.h"
#include "script/script_writer.h"
#include "tests/support/golden_cases.h"

namespace zev::test {
namespace {

// Each folder holds input.js, expected.js (what is written after input.js was read) and, where
// lines cannot be applied, errors.txt with their number.
const std::string kCases = ZEV_DEFINITION_CASES;

TEST(GoldenDefinitionCases, AreFound) {
    EXPECT_FALSE(caseNames(kCases).empty());
}

class GoldenDefinitions : public testing::TestWithParam<std::string> {};

TEST_P(GoldenDefinitions, ReadAndWrittenAgainGiveTheExpectedBytes) {
    const std::string folder = kCases + "/" + GetParam();
    MenuContent document;
    const ReadResult result = ReadScript(caseFile(folder + "/input.js"), document);
    EXPECT_EQ(definitionFileBytes(GenerateScript(document)), caseFile(folder + "/expected.js"));

    const std::string errors = folder + "/errors.txt";
    const bool hasErrors = std::filesystem::exists(errors);
    const std::size_t expected = hasErrors ? std::stoul(caseFile(errors)) : 0;
    EXPECT_EQ(result.errorCount, expected);
}

TEST_P(GoldenDefinitions, TheExpectedBytesComeBackUnchanged) {
    const std::string expected = caseFile(kCases + "/" + GetParam() + "/expected.js");
    MenuContent document;
    EXPECT_EQ(ReadScript(expected, document).errorCount, 0u);
    EXPECT_EQ(definitionFileBytes(GenerateScript(document)), expected);
}

INSTANTIATE_TEST_SUITE_P(Case, GoldenDefinitions, testing::ValuesIn(caseNames(kCases)),
                         caseTestName);

}  // namespace
}  // namespace zev::test
