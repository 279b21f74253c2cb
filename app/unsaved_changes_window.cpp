// SPDX-License-Identifier: MIT
#include "app/unsaved_changes_window.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <string>
#include <vector>

#include "checks/menu_difference.h"
#include "messages/difference_messages.h"

namespace zev {

namespace {

/// More are counted only: nobody reads on, and a list is slow to show them.
constexpr std::size_t kMaxListedChanges = 1000;

QStringList linesOf(const std::vector<MenuDifference>& differences) {
    const std::size_t listed = std::min(differences.size(), kMaxListedChanges);
    QStringList lines;
    for (std::size_t index = 0; index < listed; ++index) {
        std::string line = differenceText(differences[index]);
        std::replace(line.begin(), line.end(), '\n', ' ');
        lines << QString::fromStdString(line);
    }
    if (differences.size() > listed)
        lines << UnsavedChangesWindow::tr("and %1 more").arg(differences.size() - listed);
    return lines;
}

}  // namespace

UnsavedChangesWindow::UnsavedChangesWindow(const MenuContent& before, const MenuContent& after,
                                           const QString& what, QWidget* parent)
    : QDialog(parent) {
    setObjectName("UnsavedChangesWindow");
    setWindowTitle(tr("Changes"));
    auto* label = new QLabel(what, this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto* list = new QListWidget(this);
    list->setObjectName("Changes");
    list->setAccessibleName(tr("Changes"));
    list->setWordWrap(true);
    list->addItems(linesOf(compareMenus(before, after)));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(list);
    layout->addWidget(buttons);
    list->setFocus();
    resize(520, 360);
}

}  // namespace zev
