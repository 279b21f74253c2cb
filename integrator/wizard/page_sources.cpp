// SPDX-License-Identifier: MIT
#include "integrator/wizard/page_sources.h"

#include <QDir>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

#include "integrator/wizard/add_folder_window.h"
#include "integrator/wizard/work_progress.h"
#include "platform/message_box.h"

namespace zev {

namespace {

constexpr const char* kPageFilter =
    "Web Pages (*.htm;*.html;*.shtml;*.stm)|*.htm;*.html;*.shtml;*.stm|"
    "Preprocessed HTML(*.asp;*.aspx;*.cfm;*.php)|*.asp;*.aspx;*.cfm;*.php|All Files (*.*)|*.*";
constexpr const char* kListFilter =
    "Lists and site maps (*.txt;*.xml)|*.txt;*.xml|All Files (*.*)|*.*";
/// Of a list; a site map holds 50,000 addresses at most.
constexpr std::uint64_t kMaxListBytes = std::uint64_t{64} << 20;

}  // namespace

FileDialogRequest pageRequest(const std::string& folder) {
    FileDialogRequest request;
    request.title = "Open";
    request.filter = kPageFilter;
    request.folder = folder;
    return request;
}

std::vector<std::string> pagesOfFolder(const IntegratorServices& services,
                                       const std::string& folder, QWidget* parent) {
    AddFolderWindow window(services, folder, parent);
    window.exec();
    return window.paths();
}

std::vector<std::string> pagesOfList(const IntegratorServices& services,
                                     const std::string& folder) {
    FileDialogRequest request;
    request.title = "Open";
    request.filter = kListFilter;
    request.folder = folder;
    const std::string list = services.dialogs.openFile(request);
    if (list.empty())
        return {};
    const FileResult<std::string> text = services.files.readFile(list, kMaxListBytes);
    if (!text.isOk()) {
        services.messages.notice(list + " not read: " + text.error().reason);
        return {};
    }
    const QDir listFolder = QFileInfo(QString::fromStdString(list)).dir();
    std::vector<std::string> paths;
    if (isSiteMap(text.value()))
        paths = pathsInSiteMap(services.files, text.value(), listFolder.path().toStdString());
    else
        for (const std::string& path : pathsInList(text.value()))
            paths.push_back(
                QDir::cleanPath(listFolder.filePath(QString::fromStdString(path))).toStdString());
    if (paths.empty())
        services.messages.notice("No pages found in " + list);
    return paths;
}

bool isOnlyFiles(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return !urls.isEmpty() &&
           std::all_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
}

FoundPages findPagesTelling(const FileSystem& files, const std::string& folder,
                            const PagePatterns& patterns, QWidget* parent) {
    WorkProgress progress(QObject::tr("Looking for pages"), QObject::tr("&Stop"), parent);
    return findPages(files, folder, patterns, [&progress](std::size_t foundCount) {
        return progress.goesOn(foundCount + 1, 0);
    });
}

std::vector<std::string> droppedPages(const IntegratorServices& services, const QMimeData& data,
                                      QWidget* parent) {
    std::vector<std::string> paths;
    for (const QUrl& url : data.urls()) {
        const std::string path = QDir::cleanPath(url.toLocalFile()).toStdString();
        if (!services.files.isFolder(path)) {
            paths.push_back(path);
            continue;
        }
        const FoundPages found = findPagesTelling(services.files, path, {}, parent);
        if (found.isStopped)
            return {};
        showUnreadFolders(services.messages, found.errors);
        paths.insert(paths.end(), found.paths.begin(), found.paths.end());
    }
    return paths;
}

void showUnreadFolders(MessageBox& messages, const std::vector<FileError>& errors) {
    if (errors.empty())
        return;
    MessageRequest request;
    request.text = "Some folders could not be looked into.";
    for (const FileError& error : errors)
        request.details += error.path + ": " + error.reason + "\n";
    messages.show(request);
}

}  // namespace zev
