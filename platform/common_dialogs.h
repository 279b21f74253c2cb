// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zev {

struct FileDialogRequest {
    std::string title;
    std::string fileName;  ///< preset name or full path; empty for none
    /// Pairs of description and patterns, all separated by "|": "All Files (*.*)|*.*|Text|*.txt".
    std::string filter;
    int filterIndex = 1;               ///< preselected pair, counted from 1
    std::string folder;                ///< where the dialog starts when `fileName` names no folder
    bool asksBeforeReplacing = false;  ///< save dialogs: prompt before an existing file is chosen
    /// Save dialogs: given to a name without one where the chosen filter is not of one kind.
    std::string extension;
};

/// Files of one folder. No names: the person cancelled.
struct ChosenFiles {
    std::string folder;              ///< full path; without its last separator unless it is a root
    std::vector<std::string> names;  ///< bare file names in the order the dialog gave them
    bool operator==(const ChosenFiles&) const = default;
};

/// A font as a person chooses it.
struct FontChoice {
    /// Family, or several as in a style sheet; empty: the dialog starts with the system's own.
    std::string name;
    float points = 0;  ///< size; 0: the same
    bool isItalic = false;
    bool isBold = false;
    bool operator==(const FontChoice&) const = default;
};

/// A colour value (red in bits 0 to 7, green in 8 to 15, blue in 16 to 23) as the toolkit's own
/// type of colour, which is made of red, green and blue.
template <typename Color>
Color colorAs(std::int32_t value) {
    return Color(value & 0xFF, value >> 8 & 0xFF, value >> 16 & 0xFF);
}

/// The system's common dialogs. An empty result means that the person cancelled.
class CommonDialogs {
  public:
    virtual ~CommonDialogs() = default;
    /// Full path of an existing file.
    virtual std::string openFile(const FileDialogRequest& request) = 0;
    /// One or more existing files of one folder.
    virtual ChosenFiles openFiles(const FileDialogRequest& request) = 0;
    /// Full path of an existing folder.
    virtual std::string openFolder(const FileDialogRequest& request) = 0;
    /// Full path of the file to write.
    virtual std::string saveFile(const FileDialogRequest& request) = 0;
    /// A colour value, preselected with `initial`. The part for mixing colours is open from the
    /// start.
    virtual std::optional<std::int32_t> chooseColor(std::int32_t initial) = 0;
    /// A font, preselected with `initial` as far as that exists on this system. What the person
    /// leaves as it is shown comes back as it is in `initial`; a family that is chosen exists.
    virtual std::optional<FontChoice> chooseFont(const FontChoice& initial) = 0;
};

}  // namespace zev
