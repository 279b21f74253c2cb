#pragma once

#include <QWidget>
#include <string>

#include "app/editor_services.h"
#include "dialogs/property_edit.h"
#include "model/menu_document.h"

class QGroupBox;
class QLineEdit;
class QRadioButton;
class QToolButton;

namespace zev {

/// The panel that edits one item: its type and its attributes. A view: what is typed reaches the
/// item only through `StoreItem`, while the label of the selected node follows at once.
class ItemPanel : public QWidget {
    Q_OBJECT
  public:
    /// `document` and `services` are not owned and outlive the panel.
    ItemPanel(MenuDocument& document, const EditorServices& services, QWidget* parent = nullptr);

    /// Writes the panel into the item of `node`; nothing when it is null. A field that still shows
    /// what `ShowItem` put there leaves its member alone, so that no text a field cannot hold
    /// (a line break, an overlong caption) is damaged by being looked at.
    void StoreItem(const MenuNode* node);
    /// Shows the item of `node`, with its mode; empties the fields when it is null. `bModified`
    /// stays as it is.
    void ShowItem(const MenuNode* node);
    /// Empties and disables the panel. `cmdCaptionImg` is left as it is.
    void ClearItemPanel();

    /// Runs the rules of the caption, URL and target fields, in this order.
    void validateFields();
    /// Runs the rule of the field that has the focus, if it has one, as leaving it would.
    void validateFocusedField();
    /// Takes a label that was edited in the tree into the field it stands for.
    void TreeView_AfterLabelEdit(const QString& label);

  signals:
    /// A field was changed by the person; `bModified` is set already.
    void changed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    QWidget* makeTypeFrame();
    QWidget* makeAttributeFrame();
    PropertyField makeField(const QString& name, const QString& caption, const QString& tooltip);
    QToolButton* makeButton(const QString& name, const QString& tooltip, const QString& icon,
                            const QString& accessibleName);
    void connectHandlers();
    void showFaceColour();
    void setRolloverMode(bool isRollover);
    void setSelectedLabel(const PropertyField& source);
    void setModified();
    bool browse(QLineEdit& edit, const std::string& filter);

    void optNormal_Click();
    void optRollover_Click();
    void txtCaption_Change();
    void txtURL_Change();
    void txtTarget_Change();
    void txtImgOut_Change();
    void txtImgOver_Change();
    void txtCaption_Validate();
    void txtURL_Validate();
    void txtTarget_Validate();
    void cmdCaptionImg_Click();
    void cmdURL_Click();
    void cmdImgOut_Click();
    void cmdImgOver_Click();

    MenuDocument& m_document;
    EditorServices m_services;
    /// `ShowItem` is at work. A box that it disables is left, and cleaned, which is no change.
    bool m_isShowing = false;

    QRadioButton* optRollover = nullptr;
    QRadioButton* optNormal = nullptr;
    PropertyField m_caption;
    PropertyField m_url;
    PropertyField m_target;
    PropertyField m_imgOut;
    PropertyField m_imgOver;
    QToolButton* cmdCaptionImg = nullptr;
    QToolButton* cmdURL = nullptr;
    QToolButton* cmdImgOut = nullptr;
    QToolButton* cmdImgOver = nullptr;

    /// Selection of the caption field when it was left.
    struct {
        QString text;
        int cursor = 0;
        int start = 0;
        int length = 0;
    } m_leftCaption;
};

}  // namespace zev
