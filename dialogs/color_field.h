#pragma once

#include "dialogs/property_edit.h"

class QPushButton;

namespace zev {

class ColorSwatch;
class CommonDialogs;

/// A row for one colour: label, text box, a swatch that follows the text, and "Select Color".
///
/// The text is never checked or reformatted; only a colour from the colour dialog is written back,
/// as "#RRGGBB" in upper case. The swatch shows "none" as a pattern where the text is no colour.
struct ColorField : PropertyField {
    ColorSwatch* swatch = nullptr;
    QPushButton* button = nullptr;  ///< "cmd" + name

    /// Creates the four widgets as children of `parent`. `caption` and `buttonCaption` ("Select
    /// Color") carry access keys; `accessibleName` ("Background highlight color") tells this field
    /// from others with the same caption in the window.
    static ColorField make(const QString& name, const QString& caption,
                           const QString& buttonCaption, const QString& accessibleName,
                           const QString& tooltip, QWidget* parent);

    /// Runs the colour dialog on the text box; a cancelled one changes nothing.
    void Color_Pick(CommonDialogs& dialogs) const;
};

}  // namespace zev
