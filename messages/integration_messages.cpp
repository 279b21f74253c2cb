// SPDX-License-Identifier: MIT
#include "messages/integration_messages.h"

#include <cstddef>
#include <string_view>

#include "text/text_encoding.h"

namespace zev {

namespace {

/// A piece of a page for people: one line, at most 60 characters of ASCII and UTF-8.
std::string excerpt(std::string_view bytes) {
    constexpr std::size_t kMaxCharacters = 60;
    // Enough for so many characters, and a long script is not converted whole.
    const bool isCut = bytes.size() > 4 * kMaxCharacters;
    std::string_view start = bytes.substr(0, 4 * kMaxCharacters);
    if (isCut) {
        while (!start.empty() && (static_cast<unsigned char>(start.back()) & 0xC0) == 0x80)
            start.remove_suffix(1);
        if (!start.empty() && static_cast<unsigned char>(start.back()) >= 0xC0)
            start.remove_suffix(1);
    }
    std::string converted;
    std::string text;
    std::size_t count = 0;
    bool isBlank = false;
    std::string_view rest = decodeDefinition(start, converted);
    for (; !rest.empty() && count < kMaxCharacters;) {
        const std::string_view character = firstCodePoint(rest);
        rest.remove_prefix(character.size());
        const bool isControl =
            static_cast<unsigned char>(character.front()) <= 0x20 || character.front() == 0x7F;
        if (!isControl) {
            text += isBlank && !text.empty() ? " " : "";
            text += character;
            ++count;
        }
        isBlank = isControl;
    }
    return isCut || !rest.empty() ? text + "\u2026" : text;
}

}  // namespace

std::string noticeText(WizardNotice notice) {
    switch (notice) {
        case WizardNotice::PagesMissing:
            return "Please select at least one file to continue";
        case WizardNotice::DefinitionMissing:
            return "Please enter menu definition filename";
        case WizardNotice::NoSubmenus:
            return "No dropdown menu found! Popup menu options disabled";
        case WizardNotice::SubmenuMissing:
            return "Please select a popup menu";
        case WizardNotice::PositionMissing:
            return "Please enter the position of the menu";
    }
    return {};
}

std::string noteText(const PageNote& note) {
    const std::string line = "line " + std::to_string(note.line) + ": ";
    const std::string text = excerpt(note.text);
    switch (note.kind) {
        case PageNote::Kind::SeveralMenus:
            return line + "another menu is placed here; only the first was replaced";
        case PageNote::Kind::LeftOutOfMenu:
            return line + "stood in the placed menu and is gone: " + text;
        case PageNote::Kind::ElementReplaced:
            return line + "the element that the menu stood instead of does not come back: " + text;
        case PageNote::Kind::ScriptDropped:
            return line + "a script that integration dropped does not come back";
        case PageNote::Kind::QuotesStay:
            return line + "the quotes around " + text +
                   " stay; integration may have put them there";
        case PageNote::Kind::Handwritten:
            return line + "written by hand, stays: " + text;
        case PageNote::Kind::OwnCall:
            return line + "has a call of its own; it stays, and no second one is placed: " + text;
    }
    return {};
}

}  // namespace zev
