#include "dialogs/frm_default_prop.h"

#include <QGroupBox>
#include <QVBoxLayout>

#include "dialogs/preview_label.h"
#include "model/input_rules.h"

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
    arrange(left, right);
}

QGroupBox* frmDefaultProp::makeMenuFrame() {
    QGroupBox* frame = makeFrame("FrameMenu", tr("Menu Settings"));
    addPosition(frame, tr("Menu &Position:"),
                tr("Roll-out direction of the menu item with respect to the parent node"));
    m_closeDelay = addField(frame, "CloseDelay", tr("Close &Delay:"),
                            tr("Sets the menu close delay after mouseout (in milliseconds)"));
    m_spacing =
        addField(frame, "Spacing", tr("&Spacing:"), tr("Horizontal spacing between menu items"));
    m_columns = addField(frame, "Columns", tr("Col&umns:"),
                         tr("Number of menu columns. Set to 1 for vertical menus and a large "
                            "number for horizontal menus"));
    m_menuOffset = addField(frame, "MenuOffset", tr("&Offset:"),
                            tr("Tweaks the roll-out position of the menu"));
    connect(m_closeDelay.edit, &PropertyEdit::edited, this, &frmDefaultProp::txtCloseDelay_Change);
    connect(m_columns.edit, &PropertyEdit::edited, this, &frmDefaultProp::txtColumns_Change);
    connect(m_menuOffset.edit, &PropertyEdit::edited, this, &frmDefaultProp::txtMenuOffset_Change);
    connect(m_spacing.edit, &PropertyEdit::edited, this, &frmDefaultProp::txtSpacing_Change);
    return frame;
}

void frmDefaultProp::LoadDefaultDialog() {
    const MenuProp& prop = m_host.document.DefaultProp();
    m_closeDelay.edit->showValue(prop.CloseDelay);
    m_menuOffset.edit->showValue(prop.MenuOffset);
    showBoxes(prop);
    lblFont->setBackColor(HexToColor(prop.HBgColor));
    lblFont->setForeColor(HexToColor(prop.HFtColor));
    lblPreviewNormal->setBackColor(HexToColor(prop.NBgColor));
    lblPreviewNormal->setForeColor(HexToColor(prop.NFtColor));
    setPreviewFont(FontOf(prop));
}

void frmDefaultProp::txtCloseDelay_Change() {
    CheckRange(*m_closeDelay.edit, 0, 10000, m_host.messages);
}

void frmDefaultProp::txtColumns_Change() {
    CheckRange(*m_columns.edit, 1, 100, m_host.messages);
}

void frmDefaultProp::txtMenuOffset_Change() {
    CheckRange(*m_menuOffset.edit, -50, 50, m_host.messages);
}

void frmDefaultProp::txtSpacing_Change() {
    CheckRange(*m_spacing.edit, 0, 1000, m_host.messages);
}

void frmDefaultProp::cmdFont_Click() {
    cdFont = lblFont->fontChoice();
    chooseFont();
}

void frmDefaultProp::cmdOK_Click() {
    MenuProp prop = m_host.document.DefaultProp();
    storeBoxes(prop);
    prop.MenuOffset = m_menuOffset.edit->value();
    prop.CloseDelay = m_closeDelay.edit->value();
    // Fonts that nobody looked at in the font dialog stay exactly as they are in the file.
    if (!cdFont.name.empty())
        storePreviewFont(prop);
    m_host.document.setMenu({MenuPropOwner::Kind::Defaults}, std::move(prop));
    m_host.Button_Update();
    accept();
}

}  // namespace zev
