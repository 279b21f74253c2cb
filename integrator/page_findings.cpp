// SPDX-License-Identifier: MIT
#include "integrator/page_findings.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "html/html_parse.h"
#include "integrator/searchable_text.h"
#include "text/ascii.h"

namespace zev {

namespace {

bool containsIgnoringCase(std::string_view text, std::string_view part) {
    return std::search(
               text.begin(), text.end(), part.begin(), part.end(),
               [](char a, char b) { return asciiLower(a) == asciiLower(b); }) != text.end();
}

/// "", "./", "index.html?a#b" all leave the page's folder what it is; "js/" and "/" may not.
bool isElsewhere(std::string_view base) {
    while (base.starts_with("./"))
        base.remove_prefix(2);
    const std::string_view path = base.substr(0, base.find_first_of("?#"));
    return path.find_first_of("/\\:") != std::string_view::npos || path.starts_with("..");
}

bool isXhtmlDeclaration(std::string_view tag) {
    return (tag.starts_with("?xml") && !tag.starts_with("?xml-")) ||
           (equalsIgnoringCase(tag.substr(0, 8), "!doctype") && containsIgnoringCase(tag, "xhtml"));
}

void inspectTag(const HtmlParse& parser, PageFindings& findings) {
    const std::string_view name = parser.TagName();
    if (name == "!")
        findings.isXhtml = findings.isXhtml || isXhtmlDeclaration(parser.TagText());
    else if (name == "html")
        findings.isXhtml = findings.isXhtml || !parser.Attribute("xmlns").empty();
    else if (name == "frameset")
        findings.hasFrameSet = true;
    else if (name == "base" && findings.base.empty() && isElsewhere(parser.Attribute("href")))
        findings.base = parser.Attribute("href");
}

}  // namespace

PageFindings inspectPage(std::string_view page, const RewriteOptions& options) {
    IntegrationStatus status;
    pageEdits(page, options, status);
    PageFindings findings;
    findings.isIntegrated = isIntegrated(page);
    findings.removedScripts = std::move(status.removedScripts);
    findings.hasHead = status.bHeadDone;
    findings.hasBody = status.bBodyDone;
    findings.hasBodyEnd = status.bEndBodyDone;
    findings.isUtf16 = page.starts_with("\xFF\xFE") || page.starts_with("\xFE\xFF");
    const SearchableText text(page);
    HtmlParse parser;
    for (parser.Load(text.bytes());; parser.Next()) {
        if (parser.IsTag())
            inspectTag(parser, findings);
        if (parser.IsLast())
            return findings;
    }
}

FileResult<PageFindings> inspectPage(const FileSystem& files, const std::string& path,
                                     const RewriteOptions& options) {
    const FileResult<std::string> page =
        files.readFile(path, std::numeric_limits<std::uint64_t>::max());
    if (!page.isOk())
        return page.error();
    PageFindings findings = inspectPage(page.value(), options);
    findings.isWritable = files.isWritableFile(path);
    return findings;
}

}  // namespace zev
