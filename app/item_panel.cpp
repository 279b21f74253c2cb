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

std::string CaptionRule(const std::string& text) {
    return EscapeApostrophes(text);
}

std::string TargetRule(const std::string& text) {
    return StripQuotes(text, 1);
}

std::string UrlRule(const std::string& text) {
    return StripQuotes(EscapeApostrophes(text), 0);
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
    connectHandlers();
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
    optNormal->setChecked(true);
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(optRollover);
    layout->addWidget(optNormal);
    return frame;
}

QWidget* ItemPanel::makeAttributeFrame() {
    auto* frame = new QGroupBox(tr("Item Attributes"), this);
    frame->setObjectName("FrameAttribute");
    m_caption = makeField("Caption", tr("Menu &Description (HTML syntax)"),
                          tr("Menu item text/image displayed on the menu"));
    m_caption.label->setToolTip(tr("Menu text/image displayed on the menu"));
    m_url =
        makeField("URL", tr("&URL/JavaScript function"),
                  tr("Menu item link. Usage similar to HREF attribute. JavaScript functions can be "
                     "called using javascript:"));
    m_target =
        makeField("Target", tr("Tar&get Frame"), tr("Target frame or window of menu item link"));
    m_imgOut = makeField("ImgOut", tr("Mouse&Out Image"),
                         tr("Menu item image displayed when the mouse is outside the menu item"));
    m_imgOver = makeField("ImgOver", tr("MouseO&ver Image"),
                          tr("Menu item image displayed when the mouse is over the menu item"));
    cmdCaptionImg = makeButton("cmdCaptionImg", tr("Add <img> tag to menu description"),
                               "insert_image", tr("Add image tag to menu description"));
    cmdURL = makeButton("cmdURL", tr("Browse"), "browse", tr("Browse for link"));
    cmdImgOut = makeButton("cmdImgOut", tr("Browse"), "browse", tr("Browse for mouse-out image"));
    cmdImgOver =
        makeButton("cmdImgOver", tr("Browse"), "browse", tr("Browse for mouse-over image"));

    auto* grid = new QGridLayout(frame);
    int row = 0;
    for (const auto& [field, button] : {std::pair{&m_caption, cmdCaptionImg},
                                        {&m_url, cmdURL},
                                        {&m_target, nullptr},
                                        {&m_imgOut, cmdImgOut},
                                        {&m_imgOver, cmdImgOver}}) {
        grid->addWidget(field->label, row++, 0, 1, 2);
        grid->addWidget(field->edit, row, 0, 1, button != nullptr ? 1 : 2);
        if (button != nullptr) {
            grid->addWidget(button, row, 1);
            setTabOrder(field->edit, button);
        }
        grid->setRowMinimumHeight(++row, grid->verticalSpacing());
        ++row;
    }
    grid->setRowMinimumHeight(row - 1, 0);
    grid->setColumnStretch(0, 1);
    return frame;
}

PropertyField ItemPanel::makeField(const QString& name, const QString& caption,
                                   const QString& tooltip) {
    const PropertyField field =
        PropertyField::make(name, caption, QString(caption).remove(u'&'), tooltip, this);
    field.edit->installEventFilter(this);
    return field;
}

QToolButton* ItemPanel::makeButton(const QString& name, const QString& tooltip, const QString& icon,
                                   const QString& accessibleName) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setToolTip(tooltip);
    button->setAccessibleName(accessibleName);
    button->setIcon(ButtonIcon(icon));
    button->installEventFilter(this);
    return button;
}

void ItemPanel::connectHandlers() {
    connect(optNormal, &QRadioButton::clicked, this, &ItemPanel::optNormal_Click);
    connect(optRollover, &QRadioButton::clicked, this, &ItemPanel::optRollover_Click);
    connect(m_caption.edit, &PropertyEdit::edited, this, &ItemPanel::txtCaption_Change);
    connect(m_url.edit, &PropertyEdit::edited, this, &ItemPanel::txtURL_Change);
    connect(m_target.edit, &PropertyEdit::edited, this, &ItemPanel::txtTarget_Change);
    connect(m_imgOut.edit, &PropertyEdit::edited, this, &ItemPanel::txtImgOut_Change);
    connect(m_imgOver.edit, &PropertyEdit::edited, this, &ItemPanel::txtImgOver_Change);
    connect(cmdCaptionImg, &QToolButton::clicked, this, &ItemPanel::cmdCaptionImg_Click);
    connect(cmdURL, &QToolButton::clicked, this, &ItemPanel::cmdURL_Click);
    connect(cmdImgOut, &QToolButton::clicked, this, &ItemPanel::cmdImgOut_Click);
    connect(cmdImgOver, &QToolButton::clicked, this, &ItemPanel::cmdImgOver_Click);
}

void ItemPanel::StoreItem(const MenuNode* node) {
    if (node == nullptr)
        return;
    if (optRollover->isChecked())
        optRollover_Click();
    else
        optNormal_Click();
    ItemProp item = node->item;
    item.IsRollover = optRollover->isChecked();
    item.Caption = m_caption.edit->value();
    item.Target = m_target.edit->value();
    item.ImageOut = m_imgOut.edit->value();
    item.ImageOver = m_imgOver.edit->value();
    item.URL = m_url.edit->value();
    m_document.setItem(*node, std::move(item));
}

