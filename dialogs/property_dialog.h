#pragma once

#include <QDialog>
#include <cstdint>
#include <functional>

#include "dialogs/color_field.h"
#include "dialogs/dialog_host.h"
#include "dialogs/property_edit.h"
#include "model/menu_prop.h"
#include "platform/common_dialogs.h"

class QBoxLayout;
class QComboBox;
class QGroupBox;
class QPushButton;

namespace zev {

class PreviewLabel;

/// What the dialogs for the defaults and for one menu have in common: position, columns, spacing,
/// background, colours, font, and the two labels that preview them.
///
/// A form is made once and only hidden; its controls keep what they hold until it is filled again.
class PropertyDialog : public QDialog {
    Q_OBJECT
  public:
    /// Puts the description of its own font into `lblFont`: "Arial 10pt italic bold".
    void Font_Set();

  protected:
    /// `defaults`: the dialog whose colour boxes stand in for empty ones of this dialog when a
    /// preview is repainted; null for none. Not owned, outlives this dialog.
    PropertyDialog(const DialogHost& host, const QString& name, const QString& title,
                   const PropertyDialog* defaults, QWidget* parent);

    /// A frame for rows of a label and what it stands for.
    QGroupBox* makeFrame(const QString& name, const QString& title);
    void addPosition(QGroupBox* frame, const QString& caption, const QString& tooltip);
    /// A row with a text box. `caption` carries the access key and ends with a colon.
    static PropertyField addField(QGroupBox* frame, const QString& name, const QString& caption,
                                  const QString& tooltip);
    QGroupBox* makeBackgroundFrame();
    /// Begins the frame of the font; `addPreviews` completes it.
    QGroupBox* makeFontFrame(const QString& tooltip);
    static void addRow(QGroupBox* frame, QPushButton* button);
    void addPreviews(QGroupBox* frame);
    /// A button that runs `click` after the box being edited was left.
    QPushButton* makeButton(const QString& name, const QString& caption, QWidget* parent,
                            const std::function<void()>& click);
    /// Puts `left` beside `right`, and `cmdOK` and `cmdCancel` below them. Enter stands for OK,
    /// Escape for Cancel.
    void arrange(QBoxLayout* left, QBoxLayout* right);

    /// Fills the boxes and the list; no check runs. The previews stay as they are.
    void showBoxes(const MenuProp& prop);
    /// Writes what the boxes and the list hold; the font is left out.
    void storeBoxes(MenuProp& prop) const;

    void txtHBgColor_LostFocus();
    void txtNBgColor_LostFocus();
    void txtHFtColor_LostFocus();
    void txtNFtColor_LostFocus();

    /// The font of a property set. A size that is none, or that no font has, is 10 points.
    static FontChoice FontOf(const MenuProp& prop);
    void setPreviewFont(const FontChoice& font);
    /// Writes the font of `lblFont`, its size as a whole number.
    void storePreviewFont(MenuProp& prop) const;
    /// Shows the font dialog with what `cdFont` holds. True when the person chose a font, which
    /// `cdFont` and the previews then have.
    bool chooseFont();

    virtual void cmdFont_Click() = 0;
    virtual void cmdOK_Click() = 0;

    void showEvent(QShowEvent* event) override;

    DialogHost m_host;
    FontChoice cdFont;  ///< what the font dialog last held; no name before its first use
    PropertyField m_bgImg;
    ColorField m_hBgColor;
    ColorField m_nBgColor;
    ColorField m_hFtColor;
    ColorField m_nFtColor;
    PropertyField m_columns;
    PropertyField m_spacing;
    QComboBox* cboPosition = nullptr;
    PreviewLabel* lblPreviewNormal = nullptr;
    PreviewLabel* lblFont = nullptr;

  private:
    using ColorHandler = void (PropertyDialog::*)();

    ColorField addColor(QGroupBox* frame, const QString& name, const QString& caption,
                        const QString& buttonCaption, const QString& accessibleName,
                        ColorHandler lostFocus, ColorHandler click);
    std::int32_t previewColor(ColorField PropertyDialog::*field) const;

    void cmdBrowseBgImg_Click();
    void cmdCancel_Click();
    void cmdHBgColor_Click();
    void cmdNBgColor_Click();
    void cmdHFtColor_Click();
    void cmdNFtColor_Click();

    const PropertyDialog* m_defaults;
};

}  // namespace zev
