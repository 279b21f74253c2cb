// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "importers/import_menu.h"
#include "messages/import_messages.h"
#include "script/definition_lines.h"
#include "script/item_lines.h"
#include "script/script_reader.h"
#include "script/script_writer.h"
#include "text/text_encoding.h"

namespace zev::test {

/// The lines of a file that are items of the three formats with colons.
inline std::size_t colonLineCount(std::string_view bytes) {
    std::size_t count = 0;
    DefinitionLines lines{std::string(bytes)};
    std::string_view line;
    while (lines.next(line))
        count += line.starts_with(':');
    return count;
}

/// What is wrong with the warnings of an import; empty when nothing is.
inline std::string problemOfWarnings(const std::vector<LineWarning>& warnings,
                                     std::string_view bytes) {
    std::size_t lineCount = 0;
    DefinitionLines lines{std::string(bytes)};
    std::string_view line;
    while (lines.next(line))
        ++lineCount;
    for (std::size_t i = 0; i < warnings.size(); ++i) {
        const std::size_t number = warnings[i].line;
        if (number < 1 || number > lineCount)
            return "a warning is about a line that is not there";
        if (i >= 1 && number < warnings[i - 1].line)
            return "the warnings do not follow the lines";
        if (i >= 2 && number == warnings[i - 2].line)
            return "a line has three warnings";
        if (reasonText(warnings[i].reason).empty())
            return "a warning has no reason";
    }
    return "";
}

/// What is wrong with a document after an import, whatever was imported; empty when nothing is.
inline std::string problemOfDocument(const MenuContent& document) {
    std::size_t count = 0;
    const MenuTree& tree = document.tree;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
        ++count;
        const auto siblings = tree.childrenOf(node->parent());
        if (tree.find(node->key()) != node || node->row() >= siblings.size() ||
            siblings[node->row()] != node)
            return "a node is not where it can be found";
        if (node->text != (node->item.IsRollover ? node->item.ImageOut : node->item.Caption))
            return "a node is not shown under its caption or image";
    }
    if (count != tree.size())
        return "not every node is in the tree";
    return "";
}

/// What is wrong with a document of one of the three formats with colons; empty when nothing is.
inline std::string problemOfOrletDocument(const MenuContent& document,
                                          const std::vector<LineWarning>& warnings,
                                          std::string_view bytes) {
    const auto refused = static_cast<std::size_t>(
        std::count_if(warnings.begin(), warnings.end(), [](const LineWarning& warning) {
            return warning.reason != LineWarning::Reason::StartsDeep;
        }));
    if (document.tree.size() + refused != colonLineCount(bytes))
        return "an item is neither in the tree nor refused";
    if (static_cast<std::size_t>(document.ItemCounter) != document.tree.size())
        return "the items are not counted";
    // Every item comes after the one before it, at whatever level.
    std::size_t number = 0;
    const MenuTree& tree = document.tree;
    for (const MenuNode* node = tree.firstNode(); node; node = tree.nextInTreeOrder(*node)) {
        if (node->key() != "KeyLoad " + std::to_string(++number))
            return "the items are not in the order of their lines";
        if (node->item.IsRollover || !(node->item.MenuProperty == newItemMenuProp()))
            return "an item is not a plain text item";
    }
    return "";
}

/// An item whose text ends in a backslash escapes the quote that should close it; it comes back as
/// something else when its line is read.
inline bool endsInBackslash(const ItemProp& item) {
    const auto ends = [](const std::string& text) { return text.ends_with('\\'); };
    return ends(item.Caption) || ends(item.URL) || ends(item.Target) || ends(item.ImageOut) ||
           ends(item.ImageOver);
}

/// What is wrong with saving a document and opening it again; empty when nothing is. Of the
/// properties of its menus nothing is asked: those equal to the defaults are not written.
inline std::string problemOfSaving(const MenuContent& document) {
    const std::string bytes = definitionFileBytes(GenerateScript(document));
    if (!isValidUtf8(bytes))
        return "what is written is not UTF-8";
    MenuContent again;
    if (ReadScript(bytes, again).errorCount != 0)
        return "what is written cannot be read without errors";
    const MenuNode* node = document.tree.firstNode();
    const MenuNode* same = again.tree.firstNode();
    while (node && same) {
        if (node->children().size() != same->children().size() || node->row() != same->row())
            return "the tree has another shape when it is opened again";
        if (!endsInBackslash(node->item) && GetText(node->item) != GetText(same->item))
            return "an item is another when it is opened again: " + GetText(node->item);
        node = document.tree.nextInTreeOrder(*node);
        same = again.tree.nextInTreeOrder(*same);
    }
    return node || same ? "the tree has other items when it is opened again" : "";
}

/// True when two documents hold the same menu under the same keys.
inline bool isSameMenu(const MenuContent& left, const MenuContent& right) {
    const MenuNode* node = left.tree.firstNode();
    const MenuNode* other = right.tree.firstNode();
    while (node && other && node->key() == other->key() && node->item == other->item &&
           node->children().size() == other->children().size()) {
        node = left.tree.nextInTreeOrder(*node);
        other = right.tree.nextInTreeOrder(*other);
    }
    return !node && !other && left.ItemCounter == right.ItemCounter &&
           left.DefaultProp == right.DefaultProp && left.RootMenuProp == right.RootMenuProp;
}

/// Imports the bytes and says the first thing wrong with what comes of it; empty when nothing is.
inline std::string problemOfImport(std::string_view format, std::string_view bytes) {
    MenuContent document;
    const std::vector<LineWarning> warnings =
        importMenu(*findImportFormat(format), std::string(bytes), document).warnings;
    std::string problem = problemOfWarnings(warnings, bytes);
    if (problem.empty())
        problem = problemOfDocument(document);
    if (problem.empty() && format != "quillmenu")
        problem = problemOfOrletDocument(document, warnings, bytes);
    if (problem.empty())
        problem = problemOfSaving(document);
    if (!problem.empty())
        return problem;
    MenuContent again;
    if (importMenu(*findImportFormat(format), std::string(bytes), again).warnings != warnings ||
        !isSameMenu(again, document))
        return "imported again it is another menu";
    return "";
}

}  // namespace zev::test
