// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <optional>
#include <string>
#include <vector>

#include "app/editor_services.h"
#include "dialogs/property_edit.h"
#include "model/menu_document.h"

class QGridLayout;
class QLabel;
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

    /// Writes the panel into the item of `node`, and does nothing else; nothing when it is null. A
    /// field that still shows what `ShowItem` put there leaves its member alone, so that no text a
    /// field cannot hold (a line break, an overlong caption) is damaged by being looked at.
    void StoreItem(const MenuNode* node);
    /// Shows the item of `node`, with its mode; empties the fields when it is null. The document
    /// stays as it is.
    void ShowItem(const MenuNode* node);
    /// Empties and disables the panel. `cmdCaptionImg` is left as it is.
    void ClearItemPanel();
    /// Gives the selected node, if there is one, the label that the panel shows: the caption, or
    /// the mouse-out image of a rollover item.
    void labelSelectedNode();

    /// Puts the focus on the field of an item's value: caption, url, target, out or over. A field
    /// that the item's type does not use takes none.
    void focusField(const std::string& field);

    /// Runs the rules of the caption, URL and target fields, in this order.
    void validateFields();
    /// Takes a label that was edited in the tree into the field it stands for.
    void TreeView_AfterLabelEdit(const QString& label);

  signals:
    /// The person has begun, or goes on, to change what the item of `CurNode` is to be. `step`
    /// names it: "Type in URL".
    void editing(const std::string& step);
    /// The person is done with the field of this step.
    void fieldLeft(const std::string& step);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    /// The type of item that has a field.
    enum Type { AnyType, Text, Rollover };

    /// The button beside a field.
    struct ButtonRow {
        QString name;
        QString icon;
        QString tooltip;
        QString spoken;  ///< for assistive technology
        void (ItemPanel::*click)() = nullptr;
    };
    /// A row of the panel's table: the field of one attribute.
    struct FieldRow {
        PropertyEdit* ItemPanel::*edit = nullptr;
        QString name;     ///< of its widgets, behind "lbl" and "txt"
        QString caption;  ///< with its access key
        QString tooltip;
        std::string step;  ///< what Undo calls typing in it
        std::string ItemProp::*member = nullptr;
        Type type = AnyType;
        TextCheck check = {};  ///< run when the field is left
        std::optional<ButtonRow> button = std::nullopt;
    };
    /// What was made of a row.
    struct Field {
        QLabel* label;
        PropertyEdit* edit;
        std::string ItemProp::*member;
        Type type;
        QToolButton* button;  ///< null for none
    };

    QWidget* makeTypeFrame();
    QWidget* makeAttributeFrame();
    void addField(QGridLayout* grid, const FieldRow& row);
    void showFaceColour();
    void setRolloverMode(bool isRollover);
    const PropertyEdit& labelSource() const;
    void fieldChanged(const PropertyEdit& edit, const std::string& step);
    void typeChosen(bool isRollover);
    bool browse(QLineEdit& edit, const std::string& filter);

    void optNormal_Click();
    void optRollover_Click();
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
    const MenuNode* m_shown = nullptr;  ///< whose item it is

    QRadioButton* optRollover = nullptr;
    QRadioButton* optNormal = nullptr;
    std::vector<Field> m_fields;
    PropertyEdit* txtCaption = nullptr;
    PropertyEdit* txtURL = nullptr;
    PropertyEdit* txtTarget = nullptr;
    PropertyEdit* txtImgOut = nullptr;
    PropertyEdit* txtImgOver = nullptr;
    QToolButton* cmdCaptionImg = nullptr;

    /// Selection of the caption field when it was left.
    struct {
        QString text;
        int cursor = 0;
        int start = 0;
        int length = 0;
    } m_leftCaption;
};

}  // namespace zev
