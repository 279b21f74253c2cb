// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "dialogs/color_field.h"
#include "dialogs/dialog_host.h"
#include "dialogs/property_edit.h"
#include "model/menu_prop.h"

class QBoxLayout;
class QGridLayout;
class QGroupBox;
class QPushButton;

namespace zev {

/// A row of a dialog's table: the text box of one property.
struct PropertyBox {
    QString name;     ///< of its widgets, behind "lbl" and "txt"
    QString caption;  ///< with its access key and a colon
    QString tooltip;
    std::string MenuProp::*member = nullptr;
    TextCheck check = {};
    PropertyEdit::CheckedWhen checkedWhen = PropertyEdit::CheckedWhen::Left;
};

/// A dialog that edits a property set in text boxes. What it shows, stores, copies and pastes
/// follows from the rows it was given.
///
/// A form is made once and only hidden; its controls keep what they hold until it is filled again.
class PropertyForm : public QDialog {
    Q_OBJECT
  public:
    /// The next time it is shown, the dialog begins with the box of this property, by its name in
    /// the script. False when it has none; it begins as usual then.
    bool focusBoxAtStart(std::string_view property);

  protected:
    // Columns of a frame: what a row stands for, its box, a colour's swatch, a button.
    static constexpr int kLabelColumn = 0;
    static constexpr int kBoxColumn = 1;
    static constexpr int kSwatchColumn = 2;
    static constexpr int kButtonColumn = 3;
    static constexpr int kColumns = 4;

    /// What `host` refers to is not owned and outlives the dialog.
    PropertyForm(const DialogHost& host, const QString& name, const QString& title,
                 QWidget* parent);

    /// A frame for rows of a label and what it stands for.
    QGroupBox* makeFrame(const QString& name, const QString& title);
    static QGridLayout* gridOf(const QGroupBox* frame);
    /// For rows that are not to be as wide as their frame; stands in `parts`, which has a widget.
    static QGridLayout* addGrid(QBoxLayout* parts, int stretch);
    /// Adds a row; its box ends before the column `end`.
    PropertyEdit* addBox(QGridLayout* grid, const PropertyBox& box, int end = kColumns);
    void addBoxes(QGridLayout* grid, std::span<const PropertyBox> boxes);
    /// Adds a row with a colour. Its button leaves the box once more after the colour dialog.
    PropertyEdit* addColor(QGroupBox* frame, const QString& name, std::string MenuProp::*member,
                           const ColorTexts& texts);
    /// A button that runs `click` after the box being edited was left.
    QPushButton* makeButton(const QString& name, const QString& caption, QWidget* parent,
                            const std::function<void()>& click);
    /// Adds `cmdOK` and `cmdCancel` at the end of `row`. Enter stands for OK, Escape for Cancel.
    void addClosingButtons(QBoxLayout* row);

    /// Fills the boxes; no check runs.
    virtual void showBoxes(const MenuProp& prop);
    /// Writes what the boxes hold; all else of `prop` stays.
    virtual void storeBoxes(MenuProp& prop) const;
    /// A set with what the boxes hold, and nothing else.
    MenuProp shown() const;

    /// The box of the first row.
    PropertyEdit* firstBox() const;

    virtual void cmdOK_Click() = 0;

    /// A window that is shown becomes active at last, whatever had the focus in it before.
    bool event(QEvent* event) override;

    DialogHost m_host;

  private:
    struct Box {
        PropertyEdit* edit;
        std::string MenuProp::*member;
    };
    std::vector<Box> m_boxes;
    PropertyEdit* m_startBox = nullptr;
};

}  // namespace zev
