#include "importers/import_menu.h"

#include <algorithm>

#include "importers/orlet_reader.h"
#include "importers/quillmenu_reader.h"
#include "script/definition_lines.h"

namespace zev {

namespace {

std::vector<ImportWarning> ReadLines(ImportFormat format, DefinitionLines& lines,
                                     MenuDocument& document) {
    switch (format) {
        case ImportFormat::Quillmenu:
            return ReadQuillmenu(lines, document);
        case ImportFormat::OrletBar:
            return ReadOrlet(lines, OrletTopLevel::LinkItems, document);
        case ImportFormat::OrletMenu:
            document.RootMenuProp.Columns = "1";  // a vertical list
            return ReadOrlet(lines, OrletTopLevel::LinkItems, document);
        case ImportFormat::OrletButton:
            return ReadOrlet(lines, OrletTopLevel::ImageItems, document);
    }
    return {};
}

}  // namespace

ImportResult ImportMenu(ImportFormat format, std::string_view bytes, MenuDocument& document) {
    DefinitionLines lines(bytes);
    // About the length of a short item's line; of another file no more is taken than a menu can
    // hold.
    constexpr std::size_t kShortLineBytes = 16;
    document.tree.reserve(std::min<std::size_t>(bytes.size() / kShortLineBytes, kMaxItemCounter));
    ImportResult result{ReadLines(format, lines, document)};
    document.CurNode = document.tree.firstNode();
    document.selectedNode = document.CurNode;
    document.bModified = false;
    return result;
}

}  // namespace zev
