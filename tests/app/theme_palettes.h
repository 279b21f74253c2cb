#pragma once

#include <QColor>
#include <QPalette>

namespace zev {

/// The palette of a usual light theme.
inline QPalette lightPalette() {
    return QPalette(QColor(0xef, 0xef, 0xef), QColor(0xef, 0xef, 0xef));
}

/// The palette of a usual dark theme.
inline QPalette darkPalette() {
    QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x35, 0x35, 0x35));
    palette.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    palette.setColor(QPalette::AlternateBase, QColor(0x2b, 0x2b, 0x2b));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    return palette;
}

}  // namespace zev
