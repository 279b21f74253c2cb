// SPDX-License-Identifier: MIT
#include "dialogs/frm_menu_prop.h"

#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "dialogs/edited_menu.h"
#include "dialogs/frm_adv_prop.h"
#include "dialogs/frm_default_prop.h"

namespace zev {

frmMenuProp::frmMenuProp(const DialogHost& host, const frmDefaultProp& defaults,
                         frmAdvProp& advanced, QWidget* parent)
    : PropertyDialog(host, "frmMenuProp", tr("Menu Properties"), &defaults, parent),
      m_advanced(advanced) {
    auto* left = new QVBoxLayout;
    left->addWidget(makeMenuFrame());
    auto* right = new QVBoxLayout;
    right->addWidget(makeBackgroundFrame());
    QGroupBox* FrameFont = makeFontFrame(tr("Menu item font"));
    addRow(FrameFont, makeButton("cmdFontClear", tr("Clear Font (Use font in &default properties)"),
                                 FrameFont, [this] { cmdFontClear_Click(); }));
    addPreviews(FrameFont);
    right->addWidget(FrameFont, 1);
    left->addWidget(makeButton(
        "cmdCopy", tr("Cop&y Menu Properties"), this, [this] { cmdCopy_Click(); }));
    left->addWidget(makeButton(
        "cmdPaste", tr("&Paste Menu Properties"), this, [this] { cmdPaste_Click(); }));
    QPushButton* cmdAdvanced =
        makeButton("cmdAdvanced", tr("Ad&vanced"), this, [this] { cmdAdvanced_Click(); });
    cmdAdvanced->setToolTip(tr("Advanced menu configuration options"));
    left->addWidget(cmdAdvanced);
    left->addStretch();
    arrange(left, right);
}

QGroupBox* frmMenuProp::makeMenuFrame() {
    QGroupBox* frame = makeFrame("FrameMenu", tr("Menu Settings"));
    addPosition(frame, tr("Menu P&osition:"), QString());
    using enum PropertyEdit::CheckedWhen;
    const PropertyBox boxes[] = {
        // A single menu may have no columns, the defaults may not.
        {"Columns", tr("Col&umns:"),
         tr("Number of menu columns. Set to 1 for vertical menus and a large number for "
            "horizontal menus"),
         &MenuProp::Columns, range(0, 100), Changed},
        {"Spacing", tr("&Spacing:"), tr("Spacing between menu items"), &MenuProp::Spacing,
         range(0, 1000), Changed},
    };
    addBoxes(gridOf(frame), boxes);
    return frame;
}

bool frmMenuProp::fill() {
    const auto edited = editedMenu(m_host.document);
    if (!edited)
        return false;
    const MenuProp& menu = m_host.document.menuProp(*edited);
    const MenuProp& defaults = m_host.document.DefaultProp();
    showBoxes(menu);
    previewColors(menu, defaults);
    bFontSet = menu.FontSet;
    FontChoice font = fontOf(defaults);
    if (menu.FontSet) {
        const FontChoice own = fontOf(menu);
        if (own.name.find_first_not_of(' ') != std::string::npos)
            font.name = own.name;
        if (!menu.FontSize.empty())
            font.points = own.points;
        font.isItalic = own.isItalic;
        font.isBold = own.isBold;
    }
    setPreviewFont(font);
    return true;
}

void frmMenuProp::cmdFont_Click() {
    if (bFontSet)
        cdFont = previewFont();
    // Where the font dialog held none yet, it opens with the font that the menu inherits.
    if (chooseFont(cdFont == FontChoice() ? previewFont() : cdFont))
        bFontSet = true;
}

void frmMenuProp::cmdFontClear_Click() {
    bFontSet = false;
    setPreviewFont(fontOf(m_host.document.DefaultProp()));
}

void frmMenuProp::cmdCopy_Click() {
    m_copied = shown();
    m_copied->FontSet = bFontSet;
    storePreviewFont(*m_copied);
}

void frmMenuProp::cmdPaste_Click() {
    if (!m_copied.has_value())
        return;
    showBoxes(*m_copied);
    previewShownColors();
    bFontSet = m_copied->FontSet;
    if (bFontSet)
        setPreviewFont(fontOf(*m_copied));
    else
        cmdFontClear_Click();
}

void frmMenuProp::cmdAdvanced_Click() {
    if (m_advanced.fill())
        m_advanced.exec();
}

// From the event loop, which begins with the dialog.
void frmMenuProp::openAdvancedAtStart() {
    QMetaObject::invokeMethod(
        this, [this] { cmdAdvanced_Click(); }, Qt::QueuedConnection);
}

void frmMenuProp::cmdOK_Click() {
    if (const auto edited = editedMenu(m_host.document)) {
        MenuProp menu = m_host.document.menuProp(*edited);
        storeBoxes(menu);
        menu.FontSet = bFontSet;
        if (bFontSet)
            storePreviewFont(menu);
        m_host.document.setMenu(*edited, std::move(menu));
    }
    accept();
}

}  // namespace zev
