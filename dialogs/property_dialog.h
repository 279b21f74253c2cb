// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "dialogs/property_form.h"
#include "platform/common_dialogs.h"

class QComboBox;

namespace zev {

class PreviewLabel;

/// What the dialogs for the defaults and for one menu have in common: position, columns, spacing,
/// background, colours, font, and the two labels that preview them.
class PropertyDialog : public PropertyForm {
    Q_OBJECT
  public:
    /// Puts the description of its own font into `lblFont`: "Arial 10pt italic bold".
    void Font_Set();

  protected:
    /// `defaults`: the dialog whose colour boxes stand in for empty ones of this dialog when a
    /// preview is repainted; null for none. Not owned, outlives this dialog.
    PropertyDialog(const DialogHost& host, const QString& name, const QString& title,
                   const PropertyDialog* defaults, QWidget* parent);

    void addPosition(QGroupBox* frame, const QString& caption, const QString& tooltip);
    QGroupBox* makeBackgroundFrame();
    /// Begins the frame of the font; `addPreviews` completes it.
    QGroupBox* makeFontFrame(const QString& tooltip);
    static void addRow(QGroupBox* frame, QPushButton* button);
    void addPreviews(QGroupBox* frame);
    /// Puts `left` beside `right`, then `below` where there is one, and `cmdOK` and `cmdCancel` at
    /// the end.
    void arrange(QBoxLayout* left, QBoxLayout* right, QWidget* below = nullptr);

    /// Fills the list as well. The previews stay as they are.
    void showBoxes(const MenuProp& prop) override;
    /// Writes what the list holds as well; the font is left out.
    void storeBoxes(MenuProp& prop) const override;

    /// Shows the colours of a property set in the previews; those of `defaults` where it has none.
    void previewColors(const MenuProp& prop, const MenuProp& defaults);
    /// The same with the colours in the boxes.
    void previewShownColors();

    /// The font of a property set. A size that is none, or that no font has, is 10 points.
    static FontChoice fontOf(const MenuProp& prop);
    void setPreviewFont(const FontChoice& font);
    const FontChoice& previewFont() const;
    /// Writes the font of `lblFont`, its size as a whole number.
    void storePreviewFont(MenuProp& prop) const;
    /// Shows the font dialog with `initial`. True when the person chose a font, which `cdFont` and
    /// the previews then have.
    bool chooseFont(const FontChoice& initial);

    virtual void cmdFont_Click() = 0;

    void showEvent(QShowEvent* event) override;

    FontChoice cdFont;  ///< what the font dialog last held; no name before its first use

  private:
    /// A colour, and the part of the previews that shows it.
    struct PreviewedColor {
        std::string MenuProp::*member;
        PreviewLabel* label;
        void (PreviewLabel::*show)(std::int32_t color);

        void preview(const MenuProp& prop, const MenuProp& defaults) const;
    };

    /// Adds a row whose colour is previewed when its box is left.
    void addPreviewedColor(QGroupBox* frame, const QString& name, const PreviewedColor& color,
                           ColorTexts texts);
    MenuProp shownDefaults() const;

    void cmdBrowseBgImg_Click();

    const PropertyDialog* m_defaults;
    std::vector<PreviewedColor> m_colors;
    PropertyEdit* txtBgImg = nullptr;
    QComboBox* cboPosition = nullptr;
    PreviewLabel* lblPreviewNormal;
    PreviewLabel* lblFont;
};

}  // namespace zev
