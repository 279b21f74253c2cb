// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <cstdint>

#include "platform/common_dialogs.h"

namespace zev {

/// Shows how an item of the menu will look. It is also where a dialog keeps the font that was
/// chosen: name and size come back exactly as they were set, whatever the system makes of them on
/// the screen. Its size does not depend on them: a large font is cut off.
class PreviewLabel : public QLabel {
    Q_OBJECT
  public:
    PreviewLabel(const QString& name, const QString& caption, QWidget* parent);

    const FontChoice& fontChoice() const { return m_font; }
    std::int32_t backColor() const { return m_back; }
    std::int32_t foreColor() const { return m_fore; }

    void setFontChoice(const FontChoice& font);
    /// Colour values as `HexToColor` gives them.
    void setBackColor(std::int32_t color);
    void setForeColor(std::int32_t color);

  private:
    void showColors();

    FontChoice m_font;
    std::int32_t m_back = 0;
    std::int32_t m_fore = 0;
};

}  // namespace zev
