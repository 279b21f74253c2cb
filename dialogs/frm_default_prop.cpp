// SPDX-License-Identifier: MIT
#include "dialogs/frm_default_prop.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <utility>

namespace zev {

frmDefaultProp::frmDefaultProp(const DialogHost& host, QWidget* parent)
    : PropertyDialog(host, "frmDefaultProp", tr("Default Menu Properties"), nullptr, parent) {
    auto* left = new QVBoxLayout;
    left->addWidget(makeMenuFrame());
    left->addStretch();
    auto* right = new QVBoxLayout;
    right->addWidget(makeBackgroundFrame());
    QGroupBox* FrameFont = makeFontFrame(tr("Default menu item font"));
    addPreviews(FrameFont);
    right->addWidget(FrameFont, 1);
    arrange(left, right, makeAdditionalFrame());
}

QGroupBox* frmDefaultProp::makeMenuFrame() {
    QGroupBox* frame = makeFrame("FrameMenu", tr("Menu Settings"));
    addPosition(frame, tr("Menu &Position:"),
                tr("Roll-out direction of the menu item with respect to the parent node"));
    using enum PropertyEdit::CheckedWhen;
    const PropertyBox boxes[] = {
        {"CloseDelay", tr("Close &Delay:"),
         tr("Sets the menu close delay after mouseout (in milliseconds)"), &MenuProp::CloseDelay,
         range(0, 10000), Changed},
        {"Spacing", tr("&Spacing:"), tr("Horizontal spacing between menu items"),
         &MenuProp::Spacing, range(0, 1000), Changed},
        {"Columns", tr("Col&umns:"),
         tr("Number of menu columns. Set to 1 for vertical menus and a large number for "
            "horizontal menus"),
         &MenuProp::Columns, range(1, 100), Changed},
        {"MenuOffset", tr("&Offset:"), tr("Tweaks the roll-out position of the menu"),
         &MenuProp::MenuOffset, range(-50, 50), Changed},
    };
    addBoxes(gridOf(frame), boxes);
    return frame;
}

QGroupBox* frmDefaultProp::makeAdditionalFrame() {
    auto* frame = new QGroupBox(tr("Additional"), this);
    frame->setObjectName("FrameAdditional");
    using enum PropertyEdit::CheckedWhen;
    const PropertyBox texts[] = {
        {"Marker", tr("Submenu Arro&w:"),
         tr("HTML of the mark at items with a submenu. Empty for an arrow, none for no mark"),
         &MenuProp::marker, escaped},
        {"Label", tr("Na&vigation Name:"),
         tr("Name of the menu for screen readers, and on the button of a folded menu"),
         &MenuProp::label, escaped},
    };
    const PropertyBox numbers[] = {
        {"OpenDelay", tr("Open Dela&y:"),
         tr("Time that the mouse stays on an item before its submenu opens (in milliseconds)"),
         &MenuProp::openDelay, wholeRange(0, 10000), Changed},
        {"Fold", tr("Fold Width (pi&xels):"),
         tr("Width of the window below which the top menu is one button (in pixels). 0: never"),
         &MenuProp::fold, wholeRange(0, 10000), Changed},
    };
    auto* halves = new QHBoxLayout(frame);
    addBoxes(addGrid(halves, 2), texts);
    addBoxes(addGrid(halves, 1), numbers);
    return frame;
}

void frmDefaultProp::LoadDefaultDialog() {
    const MenuProp& prop = m_host.document.DefaultProp();
    showBoxes(prop);
    previewColors(prop, {});
    setPreviewFont(fontOf(prop));
}

void frmDefaultProp::cmdFont_Click() {
    cdFont = previewFont();
    m_hasChosenFont = chooseFont(cdFont) || m_hasChosenFont;
}

void frmDefaultProp::cmdOK_Click() {
    MenuProp prop = m_host.document.DefaultProp();
    storeBoxes(prop);
    // Fonts that nobody looked at in the font dialog stay exactly as they are in the file.
    if (m_hasChosenFont || !cdFont.name.empty())
        storePreviewFont(prop);
    m_host.document.setMenu({MenuPropOwner::Kind::Defaults}, std::move(prop));
    accept();
}

}  // namespace zev
