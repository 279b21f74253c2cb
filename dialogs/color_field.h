// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/property_edit.h"

class QPushButton;

namespace zev {

class ColorSwatch;
class CommonDialogs;

/// What a colour's row says.
struct ColorTexts {
    QString caption;  ///< of the text box, with its access key
    QString button;   ///< caption of the button, with its access key
    // For assistive technology, told from other colours of the window:
    QString spoken;        ///< "Background highlight color"
    QString spokenButton;  ///< "Select background highlight color"
    QString tooltip = {};  ///< of the text box
};

/// A row for one colour: label, text box, a swatch that follows the text, and "Select Color".
///
/// The text is never checked or reformatted; only a colour from the colour dialog is written back,
/// as "#RRGGBB" in upper case. The swatch shows "none" as a pattern where the text is no colour.
struct ColorField : PropertyField {
    ColorSwatch* swatch = nullptr;
    QPushButton* button = nullptr;  ///< "cmd" + name

    /// Creates the four widgets as children of `parent`.
    static ColorField make(const QString& name, const ColorTexts& texts, QWidget* parent);

    /// Runs the colour dialog on the text box; a cancelled one changes nothing.
    void Color_Pick(CommonDialogs& dialogs) const;
};

}  // namespace zev
