// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/integrator/rewritten.h"
#include "tests/support/golden_cases.h"

namespace zev::test {
namespace {

// Each folder holds before.htm and after.htm, what becomes of it with the library in "lib/"; and,
// where the page has scripts that would be dropped, kept.htm, the same with other scripts kept.
const std::string kCases = ZEV_PAGE_CASES;

TEST(GoldenPageCases, AreFound) {
    EXPECT_FALSE(caseNames(kCases).empty());
}

class GoldenPages : public testing::TestWithParam<std::string> {};

TEST_P(GoldenPages, BecomeTheExpectedBytes) {
    const std::string folder = kCases + "/" + GetParam();
    const std::string before = caseFile(folder + "/before.htm");
    const std::string after = caseFile(folder + "/after.htm");
    EXPECT_EQ(rewritten(before).page, after);
    const std::string kept = folder + "/kept.htm";
    EXPECT_EQ(rewritten(before, {"lib/", true}).page,
              std::filesystem::exists(kept) ? caseFile(kept) : after);
}

TEST_P(GoldenPages, ComeOutTheSameWhenIntegratedAgain) {
    const std::string folder = kCases + "/" + GetParam();
    for (const char* const name : {"after.htm", "kept.htm"}) {
        if (!std::filesystem::exists(folder + "/" + name))
            continue;
        const std::string page = caseFile(folder + "/" + name);
        EXPECT_EQ(rewritten(page, {"lib/", std::string(name) == "kept.htm"}).page, page) << name;
    }
}

TEST_P(GoldenPages, ComeOutTheSameAfterTheLibraryMovedThereAndBack) {
    const std::string after = caseFile(kCases + "/" + GetParam() + "/after.htm");
    const std::string moved = rewritten(after, {"../elsewhere/", false}).page;
    EXPECT_EQ(rewritten(moved).page, after);
}

INSTANTIATE_TEST_SUITE_P(Case, GoldenPages, testing::ValuesIn(caseNames(kCases)), caseTestName);

}  // namespace
}  // namespace zev::test
