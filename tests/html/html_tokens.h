// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "html/html_tokenizer.h"

namespace zev {

/// The tokens of a page, each as a letter and its source: T text, S start tag, E end tag, C
/// comment.
inline std::vector<std::string> drawTokens(std::string_view page) {
    std::vector<std::string> drawing;
    HtmlTokenizer tokenizer(page);
    HtmlToken token;
    while (tokenizer.next(token)) {
        const char letter = "TSEC"[static_cast<int>(token.kind)];
        drawing.push_back(letter + std::string(token.source));
    }
    return drawing;
}

/// The first token of a page that has one. Its views are the page's.
inline HtmlToken firstToken(std::string_view page) {
    HtmlTokenizer tokenizer(page);
    HtmlToken token;
    tokenizer.next(token);
    return token;
}

}  // namespace zev
