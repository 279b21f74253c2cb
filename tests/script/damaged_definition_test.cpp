// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "script/script_reader.h"
#include "script/script_writer.h"
#include "tests/script/document_text.h"

namespace zev {
namespace {

using test::Lines;

const std::string kDefinition = Lines({
    "zev_state.columns = 2;",
    "zev_state.fontSize = '12pt';",
    "",
    "zevmenu = new ZEVMenu('0');",
    "zevmenu.columns = 3;",
    "zevmenu.divider = '|';",
    "",
    "zevmenu.AddItem('It\\'s caf\xC3\xA9', 'a.html?b=c', '_top');",
    "zevmenu.AddRollover('b.html', 'o.gif', 'v.gif', '');",
    "",
    "zevmenu = new ZEVMenu('1');",
    "zevmenu.position = 'top';",
    "",
    "zevmenu.AddItem('A1 \xF0\x9F\x98\x80', '', '');",
    "",
    "zevmenu = new ZEVMenu('1i1');",
    "",
    "zevmenu.AddItem('A11', '', '');",
    "",
});

/// Reads bytes of any kind and checks what must hold however broken they are.
std::size_t ExpectSoundReading(std::string_view bytes, MenuContent& document) {
    const std::size_t errorCount = ReadScript(std::string(bytes), document).errorCount;
    test::ExpectSoundTree(document.tree);
    EXPECT_EQ(static_cast<std::size_t>(document.ItemCounter), document.tree.size());

    // Whatever was read can be written, and what was written has the same items in the same places.
    MenuContent again;
    EXPECT_EQ(ReadScript(definitionFileBytes(GenerateScript(document)), again).errorCount, 0u);
    const auto keyOnly = [](const MenuNode& node) { return node.key(); };
    EXPECT_EQ(test::TreeText(again.tree, keyOnly), test::TreeText(document.tree, keyOnly));
    return errorCount;
}

std::size_t Count(std::string_view text, std::string_view piece) {
    std::size_t count = 0;
    for (std::size_t at = text.find(piece); at != std::string_view::npos;
         at = text.find(piece, at + 1))
        ++count;
    return count;
}

TEST(DamagedDefinition, CutAtAnyByteGivesTheItemsOfItsWholeLines) {
    // An item line is whole as soon as its closing characters are there.
    constexpr std::string_view kItemEnd = "');";
    for (std::size_t length = 0; length <= kDefinition.size(); ++length) {
        SCOPED_TRACE("cut after " + std::to_string(length) + " bytes");
        const std::string_view bytes = std::string_view(kDefinition).substr(0, length);
        MenuContent document;
        EXPECT_EQ(ExpectSoundReading(bytes, document), 0u);
        EXPECT_EQ(document.tree.size(), Count(bytes, kItemEnd) - Count(bytes, "ZEVMenu('0');") -
                                            Count(bytes, "ZEVMenu('1');") -
                                            Count(bytes, "ZEVMenu('1i1');"));
    }
}

TEST(DamagedDefinition, AnyBitFlippedLeavesASoundDocument) {
    for (std::size_t offset = 0; offset < kDefinition.size(); ++offset) {
        for (unsigned bit = 0; bit < 8; ++bit) {
            SCOPED_TRACE("byte " + std::to_string(offset) + ", bit " + std::to_string(bit));
            std::string bytes = kDefinition;
            bytes[offset] =
                static_cast<char>(static_cast<unsigned char>(bytes[offset]) ^ 1U << bit);
            MenuContent document;
            ExpectSoundReading(bytes, document);
            EXPECT_LE(document.tree.size(), 4u);
        }
        if (testing::Test::HasFailure())
            return;
    }
}

TEST(DamagedDefinition, AnyByteDroppedLeavesASoundDocument) {
    for (std::size_t offset = 0; offset < kDefinition.size(); ++offset) {
        SCOPED_TRACE("byte " + std::to_string(offset));
        std::string bytes = kDefinition;
        bytes.erase(offset, 1);
        MenuContent document;
        ExpectSoundReading(bytes, document);
    }
}

TEST(DamagedDefinition, NulBytesAreOrdinaryCharacters) {
    const std::string caption("a\0b", 3);
    MenuContent document;
    EXPECT_EQ(ExpectSoundReading("zevmenu = new ZEVMenu('0');\nzevmenu.AddItem('" + caption +
                                     "', '', '');\n" + std::string(1000, '\0'),
                                 document),
              0u);
    EXPECT_EQ(document.tree.firstNode()->item.Caption, caption);
}

TEST(DamagedDefinition, InvalidUtf8IsReadAsWindows1252Throughout) {
    MenuContent document;
    EXPECT_EQ(ExpectSoundReading("zevmenu = new ZEVMenu('0');\n"
                                 "zevmenu.AddItem('\xC3\xA9', '', '');\n"
                                 "zevmenu.AddItem('\xED\xA0\x80', '', '');\n",
                                 document),
              0u);
    EXPECT_EQ(test::TreeText(document.tree), "\xC3\x83\xC2\xA9\n\xC3\xAD\xC2\xA0\xE2\x82\xAC\n");
}

TEST(DamagedDefinition, OnlyAByteOrderMarkOrPartOfIt) {
    for (const char* bytes : {"\xEF", "\xEF\xBB", "\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"}) {
        SCOPED_TRACE(testing::PrintToString(bytes));
        MenuContent document;
        EXPECT_EQ(ExpectSoundReading(bytes, document), 0u);
        EXPECT_TRUE(document.tree.isEmpty());
    }
}

}  // namespace
}  // namespace zev
