// SPDX-License-Identifier: MIT
#include "dialogs/frm_adv_prop.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "dialogs/edited_menu.h"

namespace zev {

namespace {

/// Characters of a piece of HTML or a border that are seen at once.
constexpr int kTextWidth = 52;

}  // namespace

frmAdvProp::frmAdvProp(const DialogHost& host, QWidget* parent)
    : PropertyForm(host, "frmAdvProp", tr("Advanced Menu Properties"), parent) {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeAdvancedFrame());
    layout->addWidget(makeFilterFrame());
    layout->addStretch();
    layout->addLayout(makeButtonRow());
    // The boxes of both frames begin at one edge.
    const auto labels = findChildren<QLabel*>();
    int widthPx = 0;
    for (const QLabel* label : labels)
        widthPx = std::max(widthPx, label->sizeHint().width());
    for (QLabel* label : labels)
        label->setMinimumWidth(widthPx);
}

QGroupBox* frmAdvProp::makeAdvancedFrame() {
    QGroupBox* frame = makeFrame("FrameAdvanced", tr("Advanced Menu Settings"));
    const PropertyBox boxes[] = {
        {"Divider", tr("Menu &Divider:"),
         tr("Horizontal menu divider. Set Spacing to at least 1 if divider is specified"),
         &MenuProp::Divider, escaped},
        {"HTMLBefore", tr("HTML &Before:"), tr("HTML code added before each menu item"),
         &MenuProp::HTMLBefore, escaped},
        {"HTMLAfter", tr("HTML &After:"), tr("HTML code added after each menu item"),
         &MenuProp::HTMLAfter, escaped},
        {"Target", tr("&Target Frame:"),
         tr("Default target frame or window of child menu hyperlinks"), &MenuProp::Target, escaped},
        {"ItemBorder", tr("&Item Border:"),
         tr("Menu item border settings in CSS syntax (1px solid #FFFFFF)"), &MenuProp::ItemBorder,
         escaped},
        // Unlike the others at every change, and meant to be: a stored border that is only
        // passed by stays as it is.
        {"MenuBorder", tr("&Menu Border:"),
         tr("Menu border settings in CSS syntax (1px solid #FFFFFF)"), &MenuProp::MenuBorder,
         escaped, PropertyEdit::CheckedWhen::Changed},
        {"CellPadding", tr("Ce&ll Padding:"), tr("Padding around each menu item"),
         &MenuProp::CellPadding, range(0, 10), PropertyEdit::CheckedWhen::Changed},
    };
    addBoxes(gridOf(frame), boxes);
    firstBox()->setMinimumWidth(kTextWidth * fontMetrics().averageCharWidth());
    return frame;
}

QGroupBox* frmAdvProp::makeFilterFrame() {
    QGroupBox* frame = makeFrame("FrameIE", tr("IE Filter Effects"));
    const PropertyBox boxes[] = {
        {"Fade", tr("&Fade Duration (0 - 5):"),
         tr("Menu fade effect. 0: Fast. 5: Slow. decimal values allowed, e.g. 0.2"),
         &MenuProp::FilterFade, range(0, 5)},
        {"Opacity", tr("&Opacity (1 - 100):"), tr("Menu opacity. 1: Transparent. 100: Opaque"),
         &MenuProp::FilterOpacity, range(1, 100)},
    };
    addBoxes(gridOf(frame), boxes);
    addColor(frame, "Shadow", &MenuProp::FilterShadow,
             {tr("&Shadow Color:"), tr("S&elect Color"), tr("Shadow Color"),
              tr("Select Shadow Color"), tr("Menu shadow color")});
    return frame;
}

QBoxLayout* frmAdvProp::makeButtonRow() {
    auto* row = new QHBoxLayout;
    row->addWidget(makeButton(
        "cmdCopy", tr("Cop&y Menu Properties"), this, [this] { cmdCopy_Click(); }));
    row->addWidget(
        makeButton("cmdPaste", tr("&Paste Menu Properties"), this, [this] { cmdPaste_Click(); }));
    addClosingButtons(row);
    return row;
}

bool frmAdvProp::fill() {
    const auto edited = editedMenu(m_host.document);
    if (!edited)
        return false;
    showBoxes(m_host.document.menuProp(*edited));
    firstBox()->setFocus();
    return true;
}

void frmAdvProp::cmdCopy_Click() {
    m_copied = shown();
}

void frmAdvProp::cmdPaste_Click() {
    if (m_copied.has_value())
        showBoxes(*m_copied);
}

void frmAdvProp::cmdOK_Click() {
    if (const auto edited = editedMenu(m_host.document)) {
        MenuProp menu = m_host.document.menuProp(*edited);
        storeBoxes(menu);
        m_host.document.setMenuUnmarked(*edited, std::move(menu));
    }
    accept();
}

}  // namespace zev
