#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "tests/integrator/rewritten.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

// Each folder holds before.htm and after.htm, what becomes of it with the library in "lib/"; and,
// where the page has scripts that would be dropped, kept.htm, the same with other scripts kept.
const fs::path kCases = ZEV_PAGE_CASES;

std::string fileBytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> caseNames() {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(kCases)) {
        if (entry.is_directory())
            names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

TEST(GoldenPageCases, AreFound) {
    EXPECT_FALSE(caseNames().empty());
}

class GoldenPages : public testing::TestWithParam<std::string> {};

TEST_P(GoldenPages, BecomeTheExpectedBytes) {
    const fs::path folder = kCases / GetParam();
    const std::string before = fileBytes(folder / "before.htm");
    const std::string after = fileBytes(folder / "after.htm");
    EXPECT_EQ(rewritten(before).page, after);
    const fs::path kept = folder / "kept.htm";
    EXPECT_EQ(rewritten(before, {"lib/", true}).page, fs::exists(kept) ? fileBytes(kept) : after);
}

TEST_P(GoldenPages, ComeOutTheSameWhenIntegratedAgain) {
    const fs::path folder = kCases / GetParam();
    for (const char* const name : {"after.htm", "kept.htm"}) {
        if (!fs::exists(folder / name))
            continue;
        const std::string page = fileBytes(folder / name);
        EXPECT_EQ(rewritten(page, {"lib/", std::string(name) == "kept.htm"}).page, page) << name;
    }
}

TEST_P(GoldenPages, ComeOutTheSameAfterTheLibraryMovedThereAndBack) {
    const std::string after = fileBytes(kCases / GetParam() / "after.htm");
    const std::string moved = rewritten(after, {"../elsewhere/", false}).page;
    EXPECT_EQ(rewritten(moved).page, after);
}

INSTANTIATE_TEST_SUITE_P(Case, GoldenPages, testing::ValuesIn(caseNames()),
                         [](const auto& parameter) { return parameter.param; });

}  // namespace
}  // namespace zev::test
