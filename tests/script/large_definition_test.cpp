// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "model/tree_editing.h"
#include "script/relative_url.h"
#include "script/script_reader.h"
#include "script/script_writer.h"
#include "script/submenu_list.h"
#include "tests/script/document_text.h"

// Time is limited by the test runner: anything that is not about linear runs into that limit.

namespace zev {
namespace {

constexpr std::size_t kHugeLength = 50'000'000;

std::string DefinitionBytes(const MenuContent& document) {
    return definitionFileBytes(GenerateScript(document));
}

/// Reads one line inside the top-level menu.
std::size_t ReadLine(const std::string& line, MenuContent& document) {
    return ReadScript("zevmenu = new ZEVMenu('0');\r\n" + line + "\r\n", document).errorCount;
}

TEST(LargeDefinition, AHugeLineOfAnyCharacterIsSkipped) {
    for (const char c : {'x', '=', '\'', '"', '*', ' ', '\\', '\0', '\xC3', '\r'}) {
        SCOPED_TRACE(static_cast<int>(c));
        MenuContent document;
        EXPECT_EQ(ReadScript(std::string(kHugeLength, c), document).errorCount, 0u);
        EXPECT_TRUE(document.tree.isEmpty());
    }
}

TEST(LargeDefinition, AHugeNumberOfEmptyLinesIsSkipped) {
    MenuContent document;
    EXPECT_EQ(ReadScript(std::string(kHugeLength / 10, '\n'), document).errorCount, 0u);
}

TEST(LargeDefinition, AHugePropertyLineIsRead) {
    for (const char c : {'=', ';', '\'', '"', '.'}) {
        SCOPED_TRACE(c);
        MenuContent document;
        EXPECT_EQ(ReadLine("zevmenu.divider = '" + std::string(kHugeLength, c) + "';", document),
                  0u);
        EXPECT_EQ(document.RootMenuProp.Divider.size(), kHugeLength);
    }
}

TEST(LargeDefinition, AHugeCaptionComesBack) {
    MenuContent document;
    EXPECT_EQ(ReadLine("zevmenu.AddItem('" + std::string(kHugeLength, 'x') + "', 'a.html', '');",
                       document),
              0u);
    ASSERT_FALSE(document.tree.isEmpty());
    EXPECT_EQ(document.tree.firstNode()->item.Caption.size(), kHugeLength);
    EXPECT_EQ(document.tree.firstNode()->item.URL, "a.html");
}

TEST(LargeDefinition, AHugeCaptionOfEscapedApostrophesComesBack) {
    std::string caption;
    while (caption.size() < kHugeLength)
        caption += "\\'~||~";
    MenuContent document;
    EXPECT_EQ(ReadLine("zevmenu.AddItem('" + caption + "', '', '');", document), 0u);
    // Each placeholder comes back as an escaped apostrophe, three bytes shorter.
    EXPECT_EQ(document.tree.firstNode()->item.Caption.size(), caption.size() / 6 * 4);
}

TEST(LargeDefinition, AHugeItemLineOfBareQuotesIsRead) {
    MenuContent document;
    EXPECT_EQ(ReadLine("zevmenu.AddItem(" + std::string(kHugeLength, '\'') + ");", document), 0u);
    EXPECT_EQ(document.tree.firstNode()->item.Caption, "");
}

TEST(LargeDefinition, AThousandLevelsAreReadWrittenListedAndRebased) {
    constexpr std::size_t kLevels = 1000;
    std::string script = "zevmenu = new ZEVMenu('0');\r\nzevmenu.AddItem('x', 'a.html', '');\r\n";
    std::string id = "1";
    for (std::size_t level = 1; level < kLevels; ++level) {
        script += "zevmenu = new ZEVMenu('" + id + "');\r\nzevmenu.columns = 2;\r\n";
        script += "zevmenu.AddItem('x', 'a.html', '');\r\n";
        id += "i1";
    }
    MenuContent document;
    EXPECT_EQ(ReadScript(script, document).errorCount, 0u);
    EXPECT_EQ(document.tree.size(), kLevels);

    const std::string bytes = DefinitionBytes(document);
    MenuContent again;
    EXPECT_EQ(ReadScript(bytes, again).errorCount, 0u);
    EXPECT_EQ(DefinitionBytes(again), bytes);

    const std::vector<Submenu> submenus = ListSubmenus(document);
    ASSERT_EQ(submenus.size(), kLevels - 1);
    EXPECT_EQ(submenuEntry(submenus.back()).size(),
              std::string("x ()").size() + 2 * (kLevels - 1) - 1);

    RebaseAllURLs(document, "/web", "/web/new");
    const MenuNode* deepest = document.tree.firstNode();
    while (deepest->hasChildren())
        deepest = deepest->children().front();
    EXPECT_EQ(deepest->item.URL, "../a.html");
}

TEST(LargeDefinition, TwentyThousandSiblingsAreReadWrittenAndEdited) {
    constexpr std::size_t kCount = 20'000;
    std::string script = "zevmenu = new ZEVMenu('0');\r\n";
    for (std::size_t i = 0; i < kCount; ++i)
        script += "zevmenu.AddItem('Item', 'a.html', '');\r\n";
    MenuContent read;
    EXPECT_EQ(ReadScript(script, read).errorCount, 0u);
    EXPECT_EQ(read.tree.topLevel().size(), kCount);

    MenuDocument document("/program");
    document.open(std::move(read));
    for (int i = 0; i < 500; ++i) {
        EXPECT_EQ(addMenuItem(document), EditResult::Done);
        EXPECT_EQ(moveUp(document), EditResult::Done);
        EXPECT_EQ(moveDown(document), EditResult::Done);
    }
    for (int i = 0; i < 500; ++i)
        EXPECT_EQ(deleteItem(document), EditResult::Done);
    test::ExpectSoundTree(document.tree());
    EXPECT_EQ(document.tree().size(), kCount);

    const std::string bytes = DefinitionBytes(document.content());
    MenuContent again;
    EXPECT_EQ(ReadScript(bytes, again).errorCount, 0u);
    EXPECT_EQ(DefinitionBytes(again), bytes);
}

TEST(LargeDefinition, EachItemBeyondTheLimitIsOneErrorAndTheRestIsRead) {
    constexpr std::size_t kCount = 40'000;
    constexpr auto kLimit = static_cast<std::size_t>(kMaxItemCounter);
    std::string script = "zevmenu = new ZEVMenu('0');\r\n";
    for (std::size_t i = 0; i < kCount; ++i)
        script += "zevmenu.AddItem('Item', '', '');\r\n";
    script += "zevmenu = new ZEVMenu('1');\r\nzevmenu.columns = 3;\r\n";
    // The last item that was added, and the first that was not.
    script += "zevmenu = new ZEVMenu('32767');\r\nzevmenu.columns = 4;\r\n";
    script += "zevmenu = new ZEVMenu('32768');\r\nzevmenu.columns = 5;\r\n";
    script += "zev_state.columns = 6;\r\n";

    MenuContent document;
    const ReadResult result = ReadScript(script, document);
    EXPECT_EQ(result.errorCount, kCount - kLimit + 1);
    EXPECT_EQ(result.itemsLeftOut, kCount - kLimit);
    EXPECT_EQ(document.tree.size(), kLimit);
    EXPECT_EQ(document.ItemCounter, kMaxItemCounter);
    EXPECT_EQ(document.tree.find("KeyLoad 1")->item.MenuProperty->Columns, "3");
    EXPECT_EQ(document.tree.find("KeyLoad 32767")->item.MenuProperty->Columns, "4");
    EXPECT_EQ(document.tree.find("KeyLoad 32768"), nullptr);
    EXPECT_EQ(document.DefaultProp.Columns, "6");

    MenuDocument edited("/program");
    edited.open(std::move(document));
    EXPECT_EQ(addMenuItem(edited), EditResult::CounterExhausted);
    EXPECT_EQ(edited.tree().size(), kLimit);
}

TEST(LargeDefinition, AFullMenuLacksNothing) {
    std::string script = "zevmenu = new ZEVMenu('0');\r\n";
    for (int i = 0; i < kMaxItemCounter; ++i)
        script += "zevmenu.AddItem('Item', '', '');\r\n";
    MenuContent document;
    EXPECT_EQ(ReadScript(script, document).itemsLeftOut, 0u);
}

TEST(LargeDefinition, OfManyWarningsTheFirstAreKeptAndAllAreCounted) {
    constexpr std::size_t kCount = 50'000;
    std::string script;
    for (std::size_t i = 0; i < kCount; ++i)
        script += "zev\nzevmenu.columns = 1;\n";
    MenuContent document;
    const ReadResult result = ReadScript(script, document);
    EXPECT_EQ(result.errorCount, kCount);
    EXPECT_EQ(result.lostLineCount, kCount);
    ASSERT_EQ(result.warnings.size(), kMaxKeptWarnings);
    EXPECT_EQ(result.warnings.back(),
              (LineWarning{kMaxKeptWarnings, LineWarning::Reason::UnknownMenu}));
}

TEST(LargeDefinition, AtTheLimitASubmenusItemsAreErrorsAndItsPropertiesAreRead) {
    std::string script = "zevmenu = new ZEVMenu('0');\r\n";
    for (int i = 0; i < kMaxItemCounter; ++i)
        script += "zevmenu.AddItem('Item', '', '');\r\n";
    script += "zevmenu = new ZEVMenu('2');\r\nzevmenu.columns = 3;\r\n";
    script += "zevmenu.AddItem('a', '', '');\r\nzevmenu.AddItem('b', '', '');\r\n";
    script += "zevmenu = new ZEVMenu('2i2');\r\nzevmenu.AddItem('c', '', '');\r\n";
    MenuContent document;
    const ReadResult result = ReadScript(script, document);
    EXPECT_EQ(result.errorCount, 3u);
    EXPECT_EQ(result.itemsLeftOut, 3u);
    EXPECT_EQ(document.tree.find("KeyLoad 2")->item.MenuProperty->Columns, "3");
    EXPECT_FALSE(document.tree.find("KeyLoad 2")->hasChildren());
}

}  // namespace
}  // namespace zev
