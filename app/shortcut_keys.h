#pragma once

#include <QObject>
#include <vector>

class QAction;
class QKeyEvent;
class QWidget;

namespace zev {

/// Sees the keys before the widgets of a window do, so that the shortcuts of its commands win over
/// the text fields, which would take Ctrl+A or Ctrl+U for themselves. A shortcut whose command is
/// disabled does nothing there. Only Del edits text where there is text.
class ShortcutKeys : public QObject {
    Q_OBJECT
  public:
    /// `window` is not owned and outlives the object. Other windows' keys are left alone.
    explicit ShortcutKeys(QWidget& window);

    /// `command` is not owned and outlives the object.
    void add(QAction& command) { m_commands.push_back(&command); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    const QAction* commandOf(const QKeyEvent& key) const;

    QWidget& m_window;
    std::vector<const QAction*> m_commands;
};

}  // namespace zev
