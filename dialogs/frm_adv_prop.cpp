#include "dialogs/frm_adv_prop.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "dialogs/color_swatch.h"
#include "dialogs/dialog_button.h"
#include "dialogs/edited_menu.h"
#include "model/text_rules.h"

namespace zev {

namespace {

/// Characters of a piece of HTML or a border that are seen at once.
constexpr int kTextWidth = 52;

std::string TextRule(const std::string& text) {
    return EscapeApostrophes(text);
}

PropertyField MakeField(const QString& name, const QString& caption, const QString& tooltip,
                        QWidget* parent) {
    return PropertyField::make(name, caption, QString(caption).remove(u'&').remove(u':'), tooltip,
                               parent);
}

}  // namespace

frmAdvProp::frmAdvProp(const DialogHost& host, QWidget* parent) : QDialog(parent), m_host(host) {
    setObjectName("frmAdvProp");
    setWindowTitle(tr("Advanced Menu Properties"));
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
    connectChecks();
}

QGroupBox* frmAdvProp::makeAdvancedFrame() {
    auto* frame = new QGroupBox(tr("Advanced Menu Settings"), this);
    frame->setObjectName("FrameAdvanced");
    m_divider = MakeField("Divider", tr("Menu &Divider:"),
                          tr("Horizontal menu divider. Set Spacing to at least 1 if divider is "
                             "specified"),
                          frame);
    m_htmlBefore = MakeField("HTMLBefore", tr("HTML &Before:"),
                             tr("HTML code added before each menu item"), frame);
    m_htmlAfter = MakeField("HTMLAfter", tr("HTML &After:"),
                            tr("HTML code added after each menu item"), frame);
    m_target = MakeField("Target", tr("&Target Frame:"),
                         tr("Default target frame or window of child menu hyperlinks"), frame);
    m_itemBorder =
        MakeField("ItemBorder", tr("&Item Border:"),
                  tr("Menu item border settings in CSS syntax (1px solid #FFFFFF)"), frame);
    m_menuBorder = MakeField("MenuBorder", tr("&Menu Border:"),
                             tr("Menu border settings in CSS syntax (1px solid #FFFFFF)"), frame);
    m_cellPadding =
        MakeField("CellPadding", tr("Ce&ll Padding:"), tr("Padding around each menu item"), frame);
    m_divider.edit->setMinimumWidth(kTextWidth * fontMetrics().averageCharWidth());

    auto* grid = new QGridLayout(frame);
    for (const PropertyField* field : {&m_divider, &m_htmlBefore, &m_htmlAfter, &m_target,
                                       &m_itemBorder, &m_menuBorder, &m_cellPadding}) {
        const int row = grid->rowCount();
        grid->addWidget(field->label, row, 0);
        grid->addWidget(field->edit, row, 1);
    }
    return frame;
}

QGroupBox* frmAdvProp::makeFilterFrame() {
    auto* frame = new QGroupBox(tr("IE Filter Effects"), this);
    frame->setObjectName("FrameIE");
    m_fade = MakeField("Fade", tr("&Fade Duration (0 - 5):"),
                       tr("Menu fade effect. 0: Fast. 5: Slow. decimal values allowed, e.g. 0.2"),
                       frame);
    m_opacity = MakeField("Opacity", tr("&Opacity (1 - 100):"),
                          tr("Menu opacity. 1: Transparent. 100: Opaque"), frame);
    m_shadow = ColorField::make("Shadow", tr("&Shadow Color:"), tr("S&elect Color"),
                                tr("Shadow Color"), tr("Menu shadow color"), frame);
    connect(m_shadow.button, &QPushButton::clicked, this, &frmAdvProp::cmdShadow_Click);

    auto* grid = new QGridLayout(frame);
    for (const PropertyField* field : {&m_fade, &m_opacity}) {
        const int row = grid->rowCount();
        grid->addWidget(field->label, row, 0);
        grid->addWidget(field->edit, row, 1, 1, 3);
    }
    const int row = grid->rowCount();
    grid->addWidget(m_shadow.label, row, 0);
    grid->addWidget(m_shadow.edit, row, 1);
    grid->addWidget(m_shadow.swatch, row, 2);
    grid->addWidget(m_shadow.button, row, 3);
    return frame;
}

QLayout* frmAdvProp::makeButtonRow() {
    auto* row = new QHBoxLayout;
    row->addWidget(makeButton("cmdCopy", tr("Cop&y Menu Properties"), &frmAdvProp::cmdCopy_Click));
    row->addWidget(
        makeButton("cmdPaste", tr("&Paste Menu Properties"), &frmAdvProp::cmdPaste_Click));
    row->addStretch();
    QPushButton* cmdOK = makeButton("cmdOK", tr("O&K"), &frmAdvProp::cmdOK_Click);
    cmdOK->setDefault(true);
    row->addWidget(cmdOK);
    row->addWidget(makeButton("cmdCancel", tr("&Cancel"), &frmAdvProp::cmdCancel_Click));
    return row;
}

QPushButton* frmAdvProp::makeButton(const QString& name, const QString& caption,
                                    void (frmAdvProp::*click)()) {
    QPushButton* button = makeDialogButton(name, caption, this);
    connect(button, &QPushButton::clicked, this, click);
    return button;
}

void frmAdvProp::connectChecks() {
    connect(m_divider.edit, &PropertyEdit::left, this, &frmAdvProp::txtDivider_LostFocus);
    connect(m_htmlBefore.edit, &PropertyEdit::left, this, &frmAdvProp::txtHTMLBefore_LostFocus);
    connect(m_htmlAfter.edit, &PropertyEdit::left, this, &frmAdvProp::txtHTMLAfter_LostFocus);
    connect(m_target.edit, &PropertyEdit::left, this, &frmAdvProp::txtTarget_LostFocus);
    connect(m_itemBorder.edit, &PropertyEdit::left, this, &frmAdvProp::txtItemBorder_LostFocus);
    connect(m_menuBorder.edit, &PropertyEdit::edited, this, &frmAdvProp::txtMenuBorder_Change);
    connect(m_cellPadding.edit, &PropertyEdit::edited, this, &frmAdvProp::txtCellPadding_Change);
    connect(m_fade.edit, &PropertyEdit::left, this, &frmAdvProp::txtFade_LostFocus);
    connect(m_opacity.edit, &PropertyEdit::left, this, &frmAdvProp::txtOpacity_LostFocus);
}

std::array<frmAdvProp::Box, frmAdvProp::kBoxes> frmAdvProp::boxes() const {
    return {{{m_cellPadding.edit, &MenuProp::CellPadding},
             {m_divider.edit, &MenuProp::Divider},
             {m_htmlAfter.edit, &MenuProp::HTMLAfter},
             {m_htmlBefore.edit, &MenuProp::HTMLBefore},
             {m_itemBorder.edit, &MenuProp::ItemBorder},
             {m_menuBorder.edit, &MenuProp::MenuBorder},
             {m_target.edit, &MenuProp::Target},
             {m_fade.edit, &MenuProp::FilterFade},
             {m_opacity.edit, &MenuProp::FilterOpacity},
             {m_shadow.edit, &MenuProp::FilterShadow}}};
}

bool frmAdvProp::fill() {
    const auto edited = EditedMenu(m_host.document);
    if (!edited)
        return false;
    const MenuProp& menu = m_host.document.menuProp(*edited);
    for (const Box& box : boxes())
        box.edit->showValue(menu.*box.member);
    m_divider.edit->setFocus();
    return true;
}

void frmAdvProp::txtDivider_LostFocus() {
    m_divider.edit->applyRule(TextRule);
}

void frmAdvProp::txtHTMLBefore_LostFocus() {
    m_htmlBefore.edit->applyRule(TextRule);
}

void frmAdvProp::txtHTMLAfter_LostFocus() {
    m_htmlAfter.edit->applyRule(TextRule);
}

void frmAdvProp::txtTarget_LostFocus() {
    m_target.edit->applyRule(TextRule);
}

void frmAdvProp::txtItemBorder_LostFocus() {
    m_itemBorder.edit->applyRule(TextRule);
}

// Unlike the others, while it is being typed: that is how this box has always worked.
void frmAdvProp::txtMenuBorder_Change() {
    m_menuBorder.edit->applyRule(TextRule);
}

void frmAdvProp::txtCellPadding_Change() {
    CheckRange(*m_cellPadding.edit, 0, 10, m_host.messages);
}

void frmAdvProp::txtFade_LostFocus() {
    CheckRange(*m_fade.edit, 0, 5, m_host.messages);
}

void frmAdvProp::txtOpacity_LostFocus() {
    CheckRange(*m_opacity.edit, 1, 100, m_host.messages);
}

void frmAdvProp::cmdShadow_Click() {
    leaveFocusedEdit(*this);
    m_shadow.Color_Pick(m_host.dialogs);
}

void frmAdvProp::cmdCopy_Click() {
    leaveFocusedEdit(*this);
    std::array<std::string, kBoxes> values;
    const auto all = boxes();
    std::transform(all.begin(), all.end(), values.begin(),
                   [](const Box& box) { return box.edit->value(); });
    m_copied = std::move(values);
}

void frmAdvProp::cmdPaste_Click() {
    leaveFocusedEdit(*this);
    if (!m_copied.has_value())
        return;
    const auto all = boxes();
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i].edit->showValue((*m_copied)[i]);
}

void frmAdvProp::cmdOK_Click() {
    leaveFocusedEdit(*this);
    if (const auto edited = EditedMenu(m_host.document)) {
        MenuProp menu = m_host.document.menuProp(*edited);
        for (const Box& box : boxes())
            menu.*box.member = box.edit->value();
        m_host.document.setMenuUnmarked(*edited, std::move(menu));
    }
    accept();
}

// The box being edited is not left first: nobody wants to hear about values that are thrown away.
void frmAdvProp::cmdCancel_Click() {
    reject();
}

}  // namespace zev
