#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "script/script_reader.h"
#include "script/script_writer.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

// Each folder holds input.js, expected.js (what is written after input.js was read) and, where
// lines cannot be applied, errors.txt with their number.
const fs::path kCases = ZEV_DEFINITION_CASES;

std::string FileBytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> CaseNames() {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(kCases)) {
        if (entry.is_directory())
            names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

TEST(GoldenDefinitionCases, AreFound) {
    EXPECT_FALSE(CaseNames().empty());
}

class GoldenDefinitions : public testing::TestWithParam<std::string> {};

TEST_P(GoldenDefinitions, ReadAndWrittenAgainGiveTheExpectedBytes) {
    const fs::path folder = kCases / GetParam();
    MenuDocument document("/program");
    const ReadResult result = ReadScript(FileBytes(folder / "input.js"), document);
    EXPECT_EQ(DefinitionFileBytes(GenerateScript(document)), FileBytes(folder / "expected.js"));

    const fs::path errors = folder / "errors.txt";
    const std::size_t expected = fs::exists(errors) ? std::stoul(FileBytes(errors)) : 0;
    EXPECT_EQ(result.errorCount, expected);
}

TEST_P(GoldenDefinitions, TheExpectedBytesComeBackUnchanged) {
    const std::string expected = FileBytes(kCases / GetParam() / "expected.js");
    MenuDocument document("/program");
    EXPECT_EQ(ReadScript(expected, document).errorCount, 0u);
    EXPECT_EQ(DefinitionFileBytes(GenerateScript(document)), expected);
}

INSTANTIATE_TEST_SUITE_P(Case, GoldenDefinitions, testing::ValuesIn(CaseNames()),
                         [](const auto& parameter) { return parameter.param; });

}  // namespace
}  // namespace zev
