// SPDX-License-Identifier: MIT
#include "platform/qt/qt_message_box.h"

#include <QFontMetrics>
#include <QMessageBox>
#include <QTextEdit>

#include "platform/qt/message_text.h"
#include "platform/qt/parent_window.h"
#include "text/program_name.h"

namespace zev {

namespace {

constexpr int kDetailsLines = 12;
constexpr int kDetailsCharacters = 70;

QMessageBox::StandardButtons buttonsOf(MessageRequest::Buttons buttons) {
    switch (buttons) {
        case MessageRequest::Buttons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case MessageRequest::Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case MessageRequest::Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case MessageRequest::Buttons::Ok:
            break;
    }
    return QMessageBox::Ok;
}

/// Qt shows details a few lines high and as narrow as the message, and keeps the keyboard out.
void showDetails(QMessageBox& box, const std::string& details) {
    box.setDetailedText(QString::fromStdString(details));
    auto* text = box.findChild<QTextEdit*>();
    const QFontMetrics metrics(text->font());
    text->setFixedHeight(kDetailsLines * metrics.lineSpacing());
    text->setMinimumWidth(kDetailsCharacters * metrics.averageCharWidth());
    text->setFocusPolicy(Qt::StrongFocus);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setAccessibleName("Details");
}

}  // namespace

MessageBox::Answer QtMessageBox::show(const MessageRequest& request) {
    QMessageBox box(parentWindow());
    box.setWindowTitle(request.title.empty() ? QString(kProgramName)
                                             : QString::fromStdString(request.title));
    box.setIcon(request.icon == MessageRequest::Icon::Exclamation ? QMessageBox::Warning
                                                                  : QMessageBox::NoIcon);
    box.setStandardButtons(buttonsOf(request.buttons));
    if (!request.details.empty())
        showDetails(box, request.details);
    setMessageText(box, QString::fromStdString(request.text));
    switch (box.exec()) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Ok:
            return Answer::Ok;
        default:
            return Answer::Cancel;
    }
}

}  // namespace zev
