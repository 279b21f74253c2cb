// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QTest>

#include "dialog_desk.h"
#include "dialogs/preview_label.h"

namespace zev {

/// Drives a dialog with mouse and keys, as a person does.
class Form {
  public:
    explicit Form(QDialog& dialog) : m_dialog(dialog) {}

    void show() { DialogDesk::show(m_dialog); }
    template <typename Widget>
    Widget& named(const QString& name) {
        return DialogDesk::find<Widget>(m_dialog, name);
    }
    QLineEdit& field(const QString& name) { return named<QLineEdit>(name); }
    QPushButton& button(const QString& name) { return named<QPushButton>(name); }
    QComboBox& list(const QString& name) { return named<QComboBox>(name); }
    PreviewLabel& preview(const QString& name) { return named<PreviewLabel>(name); }

    /// Presses a key in the widget that has the focus.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(m_dialog.focusWidget(), key, modifiers);
    }
    void click(const QString& name) { QTest::mouseClick(&named<QWidget>(name), Qt::LeftButton); }
    /// Clicks into a field and types over its text, key by key. The field keeps the focus.
    void type(const QString& name, const QString& text) { DialogDesk::type(m_dialog, name, text); }
    /// Replaces the text of a field by pasting.
    void paste(const QString& name, const QString& text) {
        QApplication::clipboard()->setText(text);
        click(name);
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_V, Qt::ControlModifier);
    }
    /// Chooses an entry of a list with the keyboard.
    void choose(const QString& name, int index) {
        QComboBox& target = list(name);
        target.setFocus();
        press(Qt::Key_Home);
        for (int step = 0; step < index; ++step)
            press(Qt::Key_Down);
    }
    /// The access key of a label or button: 'P' for "Menu &Position:".
    static QChar accessKey(const QString& text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        return key.isEmpty() ? QChar() : QChar(key[0].key());
    }
    void pressAccessKey(const QString& text) {
        press(Qt::Key(accessKey(text).unicode()), Qt::AltModifier);
    }

    /// What would stop a person without a mouse or without sight: fields without a label, labels
    /// and buttons without an access key of their own, controls without a name of their own.
    QStringList obstacles() {
        QStringList found;
        QSet<QChar> keys;
        QSet<QString> names;
        const auto checkKey = [&](const QString& owner, const QString& text) {
            const QChar key = accessKey(text);
            if (key.isNull())
                found.append(owner + ": no access key");
            else if (keys.contains(key))
                found.append(owner + ": its access key is taken: " + key);
            keys.insert(key);
        };
        QSet<QWidget*> labelled;
        for (const QLabel* label : m_dialog.findChildren<QLabel*>()) {
            if (qobject_cast<const PreviewLabel*>(label) != nullptr)
                continue;
            if (label->buddy() == nullptr)
                found.append(label->objectName() + ": labels nothing");
            labelled.insert(label->buddy());
            checkKey(label->objectName(), label->text());
        }
        for (QWidget* control : m_dialog.findChildren<QWidget*>()) {
            const auto* pressed = qobject_cast<QPushButton*>(control);
            const bool isField = qobject_cast<QLineEdit*>(control) != nullptr ||
                                 qobject_cast<QComboBox*>(control) != nullptr;
            if (pressed != nullptr)
                checkKey(control->objectName(), pressed->text());
            if (isField && !labelled.contains(control))
                found.append(control->objectName() + ": no label");
            if (pressed == nullptr && !isField)
                continue;
            if (control->accessibleName().isEmpty() || names.contains(control->accessibleName()))
                found.append(control->objectName() + ": no name of its own");
            names.insert(control->accessibleName());
        }
        if (keys.isEmpty())
            found.append("there is nothing to use");
        return found;
    }

    /// The labels that name a control, without access keys.
    QStringList labelsOf(const QWidget& control) {
        QStringList labels;
        for (const QLabel* label : m_dialog.findChildren<QLabel*>())
            if (label->buddy() == &control)
                labels.append(label->text().remove('&'));
        return labels;
    }

    QStringList entries(const QString& name) {
        QStringList texts;
        for (int index = 0; index < list(name).count(); ++index)
            texts.append(list(name).itemText(index));
        return texts;
    }

    /// Colour values of the previews: "lblFont back", "lblFont fore", and so on.
    using Colors = QMap<QString, std::int32_t>;
    Colors previewColors() {
        Colors colors;
        for (const QString name : {"lblFont", "lblPreviewNormal"}) {
            colors[name + " back"] = preview(name).backColor();
            colors[name + " fore"] = preview(name).foreColor();
        }
        return colors;
    }

    /// Names of the controls in the order of the Tab key, from the one that has the focus now.
    QStringList tabOrder() {
        QStringList order;
        QWidget* first = m_dialog.focusWidget();
        do {
            order.append(m_dialog.focusWidget()->objectName());
            press(Qt::Key_Tab);
        } while (m_dialog.focusWidget() != first && order.size() < 100);
        return order;
    }

    /// What is shown smaller than it needs.
    QStringList cutOff() {
        QStringList found;
        for (QWidget* widget : m_dialog.findChildren<QWidget*>()) {
            const bool hasText = qobject_cast<QPushButton*>(widget) != nullptr ||
                                 (qobject_cast<QLabel*>(widget) != nullptr &&
                                  qobject_cast<PreviewLabel*>(widget) == nullptr);
            const QSize needed = hasText ? widget->sizeHint() : widget->minimumSizeHint();
            if (widget->isVisible() && qobject_cast<PreviewLabel*>(widget) == nullptr &&
                (widget->width() < needed.width() || widget->height() < needed.height()))
                found.append(widget->objectName());
        }
        return found;
    }

  private:
    QDialog& m_dialog;
};

/// The colour of a label's background, as it is painted.
inline QColor paintedBackground(QWidget& widget) {
    const QImage image = widget.grab().toImage();
    return image.pixelColor(image.width() / 2, 4);
}

}  // namespace zev
