// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <string>

#include "platform/file_system.h"

namespace zev {

/// The desktop's list of recent documents `list`, in the form of its own
/// (https://specifications.freedesktop.org/desktop-bookmark-spec), with `document` (a full path)
/// put there by this program at `time`. What others have written stays. An empty `list` gives a new
/// one; what is no such list gives nothing.
QByteArray withRecentDocument(const QByteArray& list, const std::string& document,
                              const QDateTime& time);

/// Puts `document` (a full path) into the list that lies in the file `listFile`; nobody but the
/// user may read one that is made for it. Nothing is said of a failure: the desktop then does not
/// offer the document. An empty `listFile` does nothing.
void noteRecentDocument(FileSystem& files, const std::string& listFile,
                        const std::string& document);

}  // namespace zev
