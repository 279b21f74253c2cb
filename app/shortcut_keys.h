// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QObject>
#include <vector>

class QKeyEvent;
class QWidget;

namespace zev {

/// Sees the keys before the widgets of a window do, so that the shortcuts of its commands win over
/// the text fields, which would take Ctrl+A or Ctrl+U for themselves. A shortcut whose command is
/// disabled does nothing there.
class ShortcutKeys : public QObject {
    Q_OBJECT
  public:
    /// `window` is not owned and outlives the object. Other windows' keys are left alone.
    explicit ShortcutKeys(QWidget& window);

    /// `leavesKeyToText`: where there is text these keys edit it, and run no command.
    void add(const QKeySequence& keys, bool leavesKeyToText) {
        m_shortcuts.push_back({keys, leavesKeyToText});
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Shortcut {
        QKeySequence keys;
        bool leavesKeyToText;
    };
    const Shortcut* shortcutOf(const QKeyEvent& key) const;

    QWidget& m_window;
    std::vector<Shortcut> m_shortcuts;
};

}  // namespace zev
