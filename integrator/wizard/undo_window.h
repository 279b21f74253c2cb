// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <string>

class QListWidget;
class QPushButton;

namespace zev {

class FileSystem;
class MessageBox;

/// The last runs of the Menu Integrator, with their dates and pages, to be undone.
class UndoWindow : public QDialog {
    Q_OBJECT
  public:
    static constexpr int kMaxRuns = 10;

    /// `recordFolder` holds what it takes to undo runs. The references are not owned and outlive
    /// the window.
    UndoWindow(FileSystem& files, MessageBox& messages, const std::string& recordFolder,
               QWidget* parent);

  private:
    void arrange();
    void showRuns();
    void undoSelected();

    FileSystem& m_files;
    MessageBox& m_messages;
    std::string m_recordFolder;

    QListWidget* m_runs = nullptr;
    QPushButton* m_btnUndo = nullptr;
};

}  // namespace zev
