#include "importers/import_menu.h"

#include <algorithm>

#include "importers/orlet_reader.h"
#include "importers/quillmenu_reader.h"
#include "script/definition_lines.h"

namespace zev {

namespace {

std::vector<ImportWarning> ReadLines(ImportFormat format, DefinitionLines& lines,
                                     MenuContent& content) {
    switch (format) {
        case ImportFormat::Quillmenu:
            return ReadQuillmenu(lines, content);
        case ImportFormat::OrletBar:
            return ReadOrlet(lines, OrletTopLevel::LinkItems, content);
        case ImportFormat::OrletMenu:
            content.RootMenuProp.Columns = "1";  // a vertical list
            return ReadOrlet(lines, OrletTopLevel::LinkItems, content);
        case ImportFormat::OrletButton:
            return ReadOrlet(lines, OrletTopLevel::ImageItems, content);
    }
    return {};
}

}  // namespace

ImportResult ImportMenu(ImportFormat format, std::string_view bytes, MenuContent& content) {
    DefinitionLines lines(bytes);
    // About the length of a short item's line; of another file no more is taken than a menu can
    // hold.
    constexpr std::size_t kShortLineBytes = 16;
    content.tree.reserve(std::min<std::size_t>(bytes.size() / kShortLineBytes, kMaxItemCounter));
    return {ReadLines(format, lines, content)};
}

}  // namespace zev
