// SPDX-License-Identifier: MIT
// What the build takes out of a script, and what it leaves.

#include <gtest/gtest.h>

#include "runtime/join/strip_script.h"

namespace zev::test {
namespace {

struct StripCase {
    const char* rule;
    const char* source;
    const char* stripped;
};

const StripCase kCases[] = {
    {"comments and indentation go", "// a\n  /* b */ f( 1, 2 );  // c\n", "f(1,2);"},
    {"words keep their space", "return  x in y ;", "return x in y;"},
    {"also where only a comment parts them", "var/* the */x;", "var x;"},
    {"a word and a string need none", "case 'a' :", "case'a':"},
    {"signs keep theirs", "a + +b - -c + -d", "a+ +b- -c+-d"},
    {"a number keeps its from a dot", "1 .toFixed()", "1 .toFixed()"},
    {"line ends stay, one each", "a()\n\n\n  b()\r\n++c", "a()\nb()\n++c"},
    {"a comment over lines is a line end", "return /* \n */ x", "return\nx"},
    {"a line end within a statement goes", "f(\n  a,\n  b\n)\n.c ? {\n d: 1\n} : [\n2\n]\ne = \n3",
     "f(a,b).c?{d:1}:[2]\ne=3"},
    {"one before a line that goes on by itself stays", "a\n++b\n(c)\n[d]\n`e`\n/f/g",
     "a\n++b\n(c)\n[d]\n`e`\n/f/g"},
    {"strings stay", "f('a  // b', \"/* ' */\", 'it\\'s  so');",
     "f('a  // b',\"/* ' */\",'it\\'s  so');"},
    {"a regular expression stays", "x = /a  \\/ [/'\"] \\[/g . test( y )",
     "x=/a  \\/ [/'\"] \\[/g.test(y)"},
    {"also after a word that is no operand", "return / +'/.test( y )", "return/ +'/.test(y)"},
    {"a division is none", "a = b / c ; // d'\n(e) / f / [1] / 2", "a=b/c;(e)/f/[1]/2"},
    {"a division by a regular expression keeps its space", "a / /b/", "a/ /b/"},
    {"a template literal stays", "`a  // b ${ c( `d  }` , '}' ) } /* e */`  + f",
     "`a  // b ${ c( `d  }` , '}' ) } /* e */`+f"},
    {"letters beyond ASCII are letters", "var  \xC3\xA9 = 1", "var \xC3\xA9=1"},
    {"nothing but comments is nothing", " // a\n /* b */ ", ""},
};

TEST(StripScript, LeavesWhatHasAMeaning) {
    for (const StripCase& test : kCases)
        EXPECT_EQ(stripScript(test.source), std::string(test.stripped)) << test.rule;
}

TEST(StripScript, RefusesWhatDoesNotEnd) {
    for (const char* const source :
         {"/* a", "'a\n'", "\"a", "x = /a\n/", "`a", "`a ${ b", "`a ${ 'b } `", "f(/[/]"})
        EXPECT_EQ(stripScript(source), std::nullopt) << source;
}

}  // namespace
}  // namespace zev::test
