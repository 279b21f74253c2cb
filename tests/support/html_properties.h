// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "html/html_characters.h"
#include "html/html_parse.h"
#include "html/html_tokenizer.h"
#include "text/ascii.h"

namespace zev {

/// What is wrong with the parts of a token; empty when nothing is.
inline std::string problemOfToken(const HtmlToken& token, bool isLast) {
    const std::string inside(token.inside);
    if (token.source.empty())
        return "a token is empty";
    if (token.kind == HtmlToken::Kind::Text) {
        const bool isText = token.text == token.source && inside.empty() && token.name.empty();
        return isText ? "" : "the parts of a text are wrong";
    }
    const bool isScript = token.kind == HtmlToken::Kind::StartTag && !token.text.empty();
    const std::string whole = "<" + inside + ">" + (isScript ? std::string(token.text) : "");
    const bool isCutOff = isLast && token.source == "<" + inside;
    if (token.source != whole && !isCutOff)
        return "the inside of a tag is wrong";
    if (token.kind == HtmlToken::Kind::Comment) {
        return token.name == "!" && inside.find(token.text) != std::string::npos
                   ? ""
                   : "the parts of a comment are wrong";
    }
    const std::size_t slash = token.kind == HtmlToken::Kind::EndTag ? 1 : 0;
    return token.name.size() > slash && inside.starts_with(token.name) &&
                   token.name.starts_with('/') == (slash == 1) &&
                   token.hasUpperCase ==
                       std::any_of(token.name.begin(), token.name.end(), isAsciiUpper)
               ? ""
               : "the name of a tag is wrong";
}

/// What is wrong with setting an attribute of the page's current tag, which has its ">"; empty when
/// nothing is.
inline std::string problemOfSetAttribute(HtmlParse& page, const std::string& name) {
    const std::string before(page.TagText());
    const std::string oldValue(page.Attribute(name));
    page.SetAttribute(name, "set();");
    const std::string after(page.TagText());
    if (page.Attribute(name) != "set();")
        return "a value that was set is not there: " + after;
    const auto prefix = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto suffix = std::mismatch(before.rbegin(), before.rend(), after.rbegin(), after.rend());
    const auto kept = (prefix.first - before.begin()) + (suffix.first - before.rbegin());
    if (kept < static_cast<std::ptrdiff_t>(before.size() - oldValue.size()))
        return "setting a value changed other bytes: " + after;
    // Which "<!---" begins a server-side comment depends on the dashes after it. Without those of
    // the old value a stray one can become a comment that reaches beyond the tag.
    if (before.find("<!---") != std::string::npos && oldValue.find("--") != std::string::npos)
        return "";
    const std::string tag = "<" + after + ">";
    HtmlTokenizer tokenizer(tag);
    HtmlToken token;
    if (!tokenizer.next(token) || token.inside != after)
        return "a tag with a value set is not one tag: " + tag;
    return "";
}

/// Reads the page token by token and says the first thing wrong with what comes out; empty when
/// nothing is: the sources joined are the page, the offsets fit, each token's parts fit its source,
/// a tag by itself is the same tag, attributes can be set, and the parser steps as the tokenizer.
inline std::string problemOfPage(const std::string& bytes) {
    HtmlParse page;
    page.Load(bytes);

    HtmlTokenizer tokenizer(bytes);
    HtmlToken token;
    std::size_t position = 0;
    bool wasText = false;
    while (tokenizer.next(token)) {
        const bool isText = token.kind == HtmlToken::Kind::Text;
        const std::string at = " at " + std::to_string(position);
        if (token.offset != position || token.source.data() != bytes.data() + position)
            return "the sources do not join" + at;
        position += token.source.size();
        const bool isLast = position == bytes.size();
        if (const std::string problem = problemOfToken(token, isLast); !problem.empty())
            return problem + at;
        if (isText && wasText)
            return "a text is in two parts" + at;
        if (page.Source() != token.source || page.offset() != token.offset ||
            page.IsTag() == isText || page.IsLast() != isLast)
            return "parser and tokenizer differ" + at;
        if (!equalsIgnoringCase(page.TagName(), token.name) ||
            std::any_of(page.TagName().begin(), page.TagName().end(), isAsciiUpper))
            return "the parser's name of a tag is wrong" + at;
        if (!isText && !isLast) {
            const std::string alone = "<" + std::string(token.inside) + ">";
            HtmlTokenizer again(alone);
            HtmlToken same;
            if (!again.next(same) || same.kind != token.kind || same.inside != token.inside)
                return "a tag by itself is another" + at;
        }
        if (!isText && !isLast && token.kind != HtmlToken::Kind::Comment) {
            for (const char* const name : {"onload", "a"})
                if (const std::string problem = problemOfSetAttribute(page, name); !problem.empty())
                    return problem + at;
        }
        wasText = isText;
        page.Next();
    }
    return position == bytes.size() ? "" : "the sources are not the whole page";
}

}  // namespace zev
