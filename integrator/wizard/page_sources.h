#pragma once

#include <string>
#include <vector>

#include "platform/common_dialogs.h"

class QMimeData;

namespace zev {

/// The open dialog for web pages; it starts in `folder`, where that is known.
FileDialogRequest pageRequest(const std::string& folder);

/// Full paths of the files and folders that are dragged along; none when there are other things.
std::vector<std::string> draggedPaths(const QMimeData& data);

}  // namespace zev
