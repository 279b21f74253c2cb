// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

namespace zev {

/// A page that takes long to read in an engine that looks at its bytes again and again.
struct HostilePage {
    std::string name;
    std::string begin;
    std::string repeated;
    std::string end;
};

/// Its name in a test's messages.
inline void PrintTo(const HostilePage& hostile, std::ostream* out) {
    *out << hostile.name;
}

inline const std::vector<HostilePage> kHostilePages = {
    {"LessThanSigns", "", "<", ""},
    {"Slashes", "", "</", ""},
    {"Zeros", "", std::string(1, '\0'), ""},
    {"OneText", "", "text ", ""},
    {"OneAttribute", "<p a=\"", "value>", "\">"},
    {"Attributes", "<p ", "a=b ", ">"},
    {"AttributesOfOneLetter", "<p ", "a ", ">"},
    {"UnclosedQuotes", "", "<p a=\"", ""},
    {"QuotesInTurn", "", "<p a=\"' b='\"", ""},
    {"UnclosedComments", "", "<!--", ""},
    {"CommentsOfDashes", "<!--", "-", ""},
    {"CommentsAlmostClosed", "<!--", "--!", ""},
    {"CommentsWithThreeDashes", "", "<!--- ", ""},
    {"CommentsWithThreeDashesAndTwo", "", "<!--- -->", ""},
    {"NestedServerComments", "", "<!---a", "--->"},
    {"ServerCommentsInATag", "<p ", "<!---a--->", ">"},
    {"UnclosedServerCommentsInATag", "<p ", "<!---a", ">"},
    {"UnclosedDeclarations", "", "<!x", ""},
    {"UnclosedQuestions", "", "<?x", ""},
    {"UnclosedQuestionsInATag", "<p ", "<?", ">"},
    {"UnclosedXml", "", "<?xml", ""},
    {"UnclosedXmlInATag", "<p ", "<?xml ", ">"},
    {"UnclosedPercents", "", "<%", ""},
    {"UnclosedPercentComments", "", "<%--", ""},
    {"PercentCommentsWithoutTheirEnd", "", "<%--%>", ""},
    {"UnclosedBlocksInAComment", "<!--", "<? <% <!--- ", "-->"},
    {"BlocksInAComment", "<!--", "<?-->?>", "-->"},
    {"UnclosedScripts", "", "<script>", ""},
    {"EscapedScripts", "<script>", "<!--<script>", ""},
    {"EscapesOpenedAndClosed", "<script>", "<!-- -->", ""},
    {"EscapedWithoutEnd", "<script>", "<!--<", ""},
    {"ScriptsNeverQuiteEnded", "<script>", "</script", ""},
    {"BlocksInAScript", "<script><!--", "<?-->?>", ""},
    {"UnclosedTitles", "", "<title>", ""},
    {"TitlesNeverQuiteEnded", "<title>", "</titl", ""},
    {"Plaintext", "<plaintext>", "<p>", ""},
    {"DeepElements", "", "<div>", ""},
    {"CommentEnds", "", "-->", ""},
    {"Dashes", "", "--", ""},
    {"DashesInATag", "<p ", "--", ">"},
    {"UnclosedScriptTags", "", "<script", ""},
    {"ScriptsOnOneLine", "", "<script language=JavaScript>f();</script>", ""},
    {"OldScripts", "", "<script language=JavaScript>ZEVCreateMenu()</script>", ""},
    {"ScriptAlmostOld", "<script language=JavaScript>", "var zev_pat", "</script>"},
    {"UnclosedQuotesOfBothKinds", "", "<p a=\"<p a='", ""},
    {"EqualsSigns", "<p ", "=", ">"},
    {"SlashesInATag", "<p ", "/", ">"},
    {"LanguagesThatAreNone", "<script ", "language ", ">"},
};

inline std::string hostilePage(const HostilePage& hostile, std::size_t sizeBytes) {
    std::string page = hostile.begin;
    while (page.size() < sizeBytes)
        page += hostile.repeated;
    return page + hostile.end;
}

}  // namespace zev
