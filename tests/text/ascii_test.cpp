// SPDX-License-Identifier: MIT
#include "text/ascii.h"

#include <gtest/gtest.h>

#include <string>

namespace zev {
namespace {

struct Case {
    std::string_view input;
    std::string_view expected;
};

TEST(TrimSpaces, DropsSpacesAtBothEndsAndNothingElse) {
    constexpr Case kCases[] = {
        {"", ""},
        {"   ", ""},
        {"a", "a"},
        {"  a b  ", "a b"},
        {"\ta", "\ta"},
        {" \t ", "\t"},
        {"\xC2\xA0 a ", "\xC2\xA0 a"},
        {"a\r ", "a\r"},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.input);
        EXPECT_EQ(trimSpaces(c.input), c.expected);
    }
}

}  // namespace
}  // namespace zev
