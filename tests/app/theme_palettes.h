// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>
#include <algorithm>
#include <cmath>

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

/// How well one colour is read on another: 1 not at all, 21 as black on white. Text needs 4.5.
inline double contrast(const QColor& one, const QColor& other) {
    const auto luminance = [](const QColor& color) {
        const auto linear = [](float part) {
            return part <= 0.04045F ? part / 12.92F : std::pow((part + 0.055F) / 1.055F, 2.4F);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

}  // namespace zev
