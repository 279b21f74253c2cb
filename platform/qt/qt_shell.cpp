// SPDX-License-Identifier: MIT
#include "platform/qt/qt_shell.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace zev {

namespace {

constexpr int kTimeLimitMs = 5000;

/// What the desktop opens web pages with; empty when it names nothing in time.
QString registeredBrowser() {
    QProcess query;
    query.start("xdg-mime", {"query", "default", "text/html"});
    if (!query.waitForFinished(kTimeLimitMs)) {
        query.kill();
        query.waitForFinished();
        return {};
    }
    const bool isDone = query.exitStatus() == QProcess::NormalExit && query.exitCode() == 0;
    return isDone ? QString::fromLocal8Bit(query.readAllStandardOutput()).trimmed() : QString();
}

}  // namespace

std::string QtShell::FindExecutable(const std::string& file) {
    const QString extension = QFileInfo(QString::fromStdString(file)).suffix();
    if (!QStringList{"htm", "html"}.contains(extension, Qt::CaseInsensitive))
        return {};
    // xdg-open finds out that there is no browser only when nobody listens to it any more.
    if (registeredBrowser().isEmpty())
        return {};
    return QStandardPaths::findExecutable("xdg-open").toStdString();
}

bool QtShell::ShellExecute(const std::string& program, const std::string& argument) {
    QProcess process;
    process.setProgram(QString::fromStdString(program));
    process.setArguments({QString::fromStdString(argument)});
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

}  // namespace zev
