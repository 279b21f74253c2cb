// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace zev {

/// The desktop's own style, without pictures on the buttons of message boxes and file dialogs: the
/// program's other dialogs have none either.
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
};

}  // namespace zev
