// SPDX-License-Identifier: MIT
#include "dialogs/color_swatch.h"

#include <QPainter>

#include "model/input_rules.h"
#include "platform/common_dialogs.h"

namespace zev {

ColorSwatch::ColorSwatch(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setColor(std::nullopt);
}

void ColorSwatch::setColor(std::optional<std::int32_t> color) {
    m_color = color;
    setAccessibleDescription(color.has_value() ? QString::fromStdString(ColorToHex(*color))
                                               : tr("none"));
    update();
}

QSize ColorSwatch::sizeHint() const {
    const int side = fontMetrics().height();
    return {2 * side, side + side / 4};
}

void ColorSwatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect area = rect().adjusted(0, 0, -1, -1);
    const QColor ink = palette().color(QPalette::WindowText);
    if (m_color.has_value()) {
        painter.fillRect(area, colorAs<QColor>(*m_color));
    } else {
        painter.fillRect(area, palette().brush(QPalette::Base));
        painter.fillRect(area, QBrush(ink, Qt::BDiagPattern));
    }
    painter.setPen(ink);
    painter.drawRect(area);
}

}  // namespace zev
