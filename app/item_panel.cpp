// SPDX-License-Identifier: MIT
#include "app/item_panel.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>
#include <utility>

#include "app/icons.h"
#include "model/text_rules.h"
#include "script/relative_url.h"

namespace zev {

namespace {

constexpr const char* kImageTag = "<img src=\"\" width=\"\" height=\"\" border=\"0\">";
constexpr const char* kImageFilter = "All Files (*.*)|*.*|Image Files (*.gif;*.jpg)|*.gif;*.jpg";
constexpr const char* kPageFilter =
    "All Files (*.*)|*.*|Web Pages (*.htm;*.html;*.shtml;*.stm)|*.htm;*.html;*.shtml;*.stm"
    "|Preprocessed HTML (*.asp;*.aspx;*.cfm;*.php)|*.asp;*.aspx;*.cfm;*.php"
    "|Image Files (*.gif;*.jpg)|*.gif;*.jpg";

CheckedText checkTarget(std::string_view text) {
    return {StripQuotes(text, 1), ""};
}

CheckedText checkURL(std::string_view text) {
    return {StripQuotes(EscapeApostrophes(text), 0), ""};
}

}  // namespace

ItemPanel::ItemPanel(MenuDocument& document, const EditorServices& services, QWidget* parent)
    : QWidget(parent), m_document(document), m_services(services) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(makeTypeFrame());
    layout->addSpacing(layout->spacing());
    layout->addWidget(makeAttributeFrame());
    layout->addStretch();
    showFaceColour();
    setRolloverMode(false);
}

QWidget* ItemPanel::makeTypeFrame() {
    auto* frame = new QGroupBox(tr("Item Type"), this);
    frame->setObjectName("FrameType");
    optRollover = new QRadioButton(tr("&Image Rollover Effect"), frame);
    optRollover->setObjectName("optRollover");
    optRollover->setAccessibleName(tr("Image Rollover Effect"));
    optRollover->setToolTip(
        tr("Add menu item with image rollover effects. Select Text/Image if "
           "image rollovers are not required"));
    optNormal = new QRadioButton(tr("Te&xt/Image"), frame);
    optNormal->setObjectName("optNormal");
    optNormal->setAccessibleName(tr("Text/Image"));
    optNormal->setToolTip(tr("Add menu item with text or image"));
    // The Tab key goes to the option that is set.
    optRollover->setFocusPolicy(Qt::ClickFocus);
    for (QRadioButton* option : {optRollover, optNormal})
        connect(option, &QRadioButton::toggled, option, [option](bool isSet) {
            option->setFocusPolicy(isSet ? Qt::StrongFocus : Qt::ClickFocus);
        });
    optNormal->setChecked(true);
    connect(optNormal, &QRadioButton::clicked, this, &ItemPanel::optNormal_Click);
    connect(optRollover, &QRadioButton::clicked, this, &ItemPanel::optRollover_Click);
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(optRollover);
    layout->addWidget(optNormal);
    return frame;
}

QWidget* ItemPanel::makeAttributeFrame() {
    auto* frame = new QGroupBox(tr("Item Attributes"), this);
    frame->setObjectName("FrameAttribute");
    const FieldRow rows[] = {
        {&ItemPanel::txtCaption, "Caption", tr("Menu &Description (HTML syntax)"),
         tr("Menu item text/image displayed on the menu"), "Type in Menu Description",
         &ItemProp::Caption, Text, escaped,
         ButtonRow{"cmdCaptionImg", "insert_image", tr("Add <img> tag to menu description"),
                   tr("Add image tag to menu description"), &ItemPanel::cmdCaptionImg_Click}},
        {&ItemPanel::txtURL, "URL", tr("&URL/JavaScript function"),
         tr("Menu item link. Usage similar to HREF attribute. JavaScript functions can be called "
            "using javascript:"),
         "Type in URL", &ItemProp::URL, AnyType, checkURL,
         ButtonRow{"cmdURL", "browse", tr("Browse"), tr("Browse for link"),
                   &ItemPanel::cmdURL_Click}},
        {&ItemPanel::txtTarget, "Target", tr("Tar&get Frame"),
         tr("Target frame or window of menu item link"), "Type in Target Frame", &ItemProp::Target,
         AnyType, checkTarget},
        {&ItemPanel::txtImgOut, "ImgOut", tr("Mouse&Out Image"),
         tr("Menu item image displayed when the mouse is outside the menu item"),
         "Type in MouseOut Image", &ItemProp::ImageOut, Rollover, nullptr,
         ButtonRow{"cmdImgOut", "browse", tr("Browse"), tr("Browse for mouse-out image"),
                   &ItemPanel::cmdImgOut_Click}},
        {&ItemPanel::txtImgOver, "ImgOver", tr("MouseO&ver Image"),
         tr("Menu item image displayed when the mouse is over the menu item"),
         "Type in MouseOver Image", &ItemProp::ImageOver, Rollover, nullptr,
         ButtonRow{"cmdImgOver", "browse", tr("Browse"), tr("Browse for mouse-over image"),
                   &ItemPanel::cmdImgOver_Click}},
    };
    auto* grid = new QGridLayout(frame);
    grid->setColumnStretch(0, 1);
    for (const FieldRow& row : rows)
        addField(grid, row);
    const Field& caption = m_fields.front();
    caption.label->setToolTip(tr("Menu text/image displayed on the menu"));
    caption.edit->installEventFilter(this);
    caption.button->installEventFilter(this);
    cmdCaptionImg = caption.button;
    return frame;
}

