// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "app/editor_services.h"
#include "app/editor_view.h"
#include "app/file_listener.h"
#include "app/known_files.h"
#include "model/menu_document.h"

namespace zev {

/// What file dialogs for definition files offer.
inline constexpr const char* kDefinitionFilter = "All Files (*.*)|*.*|JavaScript (*.js)|*.js";

/// The procedures of the File menu and of the preview: New, Open, Save, Save As, Exit. What was
/// opened or saved is put among the desktop's recent documents. Without widgets; document, view and
/// services are handed in, not owned, and outlive it.
class FileCommands {
  public:
    FileCommands(MenuDocument& document, EditorView& view, const EditorServices& services);
    /// Not owned, outlives the commands.
    void setListener(FileListener& listener) { m_listener = &listener; }
    FileListener& listener() const { return *m_listener; }

    /// Resets the document to a new, empty menu and empties the JavaScript tab, as at start-up.
    /// Asks nothing.
    void reset();
    /// True when the document is a new one now; false when the person, or a save that failed, kept
    /// the old one.
    bool mnuFileNew_Click();
    void mnuFileOpen_Click();
    /// Of a file that holds more items than a document can, and of a document never saved, as
    /// `mnuFileSaveAs_Click`; that never writes over such a file. Neither writes where the
    /// program's own files go; the person is told.
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    /// True when the program is to end now.
    bool mnuFileExit_Click();

    /// The person was asked last whether to save, and did not want to.
    bool hasDeclinedToSave() const { return m_hasDeclinedToSave; }

    /// Asks for a file to open: the second kind of `filter` is preselected, the dialog starts in
    /// `folder` (empty: where the last file was chosen). Empty when the person cancelled.
    std::string chooseFile(const char* filter, const std::string& folder);

    /// The folder of the definition file; empty for a document never saved.
    std::string definitionFolder() const;

    /// The whole content of the text file at `path`. The person is told the path and the reason
    /// when it cannot be read, is too large for a definition, or is no text.
    FileResult<std::string> readTextFile(const std::string& path);

    /// Opens the definition file at `path` (full path). On failure the person is told the path and
    /// the reason, and the document in memory stays the one being edited, with its changes. Of what
    /// was left out on success the person is told the number.
    void openDefinition(const std::string& path);

    /// Stores the panel, puts the run-time files beside the definition, shows the script, and
    /// writes it to `path`, or to the preview script in `SavePath` when `path` is empty. All
    /// problems are shown in one message; true when the definition itself was written.
    ///
    /// What it replaces is kept beside it first when nobody has it here: another program's version,
    /// or lines that no menu has. Where that cannot be, the definition is not written.
    bool SaveDefinition(const std::string& path);

    /// Tells the listener whether the document's file is still the one that was read or written.
    void lookAtFile();
    /// Shows what another program has made of the document's file: what stands in the file, or, in
    /// `kept`, what was kept of it when the file was saved over. The document is modified then.
    void reload(const std::string& kept);
    /// What another program has made of the document's file is no news any more. When it is saved
    /// over, it is kept all the same.
    void keepMine();

    /// Cleans and stores the panel, writes the preview files into `SavePath` and loads the preview
    /// page into the browser.
    void showPreview();
    /// Writes and loads the preview again when the document's script or folder is another than that
    /// of the preview the browser shows.
    void updatePreview();

  private:
    /// What became of a Save As.
    enum class SaveOutcome { Saved, Cancelled, Failed };
    SaveOutcome saveAs();
    bool saveDocumentAs(const std::string& path, const std::string& folder, bool isRebasing);
    bool mayDiscardDocument();
    void loadPreview();
    MessageRequest copyRunTimeFiles();
    void seeSaved(const std::string& path, std::string_view bytes, const std::string& kept);
    FileResult<std::string> keepReplaced(const std::string& path, std::string_view newBytes);
    /// True when `path` is the file that the document was read from without all its items.
    bool wouldLoseItems(const std::string& path) const;
    bool isReserved(const std::string& path);

    MenuDocument& m_document;
    EditorView& m_view;
    EditorServices m_services;
    FileListener m_nobody;
    FileListener* m_listener = &m_nobody;
    KnownFiles m_known;
    /// The person has been asked whether the file may be replaced.
    bool m_isReplacementAsked = false;
    bool m_hasDeclinedToSave = false;
    /// What the browser was last told to show.
    std::string m_previewedScript;
    std::string m_previewedFolder;
};

}  // namespace zev
