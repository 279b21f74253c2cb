// SPDX-License-Identifier: MIT
#include "platform/qt/parent_window.h"

#include <QApplication>
#include <QWidget>

namespace zev {

QWidget* parentWindow() {
    if (QWidget* active = QApplication::activeWindow(); active != nullptr)
        return active;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible())
            return window;
    return nullptr;
}

}  // namespace zev