void ItemPanel::addField(QGridLayout* grid, const FieldRow& row) {
    QWidget* frame = grid->parentWidget();
    const auto [label, edit] = PropertyField::make(row.name, row.caption, row.tooltip, frame);
    int line = grid->rowCount();
    if (!m_fields.empty())
        grid->setRowMinimumHeight(line++, grid->verticalSpacing());
    grid->addWidget(label, line++, 0, 1, 2);
    grid->addWidget(edit, line, 0, 1, row.button.has_value() ? 1 : 2);
    if (row.check)
        edit->setCheck(row.check, PropertyEdit::CheckedWhen::Left, m_services.messages);
    connect(edit, &PropertyEdit::edited, this,
            [this, edit = edit, step = row.step] { fieldChanged(*edit, step); });
    // Behind the check, whose work belongs to the same step.
    connect(edit, &PropertyEdit::left, this, [this, edit = edit, step = row.step] {
        emit fieldLeft(step);
        edit->forgetTyping();
    });
    QToolButton* button = nullptr;
    if (row.button.has_value()) {
        button = new QToolButton(frame);
        button->setObjectName(row.button->name);
        button->setIcon(buttonIcon(row.button->icon));
        button->setToolTip(row.button->tooltip);
        button->setAccessibleName(row.button->spoken);
        connect(button, &QToolButton::clicked, this, row.button->click);
        grid->addWidget(button, line, 1);
    }
    this->*row.edit = edit;
    m_fields.push_back({label, edit, row.member, row.type, button});
}

void ItemPanel::StoreItem(const MenuNode* node) {
    if (node == nullptr)
        return;
    ItemProp item = node->item;
    item.IsRollover = optRollover->isChecked();
    for (const Field& field : m_fields)
        item.*field.member = field.edit->value();
    m_document.setItem(*node, std::move(item));
}

void ItemPanel::ShowItem(const MenuNode* node) {
    const ItemProp item = node != nullptr ? node->item : ItemProp();
    m_isShowing = true;
    if (node != nullptr) {
        (item.IsRollover ? optRollover : optNormal)->setChecked(true);
        setRolloverMode(item.IsRollover);
    }
    const bool isShownAlready = std::exchange(m_shown, node) == node;
    for (const Field& field : m_fields)
        if (isShownAlready)
            field.edit->showAgain(item.*field.member);
        else
            field.edit->showValue(item.*field.member);
    m_isShowing = false;
}

void ItemPanel::ClearItemPanel() {
    ShowItem(nullptr);
    optNormal->setEnabled(false);
    optRollover->setEnabled(false);
    for (const Field& field : m_fields) {
        if (field.button != nullptr && field.button != cmdCaptionImg)
            field.button->setEnabled(false);
        field.edit->setEnabled(false);
    }
}

void ItemPanel::labelSelectedNode() {
    if (m_document.selectedNode() != nullptr)
        m_document.setLabel(*m_document.selectedNode(), labelSource().value());
}

