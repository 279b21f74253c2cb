// SPDX-License-Identifier: MIT
#include "dialogs/property_edit.h"

#include <QFocusEvent>
#include <QLabel>

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
    connect(this, when == CheckedWhen::Left ? &PropertyEdit::left : &PropertyEdit::edited, this,
            &PropertyEdit::check);
}

void PropertyEdit::showValue(const std::string& value) {
    m_isShowing = true;
    setText(QString::fromStdString(value));
    m_isShowing = false;
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
    m_isShowing = true;
    setText(text());
    m_isShowing = false;
    setCursorPosition(cursor);
}

void PropertyEdit::check() {
    const CheckedText checked = m_check(text().toStdString());
    if (!checked.message.empty())
        m_messages->notice(checked.message);
    const QString replaced = QString::fromStdString(checked.text);
    if (replaced == text())
        return;
    const std::string before = text().left(cursorPosition()).toStdString();
    setText(replaced);
    setCursorPosition(static_cast<int>(QString::fromStdString(m_check(before).text).size()));
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
