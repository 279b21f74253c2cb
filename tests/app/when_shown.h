// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <utility>

namespace zev {

/// Runs `step` as soon as a modal window of type T is shown and active, so that its fields gain and
/// lose the focus; for calls that do not come back before somebody has answered them.
template <typename T>
void whenShown(std::function<void(T&)> step) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, step = std::move(step)] {
        auto* widget = qobject_cast<T*>(QApplication::activeModalWidget());
        if (widget == nullptr || !widget->isVisible() || !widget->isActiveWindow())
            return;
        timer->stop();
        timer->deleteLater();
        const QPointer<QWidget> shown = widget;
        step(*widget);
        // A step that failed did not come to its end.
        if (QTest::currentTestFailed() && shown != nullptr)
            shown->close();
    });
    timer->start(10);
}

}  // namespace zev
