#pragma once

#include <QMainWindow>
#include <string>

#include "app/editor_services.h"
#include "app/editor_view.h"
#include "app/file_commands.h"
#include "model/menu_document.h"

namespace zev {

/// The editor's main window. It builds and connects; what the commands do is decided elsewhere.
class frmMain : public QMainWindow, public EditorView {
    Q_OBJECT
  public:
    /// `programFolder`: the folder that holds the run-time files. `webBrowser`: the widget behind
    /// `services.browser`, placed into the Preview tab, owned by the window from then on.
    frmMain(const EditorServices& services, const std::string& programFolder, QWidget* webBrowser);
    ~frmMain() override;

    MenuDocument& document();
    FileCommands& fileCommands();
};

}  // namespace zev
