// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "importers/import_menu.h"
#include "model/document_change.h"
#include "script/script_reader.h"

namespace zev {

/// A definition file that was read.
struct OpenedFile {
    const std::string& path;
    const std::string& bytes;  ///< its whole content
    const ReadResult& result;
};

/// A file that was read as the menu of an earlier product.
struct ImportedFile {
    const ImportFormat& format;
    const std::string& path;
    const ImportResult& result;
};

/// Is told by the commands of the File menu what has come of them, beyond what they show
/// themselves; everything it does not ask for passes by.
class FileListener {
  public:
    virtual ~FileListener() = default;
    /// The document is what this file gave.
    virtual void opened(const OpenedFile& /*file*/) {}
    virtual void imported(const ImportedFile& /*file*/) {}
    /// The definition was written to its file.
    virtual void saved() {}
    /// The URLs of the document were recalculated for another folder; `inverses` takes that back.
    virtual void recalculated(const Changes& /*inverses*/, const std::string& /*oldFolder*/) {}
    /// Another program has changed the document's file. `kept` is the path of what it was changed
    /// to, once that was saved over; empty: it stands in the file.
    virtual void changedOnDisk(const std::string& /*kept*/) {}
    /// The document's file is the one that was read or written last.
    virtual void sameOnDisk() {}
    /// The preview is about to be loaded.
    virtual void previewed() {}
};

}  // namespace zev
