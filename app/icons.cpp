// SPDX-License-Identifier: MIT
#include "app/icons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

/// The icons lie in a static library, which the linker cuts down to what is named. Outside any
/// namespace, as the macro demands.
static void initIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace zev {

namespace {

/// Reads a drawing when it is first painted; the toolkit's own engine reads each one, in colour and
/// in grey, before the window is there.
class DrawnIcon : public QIconEngine {
  public:
    /// `greyFile`: while disabled. The grey that Qt makes by itself is brighter than the colours on
    /// a dark theme.
    DrawnIcon(QString file, QString greyFile)
        : m_file(std::move(file)), m_greyFile(std::move(greyFile)) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode,
               QIcon::State /*state*/) override {
        QSvgRenderer(fileFor(mode)).render(painter, place);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        const QString key =
            QString("%1 %2x%3").arg(fileFor(mode)).arg(size.width()).arg(size.height());
        QPixmap picture;
        if (QPixmapCache::find(key, &picture))
            return picture;
        picture = QPixmap(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        painter.end();
        QPixmapCache::insert(key, picture);
        return picture;
    }

    QIconEngine* clone() const override { return new DrawnIcon(*this); }

  private:
    const QString& fileFor(QIcon::Mode mode) const {
        return mode == QIcon::Disabled ? m_greyFile : m_file;
    }

    QString m_file;
    QString m_greyFile;
};

QString drawing(const QString& name) {
    initIcons();
    return ":/icons/" + name + ".svg";
}

}  // namespace

QIcon buttonIcon(const QString& name) {
    return QIcon(new DrawnIcon(drawing(name), drawing("grey/" + name)));
}

QIcon programIcon() {
    const QString file = drawing("zevmenu_creator");
    return QIcon(new DrawnIcon(file, file));
}

}  // namespace zev
