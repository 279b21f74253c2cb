#include "integrator/wizard/page_sources.h"

#include <QDir>
#include <QMimeData>
#include <QUrl>

namespace zev {

namespace {

constexpr const char* kPageFilter =
    "Web Pages (*.htm;*.html;*.shtml;*.stm)|*.htm;*.html;*.shtml;*.stm|"
    "Preprocessed HTML(*.asp;*.aspx;*.cfm;*.php)|*.asp;*.aspx;*.cfm;*.php|All Files (*.*)|*.*";

}  // namespace

FileDialogRequest pageRequest(const std::string& folder) {
    FileDialogRequest request;
    request.title = "Open";
    request.filter = kPageFilter;
    request.folder = folder;
    return request;
}

std::vector<std::string> draggedPaths(const QMimeData& data) {
    std::vector<std::string> paths;
    for (const QUrl& url : data.urls()) {
        if (!url.isLocalFile())
            return {};
        paths.push_back(QDir::cleanPath(url.toLocalFile()).toStdString());
    }
    return paths;
}

}  // namespace zev
