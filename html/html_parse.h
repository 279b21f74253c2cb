#pragma once

#include <string>
#include <string_view>

#include "html/html_token.h"
#include "platform/file_system.h"

namespace zev {

/// Steps through an HTML page token by token. A token is a tag (comments, declarations and
/// processing instructions included) or a run of text; the content of a script element belongs to
/// its start tag. Joined, the tokens' sources are the page, byte for byte.
///
/// Texts are the page's own bytes in whatever encoding it has. Views stay valid until `Close`, the
/// next `LoadFile`, or, where said, the next change of the token.
class HtmlParse {
  public:
    virtual ~HtmlParse() = default;

    /// Reads the page and makes its first token current. After a failure there is no page.
    virtual FileOutcome LoadFile(const std::string& path) = 0;
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
    virtual std::string_view TagText() const = 0;
    /// The value of an attribute as it is spelled in the page, without its quotes; empty when
    /// absent. The name's case does not matter; of several attributes of one name the first counts.
    virtual std::string_view Attribute(std::string_view name) const = 0;
    /// Changes the value in the tag's text, which keeps its quotes and without any gets double
    /// ones, or adds the attribute at its end. Every other byte of the tag stays. Where the value
    /// holds the quote outside of server-side code, it is written as a character reference. Nothing
    /// on text and comments.
    virtual void SetAttribute(std::string_view name, std::string_view value) = 0;
    /// Of a text token its source; of a comment what stands between its marks; of a script start
    /// tag the script. Empty for the rest, for declarations and server-side code too.
    std::string_view Text() const { return m_current->text; }
    /// The source of the current token with all that belongs to it, unchanged: of a tag with its
    /// angle brackets (where the page ends before the closing one, without it), of a script start
    /// tag with the script.
    std::string_view Source() const { return m_current->source; }
    /// Makes the following token current; nothing on the last one.
    void Next() {
        if (IsLast()) {
            return;
        }
        ++m_current;
        if (m_current == m_batchEnd) {
            readBatch();
        }
    }
    /// Lets go of the page.
    virtual void Close() = 0;

  protected:
    // Tokens are read in batches, and what a reader asks every one of them is answered here: both
    // cost a call a batch then, not several a token.

    /// Reads the tokens after those read before, at least one, and makes the first one current.
    virtual void readBatch() = 0;
    /// Of the current token, whose name has upper case.
    virtual std::string_view lowerCaseName() const = 0;

    const HtmlToken* m_current = nullptr;   ///< never null once constructed
    const HtmlToken* m_batchEnd = nullptr;  ///< after the last one read
    const HtmlToken* m_last = nullptr;      ///< the page's last one; null while it is not read yet
};

}  // namespace zev
