// SPDX-License-Identifier: MIT
#include "dialogs/frm_path.h"

#include <QComboBox>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStorageInfo>
#include <QStyle>
#include <QVBoxLayout>

#include "dialogs/combo_wheel.h"
#include "dialogs/dialog_button.h"
#include "dialogs/single_line.h"
#include "library/library_files.h"
#include "platform/file_system.h"
#include "platform/message_box.h"
#include "text/path.h"

namespace zev {

namespace {

/// Of an entry of `listDrv` the folder where its drive was left, of one of `listDir` its folder.
constexpr int kFolderRole = Qt::UserRole;

/// Characters of a path that are seen at once.
constexpr int kPathWidth = 52;

/// Enter opens the current folder, and is not handed on to the OK button as other lists do.
class FolderList : public QListWidget {
  public:
    using QListWidget::QListWidget;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        QListWidget::keyPressEvent(event);
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            event->accept();
    }
};

bool isOnDrive(const QString& folder, const QString& drive) {
    return folder == drive || folder.startsWith(drive.endsWith(u'/') ? drive : drive + u'/');
}

/// Index of the drive a folder lies on; 0 when it lies on none of them.
int driveOf(const QString& folder, const QComboBox& drives) {
    int found = 0;
    qsizetype length = -1;
    for (int index = 0; index < drives.count(); ++index) {
        const QString drive = QDir::fromNativeSeparators(drives.itemText(index));
        if (isOnDrive(folder, drive) && drive.size() > length) {
            found = index;
            length = drive.size();
        }
    }
    return found;
}

QLabel* makeLabel(const QString& name, const QString& caption, QWidget* buddy) {
    auto* label = new QLabel(caption, buddy->parentWidget());
    label->setObjectName(name);
    label->setBuddy(buddy);
    buddy->setAccessibleName(QString(caption).remove(u'&'));
    return label;
}

}  // namespace

QStringList mountedDrives() {
    QStringList drives{QDir::rootPath()};
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        // Single files can be mounted too.
        if (volume.isValid() && volume.isReady() && QFileInfo(volume.rootPath()).isDir())
            drives.append(volume.rootPath());
    }
    drives.sort();
    drives.removeDuplicates();
    return drives;
}

frmPath::frmPath(FileSystem& files, MessageBox& messages, const QStringList& drives,
                 QWidget* parent)
    : QDialog(parent), m_files(files), m_messages(messages) {
    setObjectName("frmPath");
    setWindowTitle(tr("Select Path"));
    txtPath = new QLineEdit(this);
    txtPath->setObjectName("txtPath");
    txtPath->setMinimumWidth(kPathWidth * fontMetrics().averageCharWidth());
    keepSingleLine(*txtPath);
    listDrv = new QComboBox(this);
    listDrv->setObjectName("listDrv");
    keepWheelForFocus(*listDrv);
    const QIcon driveIcon = style()->standardIcon(QStyle::SP_DriveHDIcon);
    for (const QString& drive : drives)
        listDrv->addItem(driveIcon, QDir::toNativeSeparators(drive), drive);
    listDir = new FolderList(this);
    listDir->setObjectName("listDir");
    listDir->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    arrange();

    openFolder(QDir::currentPath());
    connect(txtPath, &QLineEdit::editingFinished, this, &frmPath::followTypedPath);
    connect(listDrv, &QComboBox::currentIndexChanged, this, &frmPath::listDrv_Change);
    connect(listDir, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
        listDir_Change(item->data(kFolderRole).toString());
    });
}

// A form that goes while it is shown takes the focus from the box, which would then still report.
frmPath::~frmPath() {
    disconnect(txtPath, nullptr, this, nullptr);
}

void frmPath::arrange() {
    auto* lbl1 = new QLabel(tr("Enter or select a directory"), this);
    lbl1->setObjectName("lbl1");
    QPushButton* btnOK = makeDialogButton("btnOK", tr("&OK"), this);
    btnOK->setDefault(true);
    connect(btnOK, &QPushButton::clicked, this, &frmPath::btnOK_Click);
    QPushButton* btnCancel = makeDialogButton("btnCancel", tr("&Cancel"), this);
    connect(btnCancel, &QPushButton::clicked, this, &frmPath::btnCancel_Click);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lbl1);
    layout->addWidget(makeLabel("lblPath", tr("&Path"), txtPath));
    layout->addWidget(txtPath);
    layout->addWidget(makeLabel("lblDrv", tr("D&rives"), listDrv));
    layout->addWidget(listDrv);
    layout->addWidget(makeLabel("lblDir", tr("&Directories"), listDir));
    layout->addWidget(listDir, 1);
    layout->addLayout(makeClosingRow(btnOK, btnCancel));
}

void frmPath::openFolder(const QString& folder) {
    if (!QDir(folder).exists())
        return;
    listDrv->setCurrentIndex(driveOf(folder, *listDrv));
    showFolder(folder);
}

std::string frmPath::path() const {
    return txtPath->text().toStdString();
}

void frmPath::showFolder(const QString& folder) {
    listFolder(folder);
    txtPath->setText(QDir::toNativeSeparators(folder));
}

/// Lists what a folder holds, and makes it the current one of its drive.
void frmPath::listFolder(const QString& folder) {
    const QDir dir(folder);
    const QIcon folderIcon = style()->standardIcon(QStyle::SP_DirIcon);
    const auto add = [&](const QString& text, const QString& target) {
        auto* item = new QListWidgetItem(folderIcon, text, listDir);
        item->setData(kFolderRole, target);
    };
    listDir->clear();
    if (folder != QDir::fromNativeSeparators(listDrv->currentText()))
        add("..", QDir::cleanPath(dir.filePath("..")));
    for (const QString& name : dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::LocaleAware))
        add(name, dir.filePath(name));
    listDir->setCurrentRow(0);
    listDrv->setItemData(listDrv->currentIndex(), folder, kFolderRole);
}

/// The lists go where the typed path leads; the path stays as it was typed.
void frmPath::followTypedPath() {
    if (!txtPath->isModified())
        return;
    txtPath->setModified(false);
    const QDir dir(QDir::fromNativeSeparators(txtPath->text()));
    if (!dir.isAbsolute() || !dir.exists() || !dir.isReadable())
        return;
    const QString folder = QDir::cleanPath(dir.path());
    const QSignalBlocker blocker(listDrv);
    listDrv->setCurrentIndex(driveOf(folder, *listDrv));
    listFolder(folder);
}

void frmPath::listDrv_Change() {
    showFolder(listDrv->currentData(kFolderRole).toString());
}

void frmPath::listDir_Change(const QString& folder) {
    if (!QDir(folder).isReadable()) {
        m_messages.notice("Cannot open " + QDir::toNativeSeparators(folder).toStdString());
        return;
    }
    showFolder(folder);
}

void frmPath::btnOK_Click() {
    for (const std::string_view name : kLibraryFiles) {
        if (m_files.FileExists(Path(path()).child(name)))
            continue;
        MessageRequest question;
        question.text = std::string(name) + " not found in " + path() + ". Do you want to proceed?";
        question.buttons = MessageRequest::Buttons::OkCancel;
        question.title = "Warning";
        if (m_messages.show(question) == MessageBox::Answer::Cancel)
            return;
    }
    accept();
}

void frmPath::btnCancel_Click() {
    reject();
}

}  // namespace zev
