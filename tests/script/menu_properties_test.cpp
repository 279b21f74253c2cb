// SPDX-License-Identifier: MIT
#include "model/menu_properties.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <ostream>
#include <set>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

#include "script/property_lines.h"
#include "script/script_reader.h"
#include "script/script_writer.h"
#include "tests/model/full_prop.h"
#include "tests/script/document_text.h"
#include "tests/support/test_files.h"

// What holds for every property, by going through the rows.

namespace zev {

inline void PrintTo(const MenuPropertyRow& row, std::ostream* out) {
    *out << row.name;
}

namespace test {
namespace {

const std::string kRoot = ZEV_SOURCE_FOLDER;

/// A value that neither the factory nor a new menu has.
void setOtherValue(MenuProp& prop, const MenuPropertyRow& row) {
    if (const auto* const text = std::get_if<TextMember>(&row.member))
        prop.*text->member = row.form == LineForm::Quoted ? "a value" : "73";
    else if (const auto* const flag = std::get_if<FlagMember>(&row.member))
        prop.*flag->member = true;
    else if (const auto* const position = std::get_if<PositionMember>(&row.member))
        prop.*position->member = 4;
    prop.FontSet = prop.FontSet || row.special == Special::Font;
}

std::string written(const MenuContent& document) {
    return definitionFileBytes(GenerateScript(document));
}

class EachProperty : public testing::TestWithParam<MenuPropertyRow> {
  protected:
    void SetUp() override { document.tree.append(nullptr, "Key 0", "A"); }

    std::string line(const char* object) const {
        return "\r\n" + std::string(object) + std::string(GetParam().name) + " = ";
    }
    /// Writes the document, reads what is written and writes that: the same bytes. Returns what was
    /// read.
    MenuContent& readBack() {
        const std::string bytes = written(document);
        EXPECT_TRUE(ReadScript(bytes, copy).warnings.empty()) << bytes;
        const bool isReadBack = GetParam().special != Special::NotReadBack;
        EXPECT_TRUE(!isReadBack || written(copy) == bytes) << written(copy) << "instead of\n"
                                                           << bytes;
        return copy;
    }

    MenuContent document;
    MenuContent copy;
    const MenuContent newDocument;
};

INSTANTIATE_TEST_SUITE_P(Row, EachProperty, testing::ValuesIn(kMenuProperties),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(EachProperty, OfTheDefaultsComesBackWhereItIsWritten) {
    setOtherValue(document.DefaultProp, GetParam());
    const bool isWritten = GetParam().inDefaults == LineRule::WhenSet;
    EXPECT_EQ(("\r\n" + written(document)).find(line("zev_state.")) != std::string::npos,
              isWritten);
    const bool isReadBack = isWritten && GetParam().special != Special::NotReadBack;
    MenuProp expected = newDocument.DefaultProp;
    if (isReadBack)
        setOtherValue(expected, GetParam());
    MenuProp found = readBack().DefaultProp;
    // The fonts that the factory sets are read back as well.
    found.FontSet = expected.FontSet;
    EXPECT_EQ(PropText(found), PropText(expected));
}

TEST_P(EachProperty, OfTheTopMenuAndOfASubmenuComesBackWhereItIsWritten) {
    const MenuNode* const node = document.tree.firstNode();
    ItemProp& item = document.tree.edit(*node).item;
    item.MenuProperty = newItemMenuProp();
    document.tree.append(node, "Key 1", "A1");
    setOtherValue(document.RootMenuProp, GetParam());
    setOtherValue(item.MenuProperty.edit(), GetParam());
    const bool isWritten = GetParam().inMenu != LineRule::Never;
    EXPECT_EQ(written(document).find(line("zevmenu.")) != std::string::npos, isWritten);
    MenuProp expected = newDocument.RootMenuProp;
    MenuProp expectedOfSubmenu = *newItemMenuProp();
    if (isWritten) {
        setOtherValue(expected, GetParam());
        setOtherValue(expectedOfSubmenu, GetParam());
    }
    EXPECT_EQ(PropText(readBack().RootMenuProp), PropText(expected));
    EXPECT_EQ(PropText(*copy.tree.firstNode()->item.MenuProperty), PropText(expectedOfSubmenu));
}

TEST_P(EachProperty, MakesTwoSetsDifferent) {
    MenuProp prop;
    setOtherValue(prop, GetParam());
    MenuProp other;
    other.FontSet = prop.FontSet;
    EXPECT_NE(prop, other);
    EXPECT_EQ(findMenuProperty(GetParam().name)->name, GetParam().name);
}

/// Stands for a value of any type where a member is counted.
struct AnyValue {
    template <typename Value>
    operator Value() const;
};

/// How many members an aggregate has: one less than the values that are too many for it.
template <typename Aggregate, typename... Values>
constexpr std::size_t memberCount() {
    if constexpr (requires { Aggregate{Values{}..., AnyValue{}}; })
        return memberCount<Aggregate, Values..., AnyValue>();
    else
        return sizeof...(Values);
}

TEST(MenuProperties, HaveARowForEachMember) {
    const MenuProp prop;
    std::set<const void*> members = {&prop.FontSet};
    for (const MenuPropertyRow& row : kMenuProperties) {
        const void* const member = std::visit(
            [&](const auto& kind) -> const void* { return &(prop.*kind.member); }, row.member);
        EXPECT_TRUE(members.insert(member).second) << row.name;
    }
    EXPECT_EQ(members.size(), memberCount<MenuProp>());
}

/// The names in the lines of a file that are `opening`, a name and `closing`.
std::vector<std::string> namesIn(const char* file, const std::string& opening,
                                 const std::string& closing) {
    std::vector<std::string> names;
    std::istringstream lines(contentOf(kRoot + "/" + file));
    for (std::string line; std::getline(lines, line);) {
        const std::size_t end = line.find(closing, opening.size());
        if (line.starts_with(opening) && end != std::string::npos)
            names.push_back(line.substr(opening.size(), end - opening.size()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

TEST(MenuProperties, AreThoseOfTheirPageAndOfTheLibraryEachOnce) {
    std::vector<std::string> names;
    for (const MenuPropertyRow& row : kMenuProperties)
        names.emplace_back(row.name);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
    EXPECT_EQ(namesIn("docs/properties.md", "### `", "`"), names);
    EXPECT_EQ(namesIn("runtime/src/loader/properties.js", "    ", ": ["), names);
}

}  // namespace
}  // namespace test
}  // namespace zev
