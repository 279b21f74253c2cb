// SPDX-License-Identifier: MIT
#include "text/percent_encoding.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

TEST(PercentEncodingTest, EncodesEachByteThatIsNotKept) {
    const auto isLetter = [](char c) { return c >= 'a' && c <= 'z'; };
    EXPECT_EQ(percentEncoded("a\xC3\xA4 /%\n\x7F", isLetter), "a%C3%A4%20%2F%25%0A%7F");
    EXPECT_EQ(percentEncoded("", isLetter), "");
}

TEST(PercentEncodingTest, DecodesWhatIsEncodedAndNothingElse) {
    EXPECT_EQ(percentDecoded("a%C3%a4%20%25"), "a\xC3\xA4 %");
    EXPECT_EQ(percentDecoded("100% %2 %zz %"), "100% %2 %zz %");
}

TEST(PercentEncodingTest, DecodingGivesBackEveryByte) {
    std::string bytes;
    for (int i = 0; i < 256; ++i)
        bytes += static_cast<char>(i);
    EXPECT_EQ(percentDecoded(percentEncoded(bytes, [](char) { return false; })), bytes);
}

}  // namespace
}  // namespace zev
