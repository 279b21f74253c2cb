// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <functional>
#include <string>
#include <vector>

#include "app/edit_history.h"
#include "platform/file_system.h"
#include "recovery/document_keeper.h"
#include "recovery/recovery_store.h"

class QMenu;
class QWidget;

namespace zev {

class StripLine;

/// What `RecoveryCommands` works on. Nothing of it is owned; all outlives them.
struct RecoveryHost {
    MenuDocument& document;
    EditHistory& history;
    FileSystem& files;
    StripLine& line;  ///< above the tree
    QMenu& menu;      ///< of the unsaved menus
    QWidget& window;
    /// Runs a command as a step of this name.
    std::function<void(const std::string& step, const std::function<void()>& work)> run;
};

/// Keeps the menu on the disk after each command, and gives back those that were never saved: the
/// line above the tree offers what a crash has left, the menu has all of them.
class RecoveryCommands : public QObject {
    Q_OBJECT
  public:
    /// `folder`: where all running programs of this user keep their menus.
    RecoveryCommands(RecoveryHost host, const std::string& folder);

    /// What is kept so far outlasts the machine.
    void sync();
    /// The program ends now. `isGivenUp`: the person said that the changes are not wanted.
    void leave(bool isGivenUp);

  private:
    void keep();
    void tell(const FileOutcome& problem);
    void offer();
    void fillMenu();
    void restore(const UnsavedMenu& unsaved);
    void showChanges(const UnsavedMenu& unsaved);
    void discard(const UnsavedMenu& unsaved);

    RecoveryHost m_host;
    RecoveryStore m_store;
    DocumentKeeper m_keeper;
    bool m_isKept = true;       ///< the last command was
    bool m_hasToldWhy = false;  ///< why nothing can be kept; it is said once
};

}  // namespace zev