void ItemPanel::focusField(const std::string& field) {
    const std::pair<const char*, PropertyEdit*> fields[] = {{"caption", txtCaption},
                                                            {"url", txtURL},
                                                            {"target", txtTarget},
                                                            {"out", txtImgOut},
                                                            {"over", txtImgOver}};
    for (const auto& [name, edit] : fields) {
        if (name != field || !edit->isEnabled())
            continue;
        edit->setFocus();
        edit->selectAll();
    }
}

void ItemPanel::validateFields() {
    txtCaption_Validate();
    txtURL_Validate();
    txtTarget_Validate();
}

void ItemPanel::TreeView_AfterLabelEdit(const QString& label) {
    if (m_document.CurNode() == nullptr)
        return;
    if (m_document.CurNode()->item.IsRollover) {
        txtImgOut->setText(label);
        return;
    }
    txtCaption->setText(label);
    // Leaving the in-place editor stands for leaving the field, which would escape apostrophes.
    txtCaption_Validate();
}

bool ItemPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut && watched == txtCaption) {
        m_leftCaption = {txtCaption->text(), txtCaption->cursorPosition(),
                         txtCaption->selectionStart(), txtCaption->selectionLength()};
    } else if (event->type() == QEvent::ToolTip && watched == cmdCaptionImg) {
        // Qt would take the tooltip's "<img>" for markup.
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           cmdCaptionImg->toolTip().toHtmlEscaped(), cmdCaptionImg);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void ItemPanel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showFaceColour();
}

// A disabled field has the colour of the buttons, an enabled one that of the window's text areas.
void ItemPanel::showFaceColour() {
    QPalette fieldPalette;
    fieldPalette.setBrush(QPalette::Disabled, QPalette::Base,
                          palette().brush(QPalette::Active, QPalette::Button));
    for (const Field& field : m_fields)
        field.edit->setPalette(fieldPalette);
}

void ItemPanel::setRolloverMode(bool isRollover) {
    optNormal->setEnabled(true);
    optRollover->setEnabled(true);
    for (const Field& field : m_fields) {
        const bool isOfType = field.type != (isRollover ? Text : Rollover);
        if (field.button != nullptr)
            field.button->setEnabled(isOfType);
        field.edit->setEnabled(isOfType);
    }
}

const PropertyEdit& ItemPanel::labelSource() const {
    return optRollover->isChecked() ? *txtImgOut : *txtCaption;
}

void ItemPanel::fieldChanged(const PropertyEdit& edit, const std::string& step) {
    if (m_isShowing)
        return;
    emit editing(step);
    if (&edit == &labelSource())
        labelSelectedNode();
    m_document.markModified();
}

void ItemPanel::optNormal_Click() {
    typeChosen(false);
}

void ItemPanel::optRollover_Click() {
    typeChosen(true);
}

void ItemPanel::typeChosen(bool isRollover) {
    emit editing("Change Item Type");
    setRolloverMode(isRollover);
    labelSelectedNode();
}

void ItemPanel::txtCaption_Validate() {
    txtCaption->check();
}

void ItemPanel::txtURL_Validate() {
    txtURL->check();
}

void ItemPanel::txtTarget_Validate() {
    txtTarget->check();
}

void ItemPanel::cmdCaptionImg_Click() {
    // A field that is left drops its selection; whoever comes to the button by the Tab key means
    // the text that was selected.
    if (!txtCaption->hasFocus() && !txtCaption->hasSelectedText() && m_leftCaption.length > 0 &&
        txtCaption->text() == m_leftCaption.text &&
        txtCaption->cursorPosition() == m_leftCaption.cursor)
        txtCaption->setSelection(m_leftCaption.start, m_leftCaption.length);
    txtCaption->insert(kImageTag);
}

void ItemPanel::cmdURL_Click() {
    // A file's name may hold an apostrophe, and the field is not left after this.
    if (browse(*txtURL, kPageFilter))
        txtURL_Validate();
}

void ItemPanel::cmdImgOut_Click() {
    browse(*txtImgOut, kImageFilter);
}

void ItemPanel::cmdImgOver_Click() {
    browse(*txtImgOver, kImageFilter);
}

bool ItemPanel::browse(QLineEdit& edit, const std::string& filter) {
    FileDialogRequest request;
    request.title = "Browse";
    request.filter = filter;
    request.folder = m_document.SavePath();
    const std::string path = m_services.dialogs.openFile(request);
    if (path.empty())
        return false;
    edit.setText(QString::fromStdString(ToRelativeURL(m_document.SavePath(), path)));
    return true;
}

}  // namespace zev
