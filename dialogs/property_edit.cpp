#include "dialogs/property_edit.h"

#include <QFocusEvent>
#include <QLabel>

#include "dialogs/single_line.h"
#include "model/input_rules.h"
#include "platform/message_box.h"

namespace zev {

PropertyEdit::PropertyEdit(const QString& name, QWidget* parent) : QLineEdit(parent) {
    setObjectName("txt" + name);
    keepSingleLine(*this);
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!m_isShowing)
            emit edited();
    });
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

void PropertyEdit::applyRule(std::string (*rule)(const std::string&)) {
    const QString replaced = QString::fromStdString(rule(text().toStdString()));
    if (replaced == text())
        return;
    const QString before = text().left(cursorPosition());
    setText(replaced);
    setCursorPosition(static_cast<int>(QString::fromStdString(rule(before.toStdString())).size()));
}

void PropertyEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        emit left();
}

PropertyField PropertyField::make(const QString& name, const QString& caption,
                                  const QString& accessibleName, const QString& tooltip,
                                  QWidget* parent) {
    PropertyField field{new QLabel(caption, parent), new PropertyEdit(name, parent)};
    field.label->setObjectName("lbl" + name);
    field.label->setTextFormat(Qt::PlainText);
    field.label->setBuddy(field.edit);
    field.edit->setAccessibleName(accessibleName);
    field.edit->setToolTip(tooltip);
    return field;
}

namespace {

void Apply(const CheckedText& checked, PropertyEdit& edit, MessageBox& messages) {
    if (checked.message.empty())
        return;
    messages.notice(checked.message);
    edit.setText(QString::fromStdString(checked.text));
}

}  // namespace

void CheckRange(PropertyEdit& edit, double lower, double upper, MessageBox& messages) {
    Apply(CheckRange(edit.text().toStdString(), lower, upper), edit, messages);
}

void CheckInteger(PropertyEdit& edit, MessageBox& messages) {
    Apply(CheckInteger(edit.text().toStdString()), edit, messages);
}

void leaveFocusedEdit(QWidget& window) {
    if (auto* edit = qobject_cast<PropertyEdit*>(window.focusWidget()))
        emit edit->left();
}

}  // namespace zev
