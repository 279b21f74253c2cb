#include "html/html_attributes.h"
#include "text/ascii.h"

namespace zev {

bool findHtmlAttribute(std::string_view tag, std::size_t position, std::string_view name,
                       HtmlAttribute& attribute) {
    ServerBlocks blocks(tag);
    HtmlAttributeReader reader(tag, blocks, position);
    while (reader.next(attribute))
        if (equalsIgnoringCase(
                tag.substr(attribute.nameBegin, attribute.nameEnd - attribute.nameBegin), name))
            return true;
    return false;
}

}  // namespace zev
