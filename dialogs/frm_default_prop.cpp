#include "dialogs/frm_default_prop.h"

#include <QGroupBox>
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
    arrange(left, right);
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
    addBoxes(frame, boxes);
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
    chooseFont();
}

void frmDefaultProp::cmdOK_Click() {
    MenuProp prop = m_host.document.DefaultProp();
    storeBoxes(prop);
    // Fonts that nobody looked at in the font dialog stay exactly as they are in the file.
    if (!cdFont.name.empty())
        storePreviewFont(prop);
    m_host.document.setMenu({MenuPropOwner::Kind::Defaults}, std::move(prop));
    accept();
}

}  // namespace zev
