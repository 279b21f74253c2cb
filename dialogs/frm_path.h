// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <string>

class QComboBox;
class QLineEdit;
class QListWidget;

namespace zev {

class FileSystem;
class MessageBox;

/// Root folders of the volumes that a person can choose a folder on, "/" among them, in the order
/// of their paths.
QStringList mountedDrives();

/// Asks for the folder that holds the run-time files. The form is made once and only hidden; when
/// it is shown again, it stands where it was left.
class frmPath : public QDialog {
    Q_OBJECT
  public:
    /// `drives`: root folders, not empty. What the references refer to is not owned and outlives
    /// the form.
    frmPath(FileSystem& files, MessageBox& messages, const QStringList& drives, QWidget* parent);
    ~frmPath() override;

    /// Goes to a folder, so that the person finds it listed. Does nothing when there is none.
    void openFolder(const QString& folder);
    /// After OK: the folder, as it was typed.
    std::string path() const;

  private:
    void listDrv_Change();
    void listDir_Change(const QString& folder);
    void btnOK_Click();
    void btnCancel_Click();

    void arrange();
    void showFolder(const QString& folder);
    void listFolder(const QString& folder);
    void followTypedPath();

    FileSystem& m_files;
    MessageBox& m_messages;

    QComboBox* listDrv = nullptr;
    QListWidget* listDir = nullptr;
    QLineEdit* txtPath = nullptr;
};

}  // namespace zev
