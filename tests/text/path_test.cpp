// SPDX-License-Identifier: MIT
#include "text/path.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

using Kind = Path::Kind;

TEST(PathTest, KnowsItsKind) {
    struct {
        std::string_view text;
        Kind kind;
        char separator;
    } const kCases[] = {
        {"/", Kind::System, '/'},
        {"/web/menu.js", Kind::System, '/'},
        {R"(/:\x)", Kind::System, '/'},
        {R"(C:\)", Kind::Drive, '\\'},
        {R"(C:\web)", Kind::Drive, '\\'},
        {R"(1:\web)", Kind::Drive, '\\'},
        {"\xE2\x82\xAC:\\web", Kind::Drive, '\\'},
        {"C:", Kind::BareDrive, '\\'},
        {"\xE2\x82\xAC:", Kind::BareDrive, '\\'},
        {"C:/web", Kind::Other, '\\'},
        {"C:web", Kind::Other, '\\'},
        {R"(CD:\web)", Kind::Other, '\\'},
        {"CD:", Kind::Other, '\\'},
        {":", Kind::Other, '\\'},
        {R"(:\web)", Kind::Other, '\\'},
        {"web/menu.js", Kind::Other, '\\'},
        {"http://a.b/c", Kind::Other, '\\'},
        {"", Kind::Other, '\\'},
    };
    for (const auto& c : kCases) {
        EXPECT_EQ(Path(c.text).kind(), c.kind) << c.text;
        EXPECT_EQ(Path(c.text).separator(), c.separator) << c.text;
    }
}

TEST(PathTest, KnowsRoots) {
    struct {
        std::string_view text;
        bool isSystemRoot;
        bool isDriveRoot;
    } const kCases[] = {
        {"/", true, false},
        {"//", false, false},
        {"/web", false, false},
        {R"(C:\)", false, true},
        {"\xE2\x82\xAC:\\", false, true},
        {R"(C:\\)", false, false},
        {R"(C:\web)", false, false},
        {"C:", false, false},
        {"C:/", false, false},
        {"", false, false},
    };
    for (const auto& c : kCases) {
        EXPECT_EQ(Path(c.text).isSystemRoot(), c.isSystemRoot) << c.text;
        EXPECT_EQ(Path(c.text).isDriveRoot(), c.isDriveRoot) << c.text;
    }
}

TEST(PathTest, ADriveLetterIsAnAsciiLetterAndAColon) {
    struct {
        std::string_view text;
        bool hasLetter;
        bool hasUpperCaseLetter;
    } const kCases[] = {
        {R"(C:\web)", true, true},
        {R"(z:\web)", true, false},
        {"C:", true, true},
        {"C:/web", true, true},
        {"c:web", true, false},
        {R"(1:\web)", false, false},
        {"\xE2\x82\xAC:\\", false, false},
        {"C", false, false},
        {"CD:", false, false},
        {"mailto:a@b", false, false},
        {"/C:", false, false},
        {"", false, false},
    };
    for (const auto& c : kCases) {
        EXPECT_EQ(Path(c.text).hasDriveLetter(), c.hasLetter) << c.text;
        EXPECT_EQ(Path(c.text).hasUpperCaseDriveLetter(), c.hasUpperCaseLetter) << c.text;
    }
}

TEST(PathTest, TheFirstCharacterIsAWholeCodePoint) {
    EXPECT_EQ(Path(R"(C:\web)").firstCharacter(), "C");
    EXPECT_EQ(Path("\xE2\x82\xAC:\\web").firstCharacter(), "\xE2\x82\xAC");
    EXPECT_EQ(Path("").firstCharacter(), "");
}

TEST(PathTest, LosesTheSeparatorsAtItsEnd) {
    struct {
        std::string_view text;
        std::string_view expected;
    } const kCases[] = {
        {"/web//", "/web"},
        {"/web", "/web"},
        {"/", "/"},
        {"///", "/"},
        {R"(/web\)", R"(/web\)"},
        {R"(C:\web\\)", R"(C:\web)"},
        {R"(C:\)", "C:"},
        {"C:", "C:"},
        {"", ""},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(Path(c.text).withoutTrailingSeparators(), c.expected) << c.text;
}

TEST(PathTest, AChildIsJoinedByTheFoldersOwnSeparatorAndNoSecondOne) {
    struct {
        std::string_view folder;
        std::string_view expected;
    } const kCases[] = {
        {"/web", "/web/menu.js"},
        {"/", "/menu.js"},
        {"/web/", "/web/menu.js"},
        {R"(/odd\web)", R"(/odd\web/menu.js)"},
        {R"(C:\web)", R"(C:\web\menu.js)"},
        {R"(C:\)", R"(C:\menu.js)"},
        {"C:", R"(C:\menu.js)"},
        {"C:/web", "C:/web/menu.js"},
        {"web", "web/menu.js"},
        {R"(web\sub)", R"(web\sub\menu.js)"},
        {"", "menu.js"},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.folder);
        EXPECT_EQ(Path(c.folder).child("menu.js"), c.expected);
    }
}

TEST(PathTest, FolderAndNameMakeThePathAgain) {
    for (const char* path : {R"(C:\web\menu.js)", R"(C:\menu.js)", "/web/menu.js", "/menu.js",
                             "web/menu.js", "menu.js", R"(/a/b\c.js)"}) {
        SCOPED_TRACE(path);
        const Path parts(path);
        EXPECT_EQ(Path(parts.folder()).child(parts.name()), path);
    }
}

TEST(PathTest, OnThisSystemOnlySlashesSeparate) {
    struct {
        std::string_view text;
        std::string_view folder;
        std::string_view name;
        std::string_view child;
    } const kCases[] = {
        {R"(odd\site)", "", R"(odd\site)", R"(odd\site/menu.js)"},
        {R"(odd\site/)", R"(odd\site)", "", R"(odd\site/menu.js)"},
        {R"(C:\web)", "", R"(C:\web)", R"(C:\web/menu.js)"},
        {"C:", "", "C:", "C:/menu.js"},
        {"a/b", "a", "b", "a/b/menu.js"},
        {"/b", "/", "b", "/b/menu.js"},
        {"/", "/", "", "/menu.js"},
        {"", "", "", "menu.js"},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.text);
        const Path path = Path::onThisSystem(c.text);
        EXPECT_EQ(path.folder(), c.folder);
        EXPECT_EQ(path.name(), c.name);
        EXPECT_EQ(path.child("menu.js"), c.child);
    }
}

}  // namespace
}  // namespace zev
