#include "dialogs/frm_menu_prop.h"

#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "dialogs/edited_menu.h"
#include "dialogs/frm_adv_prop.h"
#include "dialogs/frm_default_prop.h"
#include "dialogs/preview_label.h"
#include "model/input_rules.h"

namespace zev {

namespace {

std::int32_t ColorOrDefault(const std::string& own, const std::string& byDefault) {
    return HexToColor(own.empty() ? byDefault : own);
}

}  // namespace

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
    left->addWidget(
        makeButton("cmdCopy", tr("Cop&y Menu Properties"), this, [this] { cmdCopy_Click(); }));
    left->addWidget(
        makeButton("cmdPaste", tr("&Paste Menu Properties"), this, [this] { cmdPaste_Click(); }));
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
    m_columns = addField(frame, "Columns", tr("Col&umns:"),
                         tr("Number of menu columns. Set to 1 for vertical menus and a large "
                            "number for horizontal menus"));
    m_spacing = addField(frame, "Spacing", tr("&Spacing:"), tr("Spacing between menu items"));
    connect(m_columns.edit, &PropertyEdit::edited, this, &frmMenuProp::txtColumns_Change);
    connect(m_spacing.edit, &PropertyEdit::edited, this, &frmMenuProp::txtSpacing_Change);
    return frame;
}

bool frmMenuProp::fill() {
    const auto edited = EditedMenu(m_host.document);
    if (!edited)
        return false;
    const MenuProp& menu = m_host.document.menuProp(*edited);
    const MenuProp& defaults = m_host.document.DefaultProp();
    showBoxes(menu);
    lblFont->setBackColor(ColorOrDefault(menu.HBgColor, defaults.HBgColor));
    lblFont->setForeColor(ColorOrDefault(menu.HFtColor, defaults.HFtColor));
    lblPreviewNormal->setBackColor(ColorOrDefault(menu.NBgColor, defaults.NBgColor));
    lblPreviewNormal->setForeColor(ColorOrDefault(menu.NFtColor, defaults.NFtColor));
    bFontSet = menu.FontSet;
    FontChoice font = FontOf(defaults);
    if (menu.FontSet) {
        const FontChoice own = FontOf(menu);
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

// A single menu may have no columns, the defaults may not.
void frmMenuProp::txtColumns_Change() {
    CheckRange(*m_columns.edit, 0, 100, m_host.messages);
}

void frmMenuProp::txtSpacing_Change() {
    CheckRange(*m_spacing.edit, 0, 1000, m_host.messages);
}

void frmMenuProp::cmdFont_Click() {
    if (bFontSet)
        cdFont = lblFont->fontChoice();
    if (chooseFont())
        bFontSet = true;
}

void frmMenuProp::cmdFontClear_Click() {
    bFontSet = false;
    setPreviewFont(FontOf(m_host.document.DefaultProp()));
}

void frmMenuProp::cmdCopy_Click() {
    MenuProp& copy = m_copied.emplace();
    storeBoxes(copy);
    copy.FontSet = bFontSet;
    storePreviewFont(copy);
}

void frmMenuProp::cmdPaste_Click() {
    if (!m_copied.has_value())
        return;
    showBoxes(*m_copied);
    txtNBgColor_LostFocus();
    txtHBgColor_LostFocus();
    txtHFtColor_LostFocus();
    txtNFtColor_LostFocus();
    bFontSet = m_copied->FontSet;
    if (bFontSet)
        setPreviewFont(FontOf(*m_copied));
    else
        cmdFontClear_Click();
}

void frmMenuProp::cmdAdvanced_Click() {
    if (m_advanced.fill())
        m_advanced.exec();
}

void frmMenuProp::cmdOK_Click() {
    if (const auto edited = EditedMenu(m_host.document)) {
        MenuProp menu = m_host.document.menuProp(*edited);
        storeBoxes(menu);
        menu.FontSet = bFontSet;
        if (bFontSet)
            storePreviewFont(menu);
        m_host.document.setMenu(*edited, std::move(menu));
        m_host.Button_Update();
    }
    accept();
}

}  // namespace zev
