#pragma once

#include <string>
#include <string_view>

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
    virtual bool IsLast() const = 0;
    virtual bool IsTag() const = 0;
    /// Element name in ASCII lower case, an end tag's with a leading "/". "!" for a comment, a
    /// declaration, a processing instruction or a block of server-side code. Valid until `Next`.
    virtual std::string_view TagName() const = 0;
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
    virtual std::string_view Text() const = 0;
    /// The source of the current token with all that belongs to it, unchanged: of a tag with its
    /// angle brackets (where the page ends before the closing one, without it), of a script start
    /// tag with the script.
    virtual std::string_view Source() const = 0;
    /// Makes the following token current; nothing on the last one.
    virtual void Next() = 0;
    /// Lets go of the page.
    virtual void Close() = 0;
};

}  // namespace zev
