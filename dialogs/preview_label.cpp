// SPDX-License-Identifier: MIT
#include "dialogs/preview_label.h"

#include <QFontMetrics>
#include <QPalette>
#include <algorithm>

namespace zev {

namespace {

/// Room for three lines of the dialog's own font, and for a caption of twice its size.
constexpr int kLines = 3;
constexpr int kCaptionWidths = 2;

/// Drawing a letter takes time and memory by its area, and this one fills the label already.
constexpr float kMaxShownPoints = 200;

/// The families of a font name, which may be a list as in a style sheet: "'Courier New', serif".
QStringList familiesOf(const QString& name) {
    QStringList families;
    for (QString family : name.split(u',')) {
        family = family.remove(u'\\').remove(u'\'').remove(u'"').trimmed();
        if (!family.isEmpty())
            families.append(family);
    }
    return families;
}

}  // namespace

PreviewLabel::PreviewLabel(const QString& name, const QString& caption, QWidget* parent)
    : QLabel(caption, parent) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    const QFontMetrics metrics = fontMetrics();
    setMinimumSize(kCaptionWidths * metrics.horizontalAdvance(caption), kLines * metrics.height());
    showColors();
}

void PreviewLabel::setFontChoice(const FontChoice& font) {
    m_font = font;
    QFont shown;
    if (const QStringList families = familiesOf(QString::fromStdString(font.name));
        !families.isEmpty())
        shown.setFamilies(families);
    if (font.points > 0)
        shown.setPointSizeF(static_cast<qreal>(std::min(font.points, kMaxShownPoints)));
    shown.setItalic(font.isItalic);
    shown.setBold(font.isBold);
    setFont(shown);
}

void PreviewLabel::setBackColor(std::int32_t color) {
    m_back = color;
    showColors();
}

void PreviewLabel::setForeColor(std::int32_t color) {
    m_fore = color;
    showColors();
}

void PreviewLabel::showColors() {
    QPalette colors = palette();
    colors.setColor(QPalette::Window, colorAs<QColor>(m_back));
    colors.setColor(QPalette::WindowText, colorAs<QColor>(m_fore));
    setPalette(colors);
}

}  // namespace zev
