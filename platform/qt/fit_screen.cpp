// SPDX-License-Identifier: MIT
#include "platform/qt/fit_screen.h"

#include <QScreen>
#include <QWidget>

namespace zev {

namespace {

constexpr QSize kFrameSidesPx(16, 48);

}  // namespace

void fitScreen(QWidget& window) {
    window.resize(window.size().boundedTo(window.screen()->availableSize() - kFrameSidesPx));
}

}  // namespace zev
