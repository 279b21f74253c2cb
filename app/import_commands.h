// SPDX-License-Identifier: MIT
#pragma once

#include "app/file_commands.h"
#include "importers/import_menu.h"
#include "model/menu_document.h"
#include "platform/message_box.h"

namespace zev {

/// The commands of File > Import: a new document, with New's question about the old one, and the
/// menu of an earlier product's file in it. Without widgets; what is handed in is not owned and
/// outlives it.
class ImportCommands {
  public:
    ImportCommands(MenuDocument& document, FileCommands& fileCommands, MessageBox& messages);

    void run(const ImportFormat& format);

  private:
    MenuDocument& m_document;
    FileCommands& m_fileCommands;
    MessageBox& m_messages;
};

}  // namespace zev
