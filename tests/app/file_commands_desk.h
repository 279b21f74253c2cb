// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>
#include <string>
#include <vector>

#include "app/editor_services.h"
#include "app/editor_view.h"
#include "app/file_commands.h"
#include "model/menu_document.h"
#include "model/text_rules.h"
#include "model/tree_editing.h"
#include "platform/fake/fake_file_system.h"
#include "platform/fake/fake_services.h"
#include "script/script_writer.h"
#include "tests/support/document_steps.h"

namespace zev {

inline void failQtTest(const std::string& problem) {
    QTest::qFail(problem.c_str(), __FILE__, __LINE__);
}

/// A window without widgets: a panel of two fields, and what the person would see elsewhere.
class PlainView : public EditorView, private DocumentObserver {
  public:
    explicit PlainView(MenuDocument& document) : m_document(document) {
        m_document.addObserver(*this);
    }
    ~PlainView() override { m_document.removeObserver(*this); }

    std::string panelCaption;
    std::string panelURL;
    std::string script;
    MenuProp shownDefaults;  ///< what the Default Menu Properties dialog was filled with
    std::string shownFile;   ///< the file named in the window's caption
    bool isSaveEnabled = false;
    std::vector<std::string> calls;

    void validateFields() override {
        calls.push_back("validateFields");
        panelCaption = EscapeApostrophes(panelCaption);
    }
    void StoreItem() override {
        calls.push_back("StoreItem");
        if (m_document.CurNode() != nullptr) {
            auto item = test::editItem(m_document, *m_document.CurNode());
            item->Caption = panelCaption;
            item->URL = panelURL;
        }
    }
    void showScript(const std::string& text) override { script = text; }
    void Button_Update() override { isSaveEnabled = m_document.bModified(); }

  private:
    void contentReplaced() override {
        currentNodeChanged();
        script = GenerateScript(m_document.content());
        shownDefaults = m_document.DefaultProp();
        Button_Update();
    }
    void currentNodeChanged() override {
        const MenuNode* node = m_document.CurNode();
        panelCaption = node != nullptr ? node->item.Caption : "";
        panelURL = node != nullptr ? node->item.URL : "";
    }
    void itemChanged(const MenuNode& node) override {
        if (&node == m_document.CurNode())
            currentNodeChanged();
    }
    void fileChanged() override { shownFile = m_document.SaveFile(); }
    void modifiedChanged() override {
        if (m_document.bModified())
            Button_Update();
    }

    MenuDocument& m_document;
};

/// The file commands at work on a disk in memory, with the run-time files in "/program" and an
/// empty folder "/site". Opens with a new document.
struct Desk {
    Desk() {
        for (const char* name :
             {"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js", "zevmenu.html"})
            disk.addFile(std::string("/program/") + name, std::string("content of ") + name);
        disk.addFolder("/site");
        commands.reset();
    }

    /// Adds an item as the person would, types `caption` and `url` into the panel and leaves them
    /// there, not stored yet.
    void addItem(const std::string& caption, const std::string& url = "") {
        view.StoreItem();
        addMenuItem(document);
        view.panelCaption = caption;
        view.panelURL = url;
    }

    /// Saves the document as `path`; nothing is recalculated.
    void saveAs(const std::string& path) {
        dialogs.expectSaveFile(path);
        messages.expect(recalculate, MessageBox::Answer::No);
        commands.mnuFileSaveAs_Click();
    }

    /// True when the document is as at start-up.
    bool isNewDocument() const {
        const MenuDocument untouched("/program");
        return document.tree().isEmpty() && document.DefaultProp() == untouched.DefaultProp() &&
               document.RootMenuProp() == untouched.RootMenuProp() && document.SaveFile().empty() &&
               document.SavePath() == "/program" && document.ItemCounter() == 0 &&
               document.CurNode() == nullptr && !document.bModified();
    }
    bool isOnDisk(const std::string& path) const { return disk.allFiles().contains(path); }
    std::string bytesOf(const std::string& path) const {
        const auto file = disk.allFiles().find(path);
        return file != disk.allFiles().end() ? file->second : "(no such file)";
    }

    static constexpr const char* recalculate =
        "Recalculate relative URLs for hyperlinks and images?";
    static constexpr const char* saveChanges = "Save changes to project?";

    FakeFileSystem disk;
    FailingFileSystem files{disk};
    FakeMessageBox messages{failQtTest};
    FakeCommonDialogs dialogs{failQtTest};
    FakeShell shell{failQtTest};
    FakeHelpViewer help;
    FakeBrowserView browser;
    EditorServices services{files, messages, dialogs, shell, help, browser};
    MenuDocument document{"/program"};
    PlainView view{document};
    FileCommands commands{document, view, services};
};

}  // namespace zev
