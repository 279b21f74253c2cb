// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "integrator/page_list.h"
#include "integrator/wizard/wizard_services.h"
#include "platform/common_dialogs.h"
#include "platform/file_system.h"

class QMimeData;
class QWidget;

namespace zev {

// Where the wizard's pages come from. `folder` is where a dialog begins, empty when that is not
// known; results are full paths, none when the person cancelled.

/// The open dialog for web pages.
FileDialogRequest pageRequest(const std::string& folder);

/// The pages of a folder that the person enters in a window of its own.
std::vector<std::string> pagesOfFolder(const IntegratorServices& services,
                                       const std::string& folder, QWidget* parent);

/// The pages that a list or site map names, which the person chooses. Relative paths in a list
/// count from its own folder. The person is told when there are none.
std::vector<std::string> pagesOfList(const IntegratorServices& services, const std::string& folder);

/// Whether all that is dragged along are files and folders.
bool isOnlyFiles(const QMimeData& data);

/// The pages in the folder; where looking takes a while, the person is told and may stop it.
/// `parent` waits for it and is not null.
FoundPages findPagesTelling(const FileSystem& files, const std::string& folder,
                            const PagePatterns& patterns, QWidget* parent);

/// The files that are dropped, and the pages in the folders; none when the person stopped it.
std::vector<std::string> droppedPages(const IntegratorServices& services, const QMimeData& data,
                                      QWidget* parent);

/// Tells of folders that could not be looked into; nothing when there are none.
void showUnreadFolders(MessageBox& messages, const std::vector<FileError>& errors);

}  // namespace zev
