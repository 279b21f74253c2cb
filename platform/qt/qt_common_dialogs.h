// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include "platform/common_dialogs.h"

namespace zev {

/// A filter such as "Images (*.gif;*.jpg)|*.gif;*.jpg|All Files (*.*)|*.*" in the form Qt's dialogs
/// take, in which the last brackets are not shown: "Images (*.gif;*.jpg) (*.gif *.jpg)",
/// "All Files (*.*) (*)".
QStringList nameFilters(const std::string& filter);

/// The extension that a name filter such as "Text (*.txt)" gives to a name without one ("txt"), as
/// it is shown or with what is not; empty when the filter stands for all files or several kinds.
QString defaultSuffix(const QString& nameFilter);

/// A family of a font dialog's list as a style sheet names it. Toolkits have generic families of
/// their own ("Sans Serif" is "sans-serif"), and tell fonts of one name apart by who made them
/// ("Nimbus Sans [urw]" is "Nimbus Sans").
QString styleSheetFamily(const QString& listed);

/// The desktop's dialogs. A file dialog that is told no folder starts where the last file was
/// chosen; the others remember nothing.
class QtCommonDialogs : public CommonDialogs {
  public:
    std::string openFile(const FileDialogRequest& request) override;
    ChosenFiles openFiles(const FileDialogRequest& request) override;
    std::string openFolder(const FileDialogRequest& request) override;
    std::string saveFile(const FileDialogRequest& request) override;
    std::optional<std::int32_t> chooseColor(std::int32_t initial) override;
    std::optional<FontChoice> chooseFont(const FontChoice& initial) override;

  private:
    QString m_lastFolder;
};

}  // namespace zev
