// SPDX-License-Identifier: MIT
#include "app/notes/file_notes.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "app/notes/menu_fields.h"
#include "checks/item_names.h"
#include "checks/line_changes.h"
#include "checks/menu_difference.h"
#include "messages/difference_messages.h"
#include "messages/import_messages.h"
#include "model/menu_properties.h"
#include "script/property_lines.h"
#include "script/relative_url.h"
#include "script/script_writer.h"
#include "text/path.h"
#include "text/text_encoding.h"

namespace zev {

namespace {

using Owner = NotePlace::Owner;

/// Comparing longer files line by line would take more memory and time than it is worth.
constexpr std::size_t kMaxComparedBytes = std::size_t{64} << 20;
constexpr std::ptrdiff_t kMaxComparedLines = 1'000'000;

/// More would leave no room for other notes.
constexpr std::size_t kMaxDetails = 200;

/// A line of a file, or a value, as far as it is shown.
std::string quoted(std::string_view text) {
    constexpr std::size_t kMaxShownBytes = 200;
    if (text.size() <= kMaxShownBytes)
        return '"' + std::string(text) + '"';
    std::size_t end = kMaxShownBytes;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
        --end;
    return '"' + std::string(text.substr(0, end)) + "...\"";
}

std::string counted(std::size_t count, const std::string& one, const std::string& several) {
    return count == 1 ? "1 " + one : std::to_string(count) + ' ' + several;
}

/// `texts` are the first of `count` details.
void addDetails(NoteList& list, NoteKind kind, std::vector<std::string> texts, std::size_t count) {
    if (count > texts.size())
        texts.push_back("and " + std::to_string(count - texts.size()) + " more");
    for (std::string& text : texts)
        addNote(list, {.kind = kind, .text = std::move(text), .isDetail = true});
}

/// The first of these in words.
template <typename Things, typename ToText>
std::vector<std::string> firstTexts(const Things& things, const ToText& toText) {
    std::vector<std::string> texts;
    for (std::size_t index = 0; index < std::min(things.size(), kMaxDetails); ++index)
        texts.push_back(toText(things[index]));
    return texts;
}

void append(NoteList& list, NoteList&& more) {
    list.count += more.count;
    for (Note& note : more.notes)
        if (list.notes.size() < kMaxNoteRows)
            list.notes.push_back(std::move(note));
}

NoteList warningNotes(NoteKind kind, const std::string& text,
                      const std::vector<LineWarning>& warnings, std::size_t count) {
    NoteList list;
    addNote(list, {.kind = kind, .text = text});
    const auto toText = [](const LineWarning& warning) {
        return "line " + std::to_string(warning.line) + ": " +
               std::string(reasonText(warning.reason));
    };
    addDetails(list, kind, firstTexts(warnings, toText), count);
    return list;
}

std::string changeText(const LineChange& change) {
    const std::string place = "line " + std::to_string(change.line) + ": ";
    if (!change.newText)
        return place + quoted(*change.oldText) + " goes";
    if (!change.oldText)
        return place + quoted(*change.newText) + " comes";
    return place + quoted(*change.oldText) + " becomes " + quoted(*change.newText);
}

NoteList changedLineNotes(const std::string& bytes, std::string newBytes) {
    NoteList list;
    if (newBytes == bytes)
        return list;
    const bool isLong = bytes.size() > kMaxComparedBytes ||
                        std::count(bytes.begin(), bytes.end(), '\n') > kMaxComparedLines;
    if (isLong) {
        addNote(list, {.kind = NoteKind::Opened, .text = "Saving will change this file"});
        return list;
    }
    const std::vector<LineChange> changes = changedLines(bytes, std::move(newBytes));
    const bool isOtherEncoding = !isValidUtf8(bytes);
    if (!changes.empty())
        addNote(list, {.kind = NoteKind::Opened,
                       .text = "Saving will change " + counted(changes.size(), "line", "lines")});
    else if (!isOtherEncoding)
        addNote(list, {.kind = NoteKind::Opened,
                       .text = "Saving will change nothing but spaces or line ends"});
    if (isOtherEncoding)
        addNote(list, {.kind = NoteKind::Opened,
                       .text = "Saving will change the encoding: the file is Windows-1252, and "
                               "becomes UTF-8"});
    addDetails(list, NoteKind::Opened, firstTexts(changes, changeText), changes.size());
    return list;
}

}  // namespace

NoteList openedNotes(const OpenedFile& file, const MenuContent& content) {
    NoteList list;
    const ReadResult& result = file.result;
    if (const std::size_t count = result.foreignLineCount)
        addNote(list, {.kind = NoteKind::Opened,
                       .text = count == 1 ? "1 line of this file is no menu: saving drops it"
                                          : std::to_string(count) +
                                                " lines of this file are no menu: saving drops "
                                                "them"});
    if (const std::size_t count = result.errorCount + result.lostLineCount)
        append(list, warningNotes(NoteKind::Opened,
                                  counted(count, "line was", "lines were") + " not understood",
                                  result.warnings, count));
    append(list, changedLineNotes(file.bytes, definitionFileBytes(GenerateScript(content))));
    return list;
}

LeftDefaults leftDefaults(const std::string& bytes) {
    const MenuProp factory = MenuContent().DefaultProp;
    MenuProp read = factory;
    loadUnkeptDefaults(bytes, read);
    const auto left = [](const std::string& value, const std::string& factoryValue) {
        // A button has no room for more, nor has a number any need of it.
        constexpr std::size_t kMaxDigits = 12;
        return value == factoryValue || value.size() > kMaxDigits ? "" : value;
    };
    return {left(read.CloseDelay, factory.CloseDelay), left(read.MenuOffset, factory.MenuOffset)};
}

NoteList leftDefaultsNotes(const LeftDefaults& left, const MenuProp& defaults,
                           const std::function<void(MenuProp)>& keep) {
    const MenuProp factory = MenuContent().DefaultProp;
    MenuProp kept = defaults;
    std::string names;
    if (!left.closeDelay.empty() && defaults.CloseDelay == factory.CloseDelay) {
        kept.CloseDelay = left.closeDelay;
        names = "Close Delay " + left.closeDelay;
    }
    if (!left.menuOffset.empty() && defaults.MenuOffset == factory.MenuOffset) {
        kept.MenuOffset = left.menuOffset;
        names += (names.empty() ? "Offset " : " and Offset ") + left.menuOffset;
    }
    NoteList list;
    if (!names.empty())
        addNote(list, {.kind = NoteKind::Opened,
                       .place = {Owner::Defaults, "", "closedelay"},
                       .text = names + " of the file did not come back",
                       .actions = {{"Keep " + names, [keep, kept] { keep(kept); }}}});
    return list;
}

NoteList importedNotes(const ImportedFile& file, const MenuContent& content) {
    NoteList list;
    const std::string title = file.format.title;
    if (content.tree.isEmpty()) {
        const bool hasVowel =
            std::string_view("AEIO").find(title.front()) != std::string_view::npos;
        addNote(list, {.kind = NoteKind::Imported,
                       .text = std::string("Nothing was found in this file. Is it ") +
                               (hasVowel ? "an " : "a ") + title + " menu?"});
    }
    const std::vector<LineWarning>& warnings = file.result.warnings;
    if (!warnings.empty())
        append(list, warningNotes(NoteKind::Imported,
                                  counted(warnings.size(), "line was not imported as it stands",
                                          "lines were not imported as they stand"),
                                  warnings, warnings.size()));
    return list;
}

NoteList changedFileNotes(const std::string& path, const std::string& kept,
                          const ChangedFileActions& actions) {
    const std::string name(Path(path).name());
    NoteList list;
    addNote(list, {.kind = NoteKind::ChangedOnDisk,
                   .text = kept.empty()
                               ? "Another program has changed " + name
                               : "Another program had changed " + name +
                                     "; its version is kept as " + std::string(Path(kept).name()),
                   .actions = {{"Reload", actions.reload},
                               {"Keep Mine", actions.keepMine},
                               {"Show Differences", actions.showDifferences}}});
    return list;
}

NoteList differenceNotes(const MenuContent& mine, const std::string& otherBytes) {
    MenuContent other;
    ReadScript(otherBytes, other);
    loadUnkeptDefaults(otherBytes, other.DefaultProp);
    const std::vector<MenuDifference> differences = compareMenus(mine, other);
    NoteList list;
    if (differences.empty())
        addDetails(list, NoteKind::ChangedOnDisk, {"its version has the same menu"}, 1);
    const auto toText = [](const MenuDifference& difference) {
        return "its version: " + differenceText(difference);
    };
    addDetails(list, NoteKind::ChangedOnDisk, firstTexts(differences, toText), differences.size());
    return list;
}

namespace {

struct Recalculated {
    NotePlace place;
    std::string name;
    std::string oldUrl;
    std::string newUrl;
};

/// An address that no folder has a part in, and that was taken for a relative one.
bool isDoubtful(std::string_view url) {
    const std::size_t end = url.find_first_of(":/?#");
    const bool hasScheme = end != std::string_view::npos && end > 0 && url[end] == ':';
    return hasScheme || url.starts_with('#') || url.starts_with('?') || url.starts_with("//");
}

std::vector<Recalculated> recalculatedUrls(const Changes& inverses) {
    std::vector<Recalculated> urls;
    for (const Change& inverse : inverses) {
        const auto* change = std::get_if<SetItem>(&inverse);
        if (!change)
            continue;
        const MenuNode& node = *change->node;
        const auto add = [&](NotePlace place, const std::string& before, const std::string& after) {
            if (before != after)
                urls.push_back({std::move(place), itemPathText(itemPath(&node)), before, after});
        };
        add(placeOf(node, "url"), change->item.URL, node.item.URL);
        add(placeOf(node, "out"), change->item.ImageOut, node.item.ImageOut);
        add(placeOf(node, "over"), change->item.ImageOver, node.item.ImageOver);
        add({Owner::Menu, node.key(), "bgimage"}, change->item.MenuProperty->BgImg,
            node.item.MenuProperty->BgImg);
    }
    std::stable_partition(urls.begin(), urls.end(),
                          [](const Recalculated& url) { return isDoubtful(url.oldUrl); });
    return urls;
}

void addBackground(NoteList& list, NotePlace::Owner owner, const std::string& value,
                   const MenuDocument& document, const std::string& oldFolder,
                   const SetField& set) {
    const std::string newValue = RebaseURL(oldFolder, document.SavePath(), value);
    if (newValue == value)
        return;
    const NotePlace place{owner, "", "bgimage"};
    addNote(list,
            {.kind = NoteKind::Recalculated,
             .place = place,
             .text = std::string(owner == Owner::Defaults ? "the defaults" : "the top menu") +
                     ": bgimage: " + quoted(value) + " was not recalculated to " + quoted(newValue),
             .actions = {{"Recalculate",
                          [set, place, newValue] { set("Recalculate", place, newValue); }}},
             .value = value});
}

}  // namespace

NoteList recalculatedNotes(const Changes& inverses, const MenuDocument& document,
                           const std::string& oldFolder, const SetField& set) {
    NoteList list;
    addBackground(list, Owner::Defaults, document.DefaultProp().BgImg, document, oldFolder, set);
    addBackground(list, Owner::Menu, document.RootMenuProp().BgImg, document, oldFolder, set);
    for (const Recalculated& url : recalculatedUrls(inverses))
        addNote(
            list,
            {.kind = NoteKind::Recalculated,
             .place = url.place,
             .text = url.name + ": " + url.place.field + ": " + quoted(url.oldUrl) + " became " +
                     quoted(url.newUrl) + (isDoubtful(url.oldUrl) ? ", which is doubtful" : ""),
             .actions = {{"Keep Old", [set, url] { set("Keep Old", url.place, url.oldUrl); }}},
             .value = url.newUrl});
    return list;
}

NoteList unkeptNotes(const std::vector<UnkeptValue>& values) {
    NoteList list;
    for (const UnkeptValue& value : values) {
        const bool isNone = value.value.empty();
        const std::string named = value.field == "position" && isNone ? "none" : value.value;
        addNote(list,
                {.kind = NoteKind::Unkept,
                 .place = {value.isDefault ? Owner::Defaults : Owner::Menu, "", value.field},
                 .text = std::string(value.isDefault ? "the defaults" : "the top menu") + ": " +
                         value.field + ": " + (named.empty() ? "that it is empty" : quoted(named)) +
                         " is not in the saved file; the next Open shows " + quoted(value.opened)});
    }
    return list;
}

NoteList scriptErrorNotes(const ScriptPlace& place, std::size_t line, const std::string& message) {
    using Part = ScriptPlace::Part;
    Note note{.kind = NoteKind::Script};
    std::string where;
    if (place.part == Part::Defaults) {
        note.place = {Owner::Defaults};
        where = " (the defaults)";
    } else if (place.part == Part::Menu) {
        note.place = {Owner::Menu, place.node ? place.node->key() : ""};
        where = place.node ? " (the menu of " + itemPathText(itemPath(place.node)) + ")"
                           : " (the top menu)";
    } else if (place.part == Part::Item) {
        note.place = placeOf(*place.node, place.node->item.IsRollover ? "url" : "caption");
        where = " (" + itemPathText(itemPath(place.node)) + ")";
    }
    note.text = "The menu's script has an error in line " + std::to_string(line) + where + ": " +
                quoted(message);
    NoteList list;
    addNote(list, std::move(note));
    return list;
}

}  // namespace zev
