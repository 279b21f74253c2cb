// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QIconEngine>
#include <QProxyStyle>

namespace zev {

/// The desktop's own style, without pictures on the buttons of message boxes and file dialogs: the
/// program's other dialogs have none either. At the start no picture is read, for which Qt loads
/// all its readers: a toolbar's mark for what has no room is read when it is painted, which a wide
/// enough window never does, and where the style has a picture for the frame of a group, that is
/// drawn.
class PlainButtonStyle : public QProxyStyle {
    Q_OBJECT
  public:
    using QProxyStyle::QProxyStyle;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;

    QIcon standardIcon(StandardPixmap name, const QStyleOption* option,
                       const QWidget* widget) const override {
        return name == SP_ToolBarHorizontalExtensionButton ||
                       name == SP_ToolBarVerticalExtensionButton
                   ? QIcon(new LateIcon(*baseStyle(), name))
                   : QProxyStyle::standardIcon(name, option, widget);
    }

  private:
    /// An icon of `style`, which outlives it, asked for when it is painted.
    class LateIcon : public QIconEngine {
      public:
        LateIcon(const QStyle& style, StandardPixmap name) : m_style(style), m_name(name) {}

        void paint(QPainter* painter, const QRect& place, QIcon::Mode mode,
                   QIcon::State state) override {
            icon().paint(painter, place, Qt::AlignCenter, mode, state);
        }
        QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
            return icon().pixmap(size, mode, state);
        }
        QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
            return icon().actualSize(size, mode, state);
        }
        QIconEngine* clone() const override { return new LateIcon(*this); }

      private:
        QIcon icon() const { return m_style.standardIcon(m_name); }

        const QStyle& m_style;
        StandardPixmap m_name;
    };
};

}  // namespace zev
