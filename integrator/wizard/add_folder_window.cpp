// SPDX-License-Identifier: MIT
#include "integrator/wizard/add_folder_window.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "dialogs/dialog_button.h"
#include "dialogs/single_line.h"
#include "integrator/wizard/page_sources.h"
#include "platform/common_dialogs.h"
#include "platform/file_system.h"
#include "platform/message_box.h"

namespace zev {

namespace {

/// Characters of a path that are seen at once.
constexpr int kPathWidth = 44;

std::vector<std::string> patternsIn(const QString& text) {
    std::vector<std::string> patterns;
    for (const QString& pattern : text.split(u';', Qt::SkipEmptyParts))
        if (const QString name = pattern.trimmed(); !name.isEmpty())
            patterns.push_back(name.toStdString());
    return patterns;
}

}  // namespace

AddFolderWindow::AddFolderWindow(const IntegratorServices& services, const std::string& folder,
                                 QWidget* parent)
    : QDialog(parent), m_services(services) {
    setObjectName("AddFolderWindow");
    setWindowTitle(tr("Add Folder"));
    auto* form = new QFormLayout;
    m_txtFolder = addField(*form, "txtFolder", tr("&Folder:"), QString::fromStdString(folder));
    m_txtFolder->setMinimumWidth(kPathWidth * fontMetrics().averageCharWidth());
    QPushButton* browse = makeDialogButton("btnBrowseFolder", tr("B&rowse"), this);
    browse->setAccessibleName(tr("Browse for a folder"));
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &AddFolderWindow::chooseFolder);
    auto* row = new QHBoxLayout;
    row->addWidget(browse);
    row->addStretch();
    form->addRow(QString(), row);
    m_txtPatterns = addField(*form, "txtPatterns", tr("&Pages:"), "*.htm; *.html");
    m_txtPatterns->setToolTip(tr("Patterns of the pages' names, separated by semicolons"));
    m_txtExcluded = addField(*form, "txtExcluded", tr("&Leave out:"), QString());
    m_txtExcluded->setToolTip(
        tr("Patterns of paths within the folder, separated by semicolons, such as old/*"));
    m_chkSubfolders = new QCheckBox(tr("Pages of &subfolders too"), this);
    m_chkSubfolders->setObjectName("chkSubfolders");
    m_chkSubfolders->setAccessibleName(tr("Pages of subfolders too"));
    m_chkSubfolders->setChecked(true);
    form->addRow(QString(), m_chkSubfolders);

    QPushButton* ok = makeDialogButton("btnOK", tr("&OK"), this);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &AddFolderWindow::accept);
    QPushButton* cancel = makeDialogButton("btnCancel", tr("&Cancel"), this);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addStretch();
    layout->addLayout(makeClosingRow(ok, cancel));
}

QLineEdit* AddFolderWindow::addField(QFormLayout& form, const QString& name, const QString& caption,
                                     const QString& text) {
    auto* field = new QLineEdit(text, this);
    field->setObjectName(name);
    field->setAccessibleName(QString(caption).remove(u'&').remove(u':'));
    keepSingleLine(*field);
    form.addRow(caption, field);
    return field;
}

void AddFolderWindow::chooseFolder() {
    FileDialogRequest request;
    request.title = "Add Folder";
    request.folder = m_txtFolder->text().toStdString();
    const std::string folder = m_services.dialogs.openFolder(request);
    if (!folder.empty())
        m_txtFolder->setText(QString::fromStdString(folder));
}

PagePatterns AddFolderWindow::patterns() const {
    PagePatterns patterns{patternsIn(m_txtPatterns->text()), patternsIn(m_txtExcluded->text())};
    if (!m_chkSubfolders->isChecked())
        patterns.excluded.push_back("*/*");
    return patterns;
}

void AddFolderWindow::accept() {
    const std::string folder = m_txtFolder->text().toStdString();
    if (!m_services.files.isFolder(folder)) {
        m_services.messages.notice(folder.empty() ? "Please enter a folder"
                                                  : folder + " is not a folder");
        return;
    }
    FoundPages found = findPagesTelling(m_services.files, folder, patterns(), this);
    if (found.isStopped)
        return;
    showUnreadFolders(m_services.messages, found.errors);
    if (found.paths.empty()) {
        m_services.messages.notice("No pages found in " + folder);
        return;
    }
    m_paths = std::move(found.paths);
    QDialog::accept();
}

}  // namespace zev
