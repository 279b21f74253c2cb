// SPDX-License-Identifier: MIT
#include "app/shortcut_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace zev {

namespace {

bool holdsText(const QWidget& widget) {
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
    const Shortcut* shortcut = shortcutOf(static_cast<const QKeyEvent&>(*event));
    if (shortcut == nullptr)
        return false;
    if (shortcut->leavesKeyToText && holdsText(*widget)) {
        // Accepted here the key is no shortcut, and comes to the widget as a press.
        if (isOverride)
            event->accept();
        return isOverride;
    }
    event->setAccepted(!isOverride);
    return true;
}

/// Null when no command has this key.
const ShortcutKeys::Shortcut* ShortcutKeys::shortcutOf(const QKeyEvent& key) const {
    const QKeySequence sequence(
        QKeyCombination(key.modifiers() & ~Qt::KeypadModifier, Qt::Key(key.key())));
    for (const Shortcut& shortcut : m_shortcuts)
        if (shortcut.keys == sequence)
            return &shortcut;
    return nullptr;
}

}  // namespace zev
