#include "app/shortcut_keys.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace zev {

namespace {

bool HoldsText(const QWidget& widget) {
    return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&widget) != nullptr;
}

}  // namespace

ShortcutKeys::ShortcutKeys(QWidget& window) : m_window(window) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool ShortcutKeys::eventFilter(QObject* watched, QEvent* event) {
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (!isOverride && event->type() != QEvent::KeyPress)
        return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || widget->window() != &m_window)
        return false;
    const QAction* command = commandOf(static_cast<const QKeyEvent&>(*event));
    if (command == nullptr)
        return false;
    if (command->shortcut() == QKeySequence(Qt::Key_Delete) && HoldsText(*widget)) {
        // Accepted here the key is no shortcut, and comes to the widget as a press.
        if (isOverride)
            event->accept();
        return isOverride;
    }
    event->setAccepted(!isOverride);
    return true;
}

/// The command with this key as its shortcut; null when there is none.
const QAction* ShortcutKeys::commandOf(const QKeyEvent& key) const {
    const QKeySequence sequence(
        QKeyCombination(key.modifiers() & ~Qt::KeypadModifier, Qt::Key(key.key())));
    for (const QAction* command : m_commands) {
        if (!command->shortcut().isEmpty() && command->shortcut() == sequence)
            return command;
    }
    return nullptr;
}

}  // namespace zev
