// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QWebEnginePage>
#include <functional>

namespace zev {

/// Keeps a page from taking the machine: asks it every second whether it still answers while it is
/// shown, ends its process when it does not, and bounds the memory of that process.
class PageWatch : public QObject {
    Q_OBJECT
  public:
    /// `page` outlives the watch. `stopped` is called with a sentence that says why the page's
    /// process ended, whoever ended it.
    PageWatch(QWebEnginePage& page, std::function<void(const QString& reason)> stopped);

    /// Asks while `isShown`; a page that nobody sees is left alone.
    void setShown(bool isShown);
    /// Counts a dialog that the page asked for. A page that asks for one after the other, without
    /// ever coming to rest in between, is stopped.
    void countDialog();
    /// True when the page's process was ended, or has ended by itself.
    bool isStopped() const { return m_isStopped; }

  private:
    void ask();
    void stop(const QString& reason);
    void limitMemory();

    QWebEnginePage& m_page;
    std::function<void(const QString&)> m_stopped;
    QTimer m_timer;
    QString m_reason;  ///< of a stop that was ours
    bool m_isStopped = false;
    int m_secondsSilent = 0;  ///< since the last answer, while asking
    int m_dialogs = 0;        ///< since the last answer
};

}  // namespace zev
