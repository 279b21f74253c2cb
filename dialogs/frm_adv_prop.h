#pragma once

#include <QDialog>
#include <array>
#include <functional>
#include <optional>
#include <string>

#include "dialogs/color_field.h"
#include "dialogs/dialog_host.h"
#include "model/menu_prop.h"

class QGroupBox;
class QLayout;
class QPushButton;

namespace zev {

/// Edits the less common properties of the menu that `CurNode` stands in.
///
/// Its OK writes at once, and neither marks the document as changed nor brings the window's
/// commands up to date: the dialog it is opened from does that with its own OK. What was copied is
/// kept for all menus as long as the dialog lives.
class frmAdvProp : public QDialog {
    Q_OBJECT
  public:
    frmAdvProp(const DialogHost& host, QWidget* parent);

    /// Shows what is stored for the menu. False, and nothing changed, without a current node.
    bool fill();

  private:
    static constexpr std::size_t kBoxes = 10;
    struct Box {
        PropertyEdit* edit;
        std::string MenuProp::*member;
    };

    QGroupBox* makeAdvancedFrame();
    QGroupBox* makeFilterFrame();
    QLayout* makeButtonRow();
    QPushButton* makeButton(const QString& name, const QString& caption,
                            void (frmAdvProp::*click)());
    void connectChecks();
    std::array<Box, kBoxes> boxes() const;

    void txtDivider_LostFocus();
    void txtHTMLBefore_LostFocus();
    void txtHTMLAfter_LostFocus();
    void txtTarget_LostFocus();
    void txtItemBorder_LostFocus();
    void txtMenuBorder_Change();
    void txtCellPadding_Change();
    void txtFade_LostFocus();
    void txtOpacity_LostFocus();
    void cmdShadow_Click();
    void cmdCopy_Click();
    void cmdPaste_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    DialogHost m_host;
    PropertyField m_divider;
    PropertyField m_htmlBefore;
    PropertyField m_htmlAfter;
    PropertyField m_target;
    PropertyField m_itemBorder;
    PropertyField m_menuBorder;
    PropertyField m_cellPadding;
    PropertyField m_fade;
    PropertyField m_opacity;
    ColorField m_shadow;
    std::optional<std::array<std::string, kBoxes>> m_copied;  ///< nothing before the first copy
};

}  // namespace zev
