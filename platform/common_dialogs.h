#pragma once

#include <string>

namespace zev {

struct FileDialogRequest {
    std::string title;
    std::string fileName;  ///< preset name or full path; empty for none
    /// Pairs of description and patterns, all separated by "|": "All Files (*.*)|*.*|Text|*.txt".
    std::string filter;
    int filterIndex = 1;               ///< preselected pair, counted from 1
    std::string folder;                ///< where the dialog starts when `fileName` names no folder
    bool asksBeforeReplacing = false;  ///< save dialogs: prompt before an existing file is chosen
};

/// The system's common dialogs. An empty result means that the person cancelled.
class CommonDialogs {
  public:
    virtual ~CommonDialogs() = default;
    /// Full path of an existing file.
    virtual std::string openFile(const FileDialogRequest& request) = 0;
    /// Full path of the file to write.
    virtual std::string saveFile(const FileDialogRequest& request) = 0;
};

}  // namespace zev