void ItemPanel::ShowItem(const MenuNode* node) {
    const ItemProp item = node != nullptr ? node->item : ItemProp();
    m_isShowing = true;
    if (node != nullptr) {
        optRollover->setChecked(item.IsRollover);
        optNormal->setChecked(!item.IsRollover);
        setRolloverMode(item.IsRollover);
    }
    m_caption.edit->showValue(item.Caption);
    m_target.edit->showValue(item.Target);
    m_imgOut.edit->showValue(item.ImageOut);
    m_imgOver.edit->showValue(item.ImageOver);
    m_url.edit->showValue(item.URL);
    m_isShowing = false;
    if (node != nullptr)
        setSelectedLabel(item.IsRollover ? m_imgOut : m_caption);
}

void ItemPanel::ClearItemPanel() {
    ShowItem(nullptr);
    for (QWidget* control : std::initializer_list<QWidget*>{
             optNormal, optRollover, m_caption.edit, m_url.edit, m_imgOut.edit, m_imgOver.edit,
             m_target.edit, cmdURL, cmdImgOut, cmdImgOver})
        control->setEnabled(false);
}

void ItemPanel::validateFields() {
    txtCaption_Validate();
    txtURL_Validate();
    txtTarget_Validate();
}

void ItemPanel::validateFocusedField() {
    const QWidget* field = window()->focusWidget();
    if (field == m_caption.edit)
        txtCaption_Validate();
    else if (field == m_url.edit)
        txtURL_Validate();
    else if (field == m_target.edit)
        txtTarget_Validate();
}

void ItemPanel::TreeView_AfterLabelEdit(const QString& label) {
    if (m_document.CurNode() == nullptr)
        return;
    if (m_document.CurNode()->item.IsRollover) {
        m_imgOut.edit->setText(label);
        return;
    }
    m_caption.edit->setText(label);
    // Leaving the in-place editor stands for leaving the field, which would escape apostrophes.
    txtCaption_Validate();
}

bool ItemPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        // Neither a menu nor another program's window takes the person out of the field.
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
            if (watched == m_caption.edit) {
                txtCaption_Validate();
                m_leftCaption = {m_caption.edit->text(), m_caption.edit->cursorPosition(),
                                 m_caption.edit->selectionStart(),
                                 m_caption.edit->selectionLength()};
            } else if (watched == m_url.edit) {
                txtURL_Validate();
            } else if (watched == m_target.edit) {
                txtTarget_Validate();
            }
        }
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
    for (const PropertyField* field : {&m_caption, &m_url, &m_target, &m_imgOut, &m_imgOver}) {
        if (field->edit != nullptr)
            field->edit->setPalette(fieldPalette);
    }
}

void ItemPanel::setRolloverMode(bool isRollover) {
    cmdImgOver->setEnabled(isRollover);
    cmdImgOut->setEnabled(isRollover);
    cmdURL->setEnabled(true);
    cmdCaptionImg->setEnabled(!isRollover);
    optNormal->setEnabled(true);
    optRollover->setEnabled(true);
    m_caption.edit->setEnabled(!isRollover);
    m_url.edit->setEnabled(true);
    m_target.edit->setEnabled(true);
    m_imgOut.edit->setEnabled(isRollover);
    m_imgOver.edit->setEnabled(isRollover);
}

void ItemPanel::setSelectedLabel(const PropertyField& source) {
    if (m_document.selectedNode() != nullptr)
        m_document.setLabel(*m_document.selectedNode(), source.edit->value());
}

void ItemPanel::setModified() {
    m_document.markModified();
    emit changed();
}

void ItemPanel::optNormal_Click() {
    setRolloverMode(false);
    setSelectedLabel(m_caption);
}

void ItemPanel::optRollover_Click() {
    setRolloverMode(true);
    setSelectedLabel(m_imgOut);
}

void ItemPanel::txtCaption_Change() {
    if (m_isShowing)
        return;
    if (optNormal->isChecked())
        setSelectedLabel(m_caption);
    setModified();
}

void ItemPanel::txtImgOut_Change() {
    if (m_isShowing)
        return;
    if (optRollover->isChecked())
        setSelectedLabel(m_imgOut);
    setModified();
}

void ItemPanel::txtURL_Change() {
    if (!m_isShowing)
        setModified();
}

void ItemPanel::txtTarget_Change() {
    if (!m_isShowing)
        setModified();
}

void ItemPanel::txtImgOver_Change() {
    if (!m_isShowing)
        setModified();
}

void ItemPanel::txtCaption_Validate() {
    m_caption.edit->applyRule(CaptionRule);
}

void ItemPanel::txtURL_Validate() {
    m_url.edit->applyRule(UrlRule);
}

void ItemPanel::txtTarget_Validate() {
    m_target.edit->applyRule(TargetRule);
}

void ItemPanel::cmdCaptionImg_Click() {
    QLineEdit& edit = *m_caption.edit;
    // A field that is left drops its selection; whoever comes to the button by the Tab key means
    // the text that was selected.
    if (!edit.hasFocus() && !edit.hasSelectedText() && m_leftCaption.length > 0 &&
        edit.text() == m_leftCaption.text && edit.cursorPosition() == m_leftCaption.cursor)
        edit.setSelection(m_leftCaption.start, m_leftCaption.length);
    edit.insert(kImageTag);
}

void ItemPanel::cmdURL_Click() {
    // A file's name may hold an apostrophe, and the field is not left after this.
    if (browse(*m_url.edit, kPageFilter))
        txtURL_Validate();
}

void ItemPanel::cmdImgOut_Click() {
    browse(*m_imgOut.edit, kImageFilter);
}

void ItemPanel::cmdImgOver_Click() {
    browse(*m_imgOver.edit, kImageFilter);
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
