// SPDX-License-Identifier: MIT
#include "integrator/page_references.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "html/html_characters.h"
#include "html/html_parse.h"
#include "integrator/inserted_code.h"
#include "integrator/link_code.h"
#include "integrator/searchable_text.h"

namespace zev {

namespace {

/// The start tag of a reference as it is pasted.
std::string referenceTag(const std::string& definitionURL) {
    const std::string code = definitionReference(definitionURL);
    return code.substr(0, code.size() - kScriptEnd.size());
}

std::string_view fileName(std::string_view url) {
    url = url.substr(0, url.find_first_of("?#"));
    return url.substr(url.find_last_of("/\\") + 1);
}

bool isBlank(std::string_view text) {
    return std::all_of(text.begin(), text.end(), isHtmlSpace);
}

bool isWritten(const HtmlParse& parser) {
    const std::string_view source = parser.Source();
    return source.starts_with(kSourceStart) && source.ends_with("\">") &&
           source.find('"', kSourceStart.size()) == source.size() - 2;
}

/// Collects the references while it is handed the page's tokens.
class ReferenceFinder {
  public:
    explicit ReferenceFinder(std::string_view name) : m_name(name) {}

    void take(const HtmlParse& parser) {
        const std::string_view tag = parser.TagName();
        const std::string_view text = commentText(parser);
        if (text == "zevmenu menu" || text == "/zevmenu menu")
            m_isInMenu = text.front() != '/';
        if (tag == "script" && !m_isInMenu)
            takeScript(parser);
        else if (tag != "/script" && (parser.IsTag() || !isBlank(parser.Text())))
            m_candidate = {};  // the call that draws the menu follows at once
    }

    std::vector<DefinitionReference> references() { return std::move(m_found); }

  private:
    void takeScript(const HtmlParse& parser) {
        const bool isCall = parser.Text().find("ZEVDisplayMenu()") != std::string_view::npos;
        if (isCall && !m_candidate.url.empty())
            m_found.push_back(m_candidate);
        m_candidate = {};
        const std::string_view url = parser.Attribute("src");
        if (url.empty() || loadsLibrary(parser))
            return;
        m_candidate = {parser.offset(), parser.Source().size(), std::string(url),
                       isWritten(parser)};
        if (!m_name.empty() && fileName(url) == m_name)
            m_found.push_back(std::exchange(m_candidate, {}));
    }

    std::string_view m_name;
    bool m_isInMenu = false;
    DefinitionReference m_candidate;  // counts if the call follows
    std::vector<DefinitionReference> m_found;
};

}  // namespace

std::vector<DefinitionReference> findReferences(std::string_view page,
                                                const std::string& definitionURL) {
    ReferenceFinder finder(fileName(definitionURL));
    const SearchableText text(page);
    HtmlParse parser;
    for (parser.Load(text.bytes());; parser.Next()) {
        finder.take(parser);
        if (parser.IsLast())
            return finder.references();
    }
}

void addReferenceEdits(std::string_view page, const std::string& definitionURL,
                       std::vector<PageEdit>& edits) {
    const std::string tag = referenceTag(definitionURL);
    std::vector<PageEdit> references;
    for (const DefinitionReference& reference : findReferences(page, definitionURL)) {
        const auto isTouched = [&reference](const PageEdit& edit) {
            return edit.offset <= reference.offset && reference.offset < edit.offset + edit.length;
        };
        if (reference.isWritten && page.substr(reference.offset, reference.length) != tag &&
            std::none_of(edits.begin(), edits.end(), isTouched))
            references.push_back({reference.offset, reference.length, tag});
    }
    std::vector<PageEdit> all;
    all.reserve(edits.size() + references.size());
    std::merge(std::make_move_iterator(edits.begin()), std::make_move_iterator(edits.end()),
               std::make_move_iterator(references.begin()),
               std::make_move_iterator(references.end()), std::back_inserter(all),
               [](const PageEdit& a, const PageEdit& b) { return a.offset < b.offset; });
    edits = std::move(all);
}

}  // namespace zev
