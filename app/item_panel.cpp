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

#include "app/icons.h"
#include "dialogs/single_line.h"
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

/// Characters a field can show; far beyond any caption, and still laid out at once.
constexpr int kMaxFieldLength = 100'000;

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
    makeField(m_caption, "Caption", tr("Menu &Description (HTML syntax)"),
              tr("Menu item text/image displayed on the menu"));
    m_caption.label->setToolTip(tr("Menu text/image displayed on the menu"));
    makeField(m_url, "URL", tr("&URL/JavaScript function"),
              tr("Menu item link. Usage similar to HREF attribute. JavaScript functions can be "
                 "called using javascript:"));
    makeField(m_target, "Target", tr("Tar&get Frame"),
              tr("Target frame or window of menu item link"));
    makeField(m_imgOut, "ImgOut", tr("Mouse&Out Image"),
              tr("Menu item image displayed when the mouse is outside the menu item"));
    makeField(m_imgOver, "ImgOver", tr("MouseO&ver Image"),
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

void ItemPanel::makeField(Field& field, const QString& name, const QString& caption,
                          const QString& tooltip) {
    field.label = new QLabel(caption, this);
    field.label->setObjectName("lbl" + name);
    field.label->setTextFormat(Qt::PlainText);
    field.edit = new QLineEdit(this);
    field.edit->setObjectName("txt" + name);
    field.edit->setAccessibleName(QString(caption).remove(u'&'));
    field.edit->setToolTip(tooltip);
    field.edit->setMaxLength(kMaxFieldLength);
    keepSingleLine(*field.edit);
    field.edit->installEventFilter(this);
    field.label->setBuddy(field.edit);
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
    connect(m_caption.edit, &QLineEdit::textChanged, this, &ItemPanel::txtCaption_Change);
    connect(m_url.edit, &QLineEdit::textChanged, this, &ItemPanel::txtURL_Change);
    connect(m_target.edit, &QLineEdit::textChanged, this, &ItemPanel::txtTarget_Change);
    connect(m_imgOut.edit, &QLineEdit::textChanged, this, &ItemPanel::txtImgOut_Change);
    connect(m_imgOver.edit, &QLineEdit::textChanged, this, &ItemPanel::txtImgOver_Change);
    connect(cmdCaptionImg, &QToolButton::clicked, this, &ItemPanel::cmdCaptionImg_Click);
    connect(cmdURL, &QToolButton::clicked, this, &ItemPanel::cmdURL_Click);
    connect(cmdImgOut, &QToolButton::clicked, this, &ItemPanel::cmdImgOut_Click);
    connect(cmdImgOver, &QToolButton::clicked, this, &ItemPanel::cmdImgOver_Click);
}

void ItemPanel::StoreItem(MenuNode* node) {
    if (node == nullptr)
        return;
    if (optRollover->isChecked())
        optRollover_Click();
    else
        optNormal_Click();
    ItemProp& item = node->item;
    item.IsRollover = optRollover->isChecked();
    item.Caption = valueOf(m_caption);
    item.Target = valueOf(m_target);
    item.ImageOut = valueOf(m_imgOut);
    item.ImageOver = valueOf(m_imgOver);
    item.URL = valueOf(m_url);
}

void ItemPanel::ShowItem(const MenuNode* node) {
    const ItemProp item = node != nullptr ? node->item : ItemProp();
    m_isShowing = true;
    if (node != nullptr) {
        optRollover->setChecked(item.IsRollover);
        optNormal->setChecked(!item.IsRollover);
        setRolloverMode(item.IsRollover);
    }
    show(m_caption, item.Caption);
    show(m_target, item.Target);
    show(m_imgOut, item.ImageOut);
    show(m_imgOver, item.ImageOver);
    show(m_url, item.URL);
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
    if (m_document.CurNode == nullptr)
        return;
    if (m_document.CurNode->item.IsRollover) {
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
    for (const Field* field : {&m_caption, &m_url, &m_target, &m_imgOut, &m_imgOver}) {
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

void ItemPanel::setSelectedLabel(const Field& source) {
    if (m_document.selectedNode != nullptr)
        m_document.tree.setText(*m_document.selectedNode, valueOf(source));
}

void ItemPanel::setModified() {
    m_document.bModified = true;
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
    replaceText(*m_caption.edit, CaptionRule);
}

void ItemPanel::txtURL_Validate() {
    replaceText(*m_url.edit, UrlRule);
}

void ItemPanel::txtTarget_Validate() {
    replaceText(*m_target.edit, TargetRule);
}

// The caret stays between the same characters.
void ItemPanel::replaceText(QLineEdit& edit, std::string (*rule)(const std::string&)) {
    const QString cleaned = QString::fromStdString(rule(edit.text().toStdString()));
    if (cleaned == edit.text())
        return;
    const QString before = edit.text().left(edit.cursorPosition());
    edit.setText(cleaned);
    edit.setCursorPosition(
        static_cast<int>(QString::fromStdString(rule(before.toStdString())).size()));
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
    request.folder = m_document.SavePath;
    const std::string path = m_services.dialogs.openFile(request);
    if (path.empty())
        return false;
    edit.setText(QString::fromStdString(ToRelativeURL(m_document.SavePath, path)));
    return true;
}

void ItemPanel::show(Field& field, const std::string& value) {
    field.edit->setText(QString::fromStdString(value));
    field.edit->setCursorPosition(0);
    field.shownText = field.edit->text();
    field.shownValue = value;
}

std::string ItemPanel::valueOf(const Field& field) {
    const QString text = field.edit->text();
    return text == field.shownText ? field.shownValue : text.toStdString();
}

}  // namespace zev
