// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "importers/import_menu.h"
#include "tests/support/test_files.h"

namespace zev::test {
namespace {

TEST(ImportFormats, HaveNamesOfTheirOwnByWhichTheyAreFound) {
    std::set<std::string_view> names;
    for (const ImportFormat& format : importFormats()) {
        SCOPED_TRACE(format.name);
        EXPECT_EQ(findImportFormat(format.name), &format);
        for (const std::string_view name :
             {format.name, std::string_view(format.title), std::string_view(format.menuEntry)})
            EXPECT_TRUE(names.insert(name).second) << name;
    }
    EXPECT_EQ(findImportFormat(""), nullptr);
    EXPECT_EQ(findImportFormat("Quillmenu"), nullptr);
}

TEST(ImportFormats, AreThoseOfTheManualPage) {
    const std::string page = contentOf(ZEV_IMPORT_MANUAL_PAGE);
    std::string expected;
    for (const ImportFormat& format : importFormats())
        expected += ".It Cm " + std::string(format.name) + "\n";
    std::string found;
    for (std::size_t at = page.find(".It Cm "); at != std::string::npos;
         at = page.find(".It Cm ", at + 1))
        found += page.substr(at, page.find('\n', at) - at) + "\n";
    EXPECT_EQ(found, expected);
}

}  // namespace
}  // namespace zev::test
