// SPDX-License-Identifier: MIT
#include "platform/qt/plain_button_style.h"

#include <QGroupBox>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>

namespace zev {

namespace {

/// A line of one pixel along the inside of `place`, but for its corners.
void drawRing(QPainter& painter, const QRect& place, const QColor& colour) {
    const QRect across = place.adjusted(1, 0, -1, 0);
    const QRect down = place.adjusted(0, 1, 0, -1);
    painter.fillRect(QRect(across.topLeft(), QSize(across.width(), 1)), colour);
    painter.fillRect(QRect(across.bottomLeft(), QSize(across.width(), 1)), colour);
    painter.fillRect(QRect(down.topLeft(), QSize(1, down.height())), colour);
    painter.fillRect(QRect(down.topRight(), QSize(1, down.height())), colour);
}

/// The part of a group that is framed: below its title, if it has one.
QRect groupFrame(const QStyle& style, const QStyleOption& option, const QWidget* widget) {
    int title = std::max(option.fontMetrics.height(),
                         style.pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, &option, widget));
    const auto* const group = qobject_cast<const QGroupBox*>(widget);
    if (group != nullptr && !group->isCheckable() && group->title().isEmpty())
        title = 0;
    // Three pixels stay free at the top, and one more there and at the left.
    return option.rect.adjusted(1, title + 3 + 1, 0, 0);
}

}  // namespace

void PlainButtonStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                     QPainter* painter, const QWidget* widget) const {
    if (element != PE_FrameGroupBox || baseStyle()->name() != "fusion") {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    // The colours of that style's own picture.
    const QRect frame = groupFrame(*this, *option, widget);
    drawRing(*painter, frame, QColor(117, 117, 117, 50));
    drawRing(*painter, frame.adjusted(1, 1, -1, -1), QColor(0, 0, 0, 7));
    painter->fillRect(frame.adjusted(2, 2, -2, -2), QColor(0, 0, 0, 3));
}

}  // namespace zev
