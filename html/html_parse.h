// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "html/html_token.h"
#include "html/html_tokenizer.h"

namespace zev {

/// Which tokens of a page a reader comes by.
enum class HtmlTokens {
    All,
    /// Any but text and ordinary tags, which are those of no other elements than head, body, and
    /// what holds nothing but text; some of these too, and the page's last token in any case.
    Notable
};

/// Steps through an HTML page token by token. A token is a tag (comments, declarations and
/// processing instructions included) or a run of text; the content of a script element belongs to
/// its start tag. Joined, the tokens' sources are the page, byte for byte.
///
/// Texts are the page's own bytes in whatever encoding it has. Views stay valid as long as the page
/// or, where said, until the next change of the token.
class HtmlParse {
  public:
    HtmlParse() = default;
    HtmlParse(const HtmlParse&) = delete;
    HtmlParse& operator=(const HtmlParse&) = delete;

    /// Makes the page's first token current, or the first of `tokens`. The bytes are not owned and
    /// must stay where they are until `Close`, the next `Load` or this object's end.
    void Load(std::string_view page, HtmlTokens tokens = HtmlTokens::All);
    /// True when the current token is the last one of the page, or there is none.
    bool IsLast() const { return m_current == m_last; }
    bool IsTag() const { return m_current->kind != HtmlToken::Kind::Text; }
    /// Element name in ASCII lower case, an end tag's with a leading "/". "!" for a comment, a
    /// declaration, a processing instruction or a block of server-side code; empty for text. Valid
    /// until `Next`.
    std::string_view TagName() const {
        return m_current->hasUpperCase ? lowerCaseName() : m_current->name;
    }
    /// What stands between the angle brackets of a tag, as it is spelled; after `SetAttribute` the
    /// changed spelling. Valid until `Next` or `SetAttribute`.
    std::string_view TagText() const;
    /// The value of an attribute as it is spelled in the page, without its quotes; empty when
    /// absent. The name's case does not matter; of several attributes of one name the first counts.
    std::string_view Attribute(std::string_view name) const;
    /// True when the tag has such an attribute, with or without a value.
    bool hasAttribute(std::string_view name) const;
    /// Changes the value in the tag's text, which keeps its quotes and without any gets double
    /// ones, or adds the attribute at its end. Every other byte of the tag stays. Where the value
    /// holds the quote outside of server-side code, it is written as a character reference. Nothing
    /// on text and comments.
    void SetAttribute(std::string_view name, std::string_view value);
    /// Of a text token its source; of a comment what stands between its marks; of a script start
    /// tag the script. Empty for the rest, for declarations and server-side code too.
    std::string_view Text() const { return m_current->text; }
    /// The source of the current token with all that belongs to it, unchanged: of a tag with its
    /// angle brackets (where the page ends before the closing one, without it), of a script start
    /// tag with the script.
    std::string_view Source() const { return m_current->source; }
    /// Where the source begins in the page, in bytes from 0.
    std::size_t offset() const { return m_current->offset; }
    /// Makes the following token current; nothing on the last one.
    void Next() {
        if (IsLast())
            return;
        ++m_current;
        if (m_current == m_batchEnd)
            readBatch();
    }
    /// Lets go of the page.
    void Close();

  private:
    void readBatch();
    std::string_view lowerCaseName() const;
    bool isElementTag() const;
    std::size_t nameEnd() const { return m_current->name.size(); }

    // Tokens are read in batches, and what a reader asks every one of them is answered in this
    // header: both cost a call a batch then, not several a token.
    std::optional<HtmlTokenizer> m_tokenizer;
    bool m_passesOrdinary = false;
    std::array<HtmlToken, 8> m_batch;  // without a page: the first one is empty
    const HtmlToken* m_current = m_batch.data();
    const HtmlToken* m_batchEnd = nullptr;     // after the last one read
    const HtmlToken* m_last = m_batch.data();  // the page's last one; null while it is not read yet
    const HtmlToken* m_changed = nullptr;      // whose attributes were set, and its text since
    std::string m_changedText;
    mutable std::string m_lowerCaseName;  // of the token asked last
};

}  // namespace zev
