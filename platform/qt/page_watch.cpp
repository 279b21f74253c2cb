// SPDX-License-Identifier: MIT
#include "platform/qt/page_watch.h"

#include <QPointer>
#include <QWebEngineScript>

#ifdef Q_OS_LINUX
#include <signal.h>
#include <sys/resource.h>
#endif

namespace zev {

namespace {

/// Long enough for a slow machine that starts the engine, or draws a menu of thousands of items.
constexpr int kMostSecondsSilent = 10;
/// Nobody reads that many messages in a row.
constexpr int kMostDialogs = 100;
/// Far above what any menu needs, and far below what makes a machine stall.
constexpr quint64 kMostMemoryBytes = 1ULL << 30;

}  // namespace

PageWatch::PageWatch(QWebEnginePage& page, std::function<void(const QString& reason)> stopped)
    : m_page(page), m_stopped(std::move(stopped)) {
    connect(&m_timer, &QTimer::timeout, this, &PageWatch::ask);
    connect(&page, &QWebEnginePage::renderProcessTerminated, this,
            [this](QWebEnginePage::RenderProcessTerminationStatus status) {
                if (status == QWebEnginePage::NormalTerminationStatus)
                    return;
                m_isStopped = true;
                m_stopped(m_reason.isEmpty() ? "It used too much memory, or its browser failed."
                                             : m_reason);
            });
}

void PageWatch::setShown(bool isShown) {
    if (isShown)
        m_timer.start(1000);
    else
        m_timer.stop();
}

void PageWatch::ask() {
    if (m_page.renderProcessPid() == 0)
        return;
    limitMemory();
    if (m_secondsSilent >= kMostSecondsSilent) {
        stop(QString("It did not answer for %1 seconds.").arg(kMostSecondsSilent));
        return;
    }
    ++m_secondsSilent;
    m_page.runJavaScript("0", QWebEngineScript::ApplicationWorld,
                         [watch = QPointer<PageWatch>(this)](const QVariant&) {
                             if (watch == nullptr)
                                 return;
                             watch->m_secondsSilent = 0;
                             watch->m_dialogs = 0;
                         });
}

void PageWatch::countDialog() {
    if (++m_dialogs == kMostDialogs)
        stop("It showed one message after the other.");
}

void PageWatch::stop(const QString& reason) {
    m_timer.stop();
    m_isStopped = true;
    m_reason = reason;
#ifdef Q_OS_LINUX
    if (m_page.renderProcessPid() > 0)
        kill(static_cast<pid_t>(m_page.renderProcessPid()), SIGKILL);
#endif
}

void PageWatch::limitMemory() {
#ifdef Q_OS_LINUX
    const rlimit limit{kMostMemoryBytes, kMostMemoryBytes};
    prlimit(static_cast<pid_t>(m_page.renderProcessPid()), RLIMIT_DATA, &limit, nullptr);
#endif
}

}  // namespace zev
