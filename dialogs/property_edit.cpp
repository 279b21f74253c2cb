// SPDX-License-Identifier: MIT
#include "dialogs/property_edit.h"

#include <QFocusEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <utility>

#include "dialogs/single_line.h"
#include "model/text_rules.h"
#include "platform/message_box.h"

namespace zev {

TextCheck range(double lower, double upper) {
    return [lower, upper](std::string_view text) { return CheckRange(text, lower, upper); };
}

TextCheck wholeRange(double lower, double upper) {
    return [lower, upper](std::string_view text) { return checkWholeRange(text, lower, upper); };
}

CheckedText escaped(std::string_view text) {
    return {EscapeApostrophes(text), ""};
}

PropertyEdit::PropertyEdit(const QString& name, QWidget* parent) : QLineEdit(parent) {
    setObjectName("txt" + name);
    keepSingleLine(*this);
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!m_isShowing)
            emit edited();
    });
}

void PropertyEdit::setCheck(TextCheck check, CheckedWhen when, MessageBox& messages) {
    m_check = std::move(check);
    m_messages = &messages;
    if (when == CheckedWhen::Left) {
        connect(this, &PropertyEdit::left, this, &PropertyEdit::check);
        return;
    }
    connect(
        this, &PropertyEdit::edited, this,
        [this] {
            // Only undo leaves something to redo. What it brings back was refused before.
            m_isBroughtBack = isRedoAvailable() && text() == m_refusedText;
            if (!m_isBroughtBack)
                this->check();
        });
    connect(this, &PropertyEdit::left, this, [this] {
        if (std::exchange(m_isBroughtBack, false))
            this->check();
    });
}

void PropertyEdit::showValue(const std::string& value) {
    m_isShowing = true;
    setText(QString::fromStdString(value));
    m_isShowing = false;
    setCursorPosition(0);
    m_shownText = text();
    m_shownValue = value;
    m_refusedText.clear();
    m_checkedText.clear();
    m_isBroughtBack = false;
}

void PropertyEdit::showAgain(const std::string& value) {
    if (m_refusedText.isEmpty() || text() != m_checkedText ||
        m_checkedText != QString::fromStdString(value)) {
        showValue(value);
        return;
    }
    setCursorPosition(0);
    m_shownText = text();
    m_shownValue = value;
}

std::string PropertyEdit::value() const {
    return text() == m_shownText ? m_shownValue : text().toStdString();
}

// A text that is set is none that was typed.
void PropertyEdit::forgetTyping() {
    const int cursor = cursorPosition();
    const QString current = text();
    const bool isCheckedText = !m_refusedText.isEmpty() && current == m_checkedText;
    m_isShowing = true;
    setText(isCheckedText ? m_refusedText : current);
    if (isCheckedText)
        replaceText(current);
    m_isShowing = false;
    setCursorPosition(cursor);
}

void PropertyEdit::check() {
    if (m_isChecking)
        return;
    const CheckedText checked = m_check(text().toStdString());
    if (!checked.message.empty())
        m_messages->notice(checked.message);
    const QString replaced = QString::fromStdString(checked.text);
    if (replaced == text()) {
        if (replaced != m_checkedText)
            m_refusedText.clear();
        return;
    }
    const std::string before = text().left(cursorPosition()).toStdString();
    m_refusedText = text();
    m_checkedText = replaced;
    const QScopedValueRollback checking(m_isChecking, true);
    replaceText(replaced);
    setCursorPosition(static_cast<int>(QString::fromStdString(m_check(before).text).size()));
}

/// As typing over the whole text does, so that undo brings it back.
void PropertyEdit::replaceText(const QString& replaced) {
    selectAll();
    insert(replaced);
}

void PropertyEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        emit left();
}

PropertyField PropertyField::make(const QString& name, const QString& caption,
                                  const QString& tooltip, QWidget* parent) {
    PropertyField field{new QLabel(caption, parent), new PropertyEdit(name, parent)};
    field.label->setObjectName("lbl" + name);
    field.label->setTextFormat(Qt::PlainText);
    field.label->setBuddy(field.edit);
    field.edit->setAccessibleName(QString(caption).remove(u'&').remove(u':'));
    field.edit->setToolTip(tooltip);
    return field;
}

void leaveFocusedEdit(QWidget& window) {
    if (auto* edit = qobject_cast<PropertyEdit*>(window.focusWidget()))
        emit edit->left();
}

}  // namespace zev
