// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QTest>
#include <QWheelEvent>

namespace zev {

/// Turns the wheel over a widget by one step towards the person.
inline void rollWheel(QWidget& widget) {
    const QPoint place = widget.rect().center();
    QWheelEvent event(place, widget.mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    // Only what comes from the system moves the focus; `sendEvent` would deny that it does.
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(&widget, &event);
}

}  // namespace zev
