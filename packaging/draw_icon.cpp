// SPDX-License-Identifier: MIT
// Draws a picture of an SVG file, square and transparent where nothing is drawn:
//
//     zev_draw_icon DRAWING SIZE PICTURE.png
//
// SIZE is in pixels. Exit status: 0 done, 1 a file could not be read or written, 2 wrong use.

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argumentCount, char** arguments) {
    if (argumentCount != 4)
        return 2;
    const int sizePx = QByteArray(arguments[2]).toInt();
    QSvgRenderer drawing(QString::fromLocal8Bit(arguments[1]));
    QImage picture(sizePx, sizePx, QImage::Format_ARGB32);
    if (!drawing.isValid() || picture.isNull())
        return 1;
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter);
    painter.end();
    return picture.save(QString::fromLocal8Bit(arguments[3]), "PNG") ? 0 : 1;
}
