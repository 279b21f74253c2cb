// SPDX-License-Identifier: MIT
#include "app/file_commands.h"

#include <utility>

#include "library/library_files.h"
#include "library/own_files.h"
#include "messages/definition_messages.h"
#include "messages/library_messages.h"
#include "platform/kept_copy.h"
#include "script/relative_url.h"
#include "script/script_reader.h"
#include "script/script_writer.h"

namespace zev {

namespace {

/// Behind "All Files", each filter has the kind of file that is usually wanted.
constexpr int kUsualKind = 2;

/// A larger file is compared when it is saved only, and not each time the window becomes active.
constexpr std::uint64_t kMaxLookedAtBytes = std::uint64_t{32} << 20;

void addLine(std::string& text, const std::string& line) {
    if (!text.empty())
        text += '\n';
    text += line;
}

}  // namespace

FileCommands::FileCommands(MenuDocument& document, EditorView& view, const EditorServices& services)
    : m_document(document), m_view(view), m_services(services) {}

void FileCommands::reset() {
    m_document.NewDocument();
    m_view.showScript("");
}

bool FileCommands::mnuFileNew_Click() {
    if (!mayDiscardDocument())
        return false;
    reset();
    return true;
}

void FileCommands::mnuFileOpen_Click() {
    const std::string path = chooseFile(kDefinitionFilter, definitionFolder());
    if (!path.empty()) {
        openDefinition(path);
        return;
    }
    // A cancelled dialog clears the mark too: Open asks nothing about unsaved changes, and Exit
    // after it ends without asking.
    m_document.clearModified();
    m_view.Button_Update();
}

void FileCommands::mnuFileSave_Click() {
    if (m_document.SaveFile().empty() || wouldLoseItems(m_document.SaveFile())) {
        saveAs();
        return;
    }
    if (isReserved(m_document.SaveFile()))
        return;
    if (SaveDefinition(m_document.SaveFile())) {
        // No Button_Update: Save stays available until the next command updates the buttons.
        m_document.markSaved();
    }
}

void FileCommands::mnuFileSaveAs_Click() {
    saveAs();
}

bool FileCommands::mnuFileExit_Click() {
    return mayDiscardDocument();
}

/// Asks about unsaved changes before the document is given up. Answered Yes, only a failed write
/// keeps the document: a cancelled Save As dialog does not.
bool FileCommands::mayDiscardDocument() {
    m_hasDeclinedToSave = false;
    if (!m_document.bModified())
        return true;
    MessageRequest question;
    question.text = "Save changes to project?";
    question.buttons = MessageRequest::Buttons::YesNoCancel;
    switch (m_services.messages.show(question)) {
        case MessageBox::Answer::Yes:
            return saveAs() != SaveOutcome::Failed;
        case MessageBox::Answer::No:
            m_hasDeclinedToSave = true;
            return true;
        default:
            return false;
    }
}

std::string FileCommands::chooseFile(const char* filter, const std::string& folder) {
    FileDialogRequest request;
    request.title = "Open";
    request.filter = filter;
    request.filterIndex = kUsualKind;
    request.folder = folder;
    return m_services.dialogs.openFile(request);
}

std::string FileCommands::definitionFolder() const {
    return m_document.SaveFile().empty() ? "" : m_document.SavePath();
}

FileResult<std::string> FileCommands::readTextFile(const std::string& path) {
    FileResult<std::string> content = m_services.files.readFile(path, kMaxDefinitionFileBytes);
    if (content.isOk() && isBinary(content.value()))
        content = FileError{FileError::Code::Other, path, "Not a text file"};
    if (!content.isOk())
        m_services.messages.notice("Could not open " + path + ": " + content.error().reason);
    return content;
}

void FileCommands::openDefinition(const std::string& path) {
    FileResult<std::string> content = readTextFile(path);
    if (!content.isOk())
        return;
    const std::string bytes = content.take();
    MenuContent opened;
    const ReadResult result = ReadScript(bytes, opened);
    m_known.see(path, bytes, result.losesLines());
    if (result.itemsLeftOut > 0)
        opened.overfullFile = path;
    m_document.open(std::move(opened), path, SplitPath(path).folder);
    m_listener->opened({path, bytes, result});
    if (m_services.noteRecentDocument)
        m_services.noteRecentDocument(path);
    if (result.errorCount > 0) {
        m_services.messages.notice(std::to_string(result.errorCount) +
                                   " errors encountered during parsing");
    }
    if (result.itemsLeftOut > 0)
        m_services.messages.notice(itemsLeftOutText(path, result.itemsLeftOut) +
                                   ".\nSave asks for another name, so that the file keeps them.");
}

bool FileCommands::wouldLoseItems(const std::string& path) const {
    const std::string& overfull = m_document.content().overfullFile;
    return !overfull.empty() && m_services.files.isSameFile(path, overfull);
}

/// True when a definition must not have this path; the person has been told then.
bool FileCommands::isReserved(const std::string& path) {
    if (!hasReservedName(m_services.files, Path(path)))
        return false;
    m_services.messages.notice("Could not save " + path +
                               ": the program keeps a file of its own by this name beside every "
                               "menu. Please choose another name.");
    return true;
}

FileCommands::SaveOutcome FileCommands::saveAs() {
    FileDialogRequest request;
    request.title = "Save As";
    request.fileName = m_document.SaveFile();
    request.filter = kDefinitionFilter;
    request.filterIndex = kUsualKind;
    request.asksBeforeReplacing = true;
    const std::string path = m_services.dialogs.saveFile(request);
    if (path.empty())
        return SaveOutcome::Cancelled;
    if (isReserved(path))
        return SaveOutcome::Failed;
    if (wouldLoseItems(path)) {
        m_services.messages.notice("Could not save " + path +
                                   ": it holds items that were left out when it was opened, and "
                                   "would lose them. Please choose another name.");
        return SaveOutcome::Failed;
    }
    // Before the URLs are recalculated, so that what was typed a moment ago is recalculated too
    // and not lost when the panel shows the result.
    m_view.StoreItem();
    MessageRequest question;
    question.text = "Recalculate relative URLs for hyperlinks and images?";
    question.buttons = MessageRequest::Buttons::YesNo;
    const bool isRebasing = m_services.messages.show(question) == MessageBox::Answer::Yes;
    return saveDocumentAs(path, SplitPath(path).folder, isRebasing) ? SaveOutcome::Saved
                                                                    : SaveOutcome::Failed;
}

/// Moves the document to `path` and writes it there. When the write fails the document is put back
/// as it was, with its file, folder and URLs: rebasing backwards would not do, because not every
/// URL survives both ways.
bool FileCommands::saveDocumentAs(const std::string& path, const std::string& folder,
                                  bool isRebasing) {
    const std::string oldFile = m_document.SaveFile();
    const std::string oldFolder = m_document.SavePath();
    Changes rebasedBack;
    if (isRebasing)
        rebasedBack = RebaseAllURLs(m_document, oldFolder, folder);
    m_document.setFile(path, folder);
    m_isReplacementAsked = true;
    const bool isSaved = SaveDefinition(path);
    m_isReplacementAsked = false;
    if (isSaved) {
        if (isRebasing)
            m_listener->recalculated(rebasedBack, oldFolder);
        m_document.record(std::move(rebasedBack));
        m_document.markSaved();
        m_view.Button_Update();
        return true;
    }
    m_document.setFile(oldFile, oldFolder);
    if (isRebasing) {
        m_document.apply(std::move(rebasedBack));
        m_view.StoreItem();  // the label of the shown item goes back with its image
        m_view.showScript(GenerateScript(m_document.content()));
    }
    return false;
}

bool FileCommands::SaveDefinition(const std::string& path) {
    m_view.StoreItem();
    MessageRequest notice = copyRunTimeFiles();
    // What is written comes from the writer and never back out of the JavaScript tab.
    const std::string script = GenerateScript(m_document.content());
    m_view.showScript(script);
    const std::string target =
        path.empty() ? Path(m_document.SavePath()).child(kPreviewScript) : path;
    const std::string bytes = definitionFileBytes(script);
    // The preview script has a name that the person did not choose.
    const Links links = path.empty() ? Links::Replaced : Links::Followed;
    FileResult<std::string> kept = path.empty() ? std::string() : keepReplaced(target, bytes);
    const FileOutcome failure =
        kept.isOk() ? m_services.files.writeFile(target, bytes, links) : FileOutcome(kept.error());
    if (failure) {
        addLine(notice.text, "Could not save " + target + ": " + failure->reason);
    } else if (!path.empty()) {
        seeSaved(path, bytes, kept.value());
        if (m_services.noteRecentDocument)
            m_services.noteRecentDocument(path);
    }
    if (!notice.text.empty())
        m_services.messages.show(notice);
    return !failure;
}

void FileCommands::seeSaved(const std::string& path, std::string_view bytes,
                            const std::string& kept) {
    m_known.see(path, bytes, false);
    m_listener->saved();
    if (!kept.empty())
        m_listener->changedOnDisk(kept);
}

/// The path of what was kept because another program had changed it; empty where there was nothing
/// to keep, or nothing that is news.
FileResult<std::string> FileCommands::keepReplaced(const std::string& path,
                                                   std::string_view newBytes) {
    FileSystem& files = m_services.files;
    // A pipe or device holds nothing, nor does a file that is not there.
    if (!files.isSameFile(path, path) || (m_isReplacementAsked && !m_known.isKnown(path)))
        return std::string();
    const FileResult<std::string> present = files.readFile(path, kMaxDefinitionFileBytes);
    if (!present.isOk() && present.error().code == FileError::Code::NoPermission)
        return std::string();
    if (!present.isOk() && present.error().code != FileError::Code::TooLarge)
        return present.error();
    const bool isAsSeen = present.isOk() && m_known.isAsSeen(path, present.value());
    if ((isAsSeen && !m_known.losesLines(path)) || (present.isOk() && present.value() == newBytes))
        return std::string();
    const bool isNews =
        !isAsSeen && !(present.isOk() && m_known.isDismissed(path, present.value()));
    FileResult<std::string> kept = keepCopy(files, path);
    return kept.isOk() && !isNews ? std::string() : kept;
}

void FileCommands::lookAtFile() {
    const std::string& path = m_document.SaveFile();
    if (path.empty() || !m_known.isKnown(path))
        return;
    const FileResult<std::string> present = m_services.files.readFile(path, kMaxLookedAtBytes);
    if (!present.isOk())
        return;
    if (m_known.isAsSeen(path, present.value()))
        m_listener->sameOnDisk();
    else if (!m_known.isDismissed(path, present.value()))
        m_listener->changedOnDisk("");
}

void FileCommands::reload(const std::string& kept) {
    if (kept.empty()) {
        openDefinition(m_document.SaveFile());
        return;
    }
    FileResult<std::string> content = readTextFile(kept);
    if (!content.isOk())
        return;
    MenuContent other;
    ReadScript(content.take(), other);
    m_document.replaceContent(std::move(other));
}

void FileCommands::keepMine() {
    const std::string& path = m_document.SaveFile();
    const FileResult<std::string> present = m_services.files.readFile(path, kMaxLookedAtBytes);
    if (present.isOk() && m_known.isKnown(path))
        m_known.dismiss(path, present.value());
    m_listener->sameOnDisk();
}

void FileCommands::showPreview() {
    m_view.validateFields();
    m_view.StoreItem();
    loadPreview();
}

void FileCommands::updatePreview() {
    if (GenerateScript(m_document.content()) != m_previewedScript ||
        m_document.SavePath() != m_previewedFolder)
        loadPreview();
}

void FileCommands::loadPreview() {
    SaveDefinition("");
    m_previewedScript = GenerateScript(m_document.content());
    m_previewedFolder = m_document.SavePath();
    m_listener->previewed();
    const Path folder(m_document.SavePath());
    std::vector<std::string> scripts = {folder.child(kPreviewScript)};
    for (const std::string_view name : kLibraryFiles)
        scripts.push_back(folder.child(name));
    // Also after a failure: the preview shows whatever is there.
    m_services.browser.load(folder.child(kPreviewPage), scripts);
}

/// Gives back what the person is to be told, without text when all is well.
MessageRequest FileCommands::copyRunTimeFiles() {
    MessageRequest notice;
    for (const CopyOutcome& problem :
         copyLibrary(m_services.files, Path(m_document.programFolder()),
                     Path(m_document.SavePath()), CopiedFiles::ScriptsAndPreviewPage)) {
        addLine(notice.text, copyProblemText(problem));
        if (!problem.reason.empty())
            addLine(notice.details, problem.path + ": " + problem.reason);
    }
    return notice;
}

}  // namespace zev
