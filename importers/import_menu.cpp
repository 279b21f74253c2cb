// SPDX-License-Identifier: MIT
#include "importers/import_menu.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

#include "importers/orlet_reader.h"
#include "importers/quillmenu_reader.h"

namespace zev {

namespace {

constexpr const char* kScriptFilter = "All Files (*.*)|*.*|JavaScript (*.js)|*.js";
constexpr const char* kTextFilter = "All Files (*.*)|*.*|Text (*.txt)|*.txt";

template <OrletTopLevel kTopLevel>
std::vector<LineWarning> readOrletAs(DefinitionLines& lines, MenuContent& content) {
    return readOrlet(lines, kTopLevel, content);
}

constexpr ImportFormat kFormats[] = {
    {"quillmenu", "Quillmenu", "mnuFileImportQuillmenu", kScriptFilter, readQuillmenu},
    {"orletbar", "OrletBar", "mnuFileImportOrletBar", kTextFilter, readOrletAs<OrletTopLevel::Bar>},
    {"orletmenu", "OrletMenu", "mnuFileImportOrletMenu", kTextFilter,
     readOrletAs<OrletTopLevel::List>},
    {"orletbutton", "OrletButton", "mnuFileImportOrletButton", kTextFilter,
     readOrletAs<OrletTopLevel::ImageBar>},
};

}  // namespace

std::span<const ImportFormat> importFormats() {
    return kFormats;
}

const ImportFormat* findImportFormat(std::string_view name) {
    const auto* const found =
        std::find_if(std::begin(kFormats), std::end(kFormats),
                     [name](const ImportFormat& format) { return format.name == name; });
    return found == std::end(kFormats) ? nullptr : found;
}

ImportResult importMenu(const ImportFormat& format, std::string bytes, MenuContent& content) {
    // About the length of a short item's line; of another file no more is taken than a menu can
    // hold.
    constexpr std::size_t kShortLineBytes = 16;
    content.tree.reserve(std::min<std::size_t>(bytes.size() / kShortLineBytes, kMaxItemCounter));
    DefinitionLines lines(std::move(bytes));
    return {format.read(lines, content)};
}

}  // namespace zev
