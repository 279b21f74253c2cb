#include "dialogs/property_dialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <algorithm>

#include "dialogs/color_swatch.h"
#include "dialogs/dialog_button.h"
#include "dialogs/preview_label.h"
#include "model/input_rules.h"
#include "script/relative_url.h"

namespace zev {

namespace {

constexpr const char* kImageFilter = "All Files (*.*)|*.*|GIF (*.gif)|*.gif|JPG (*.jpg)|*.jpg";
constexpr int kGifFilter = 2;

/// Characters of a background image's URL that are seen at once.
constexpr int kUrlWidth = 32;

/// Size of a preview whose property set has no usable one.
constexpr float kUsualPoints = 10;
/// Sizes in points are 16-bit numbers wherever they are written.
constexpr double kMaxPoints = 32767;

// Columns of a frame: what a row stands for, its box, a colour's swatch, a button.
constexpr int kLabelColumn = 0;
constexpr int kBoxColumn = 1;
constexpr int kSwatchColumn = 2;
constexpr int kButtonColumn = 3;
constexpr int kColumns = 4;

QGridLayout* GridOf(const QGroupBox* frame) {
    return static_cast<QGridLayout*>(frame->layout());
}

/// What a caption says: without access key and colon.
QString NameOf(QString caption) {
    return caption.remove(u'&').remove(u':');
}

}  // namespace

PropertyDialog::PropertyDialog(const DialogHost& host, const QString& name, const QString& title,
                               const PropertyDialog* defaults, QWidget* parent)
    : QDialog(parent), m_host(host), m_defaults(defaults) {
    setObjectName(name);
    setWindowTitle(title);
}

QGroupBox* PropertyDialog::makeFrame(const QString& name, const QString& title) {
    auto* frame = new QGroupBox(title, this);
    frame->setObjectName(name);
    auto* grid = new QGridLayout(frame);
    grid->setColumnStretch(kBoxColumn, 1);
    return frame;
}

void PropertyDialog::addPosition(QGroupBox* frame, const QString& caption, const QString& tooltip) {
    auto* label = new QLabel(caption, frame);
    label->setObjectName("lblPosition");
    cboPosition = new QComboBox(frame);
    cboPosition->setObjectName("cboPosition");
    cboPosition->setAccessibleName(NameOf(caption));
    cboPosition->setToolTip(tooltip);
    cboPosition->addItems({"", tr("Right"), tr("Bottom"), tr("Left"), tr("Top")});
    cboPosition->setItemData(0, tr("Not set"), Qt::AccessibleTextRole);
    label->setBuddy(cboPosition);
    const int row = GridOf(frame)->rowCount();
    GridOf(frame)->addWidget(label, row, kLabelColumn);
    GridOf(frame)->addWidget(cboPosition, row, kBoxColumn, 1, kButtonColumn - kBoxColumn);
}

PropertyField PropertyDialog::addField(QGroupBox* frame, const QString& name,
                                       const QString& caption, const QString& tooltip) {
    const PropertyField field = PropertyField::make(name, caption, NameOf(caption), tooltip, frame);
    const int row = GridOf(frame)->rowCount();
    GridOf(frame)->addWidget(field.label, row, kLabelColumn);
    GridOf(frame)->addWidget(field.edit, row, kBoxColumn, 1, kButtonColumn - kBoxColumn);
    return field;
}

ColorField PropertyDialog::addColor(QGroupBox* frame, const QString& name, const QString& caption,
                                    const QString& buttonCaption, const QString& accessibleName,
                                    ColorHandler lostFocus, ColorHandler click) {
    const ColorField field =
        ColorField::make(name, caption, buttonCaption, accessibleName,
                         tr("Color in RGB hexadecimal (#FFFFFF). Set the value to transparent for "
                            "transparency effect"),
                         frame);
    const int row = GridOf(frame)->rowCount();
    GridOf(frame)->addWidget(field.label, row, kLabelColumn);
    GridOf(frame)->addWidget(field.edit, row, kBoxColumn);
    GridOf(frame)->addWidget(field.swatch, row, kSwatchColumn);
    GridOf(frame)->addWidget(field.button, row, kButtonColumn);
    connect(field.edit, &PropertyEdit::left, this, lostFocus);
    connect(field.button, &QPushButton::clicked, this, [this, click] {
        leaveFocusedEdit(*this);
        (this->*click)();
    });
    return field;
}

QGroupBox* PropertyDialog::makeBackgroundFrame() {
    QGroupBox* frame = makeFrame("FrameBackground", tr("Background Settings"));
    m_bgImg = addField(frame, "BgImg", tr("&Image:"), tr("Menu background image"));
    m_bgImg.edit->setMinimumWidth(kUrlWidth * fontMetrics().averageCharWidth());
    QPushButton* cmdBrowseBgImg =
        makeButton("cmdBrowseBgImg", tr("&Browse"), frame, [this] { cmdBrowseBgImg_Click(); });
    cmdBrowseBgImg->setAccessibleName(tr("Browse for background image"));
    GridOf(frame)->addWidget(cmdBrowseBgImg, GridOf(frame)->rowCount() - 1, kButtonColumn);
    m_hBgColor = addColor(frame, "HBgColor", tr("&Highlight Color:"), tr("S&elect Color"),
                          tr("Background highlight color"), &PropertyDialog::txtHBgColor_LostFocus,
                          &PropertyDialog::cmdHBgColor_Click);
    m_nBgColor = addColor(frame, "NBgColor", tr("Nor&mal Color:"), tr("Se&lect Color"),
                          tr("Background normal color"), &PropertyDialog::txtNBgColor_LostFocus,
                          &PropertyDialog::cmdNBgColor_Click);
    return frame;
}

QGroupBox* PropertyDialog::makeFontFrame(const QString& tooltip) {
    QGroupBox* frame = makeFrame("FrameFont", tr("Font Settings"));
    auto* lblFontDisplay = new QLabel(tr("&Font:"), frame);
    lblFontDisplay->setObjectName("lblFontDisplay");
    lblFontDisplay->setToolTip(tooltip);
    QPushButton* cmdFont =
        makeButton("cmdFont", tr("Select Fo&nt"), frame, [this] { cmdFont_Click(); });
    cmdFont->setToolTip(tooltip);
    lblFontDisplay->setBuddy(cmdFont);
    const int row = GridOf(frame)->rowCount();
    GridOf(frame)->addWidget(lblFontDisplay, row, kLabelColumn);
    GridOf(frame)->addWidget(cmdFont, row, kBoxColumn, Qt::AlignLeft);
    return frame;
}

void PropertyDialog::addRow(QGroupBox* frame, QPushButton* button) {
    GridOf(frame)->addWidget(button, GridOf(frame)->rowCount(), kBoxColumn, 1,
                             kColumns - kBoxColumn, Qt::AlignLeft);
}

void PropertyDialog::addPreviews(QGroupBox* frame) {
    m_hFtColor = addColor(frame, "HFtColor", tr("Hi&ghlight Color:"), tr("Selec&t Color"),
                          tr("Font highlight color"), &PropertyDialog::txtHFtColor_LostFocus,
                          &PropertyDialog::cmdHFtColor_Click);
    m_nFtColor = addColor(frame, "NFtColor", tr("Norm&al Color:"), tr("Select Colo&r"),
                          tr("Font normal color"), &PropertyDialog::txtNFtColor_LostFocus,
                          &PropertyDialog::cmdNFtColor_Click);
    lblPreviewNormal = new PreviewLabel("lblPreviewNormal", tr("Normal"), frame);
    lblFont = new PreviewLabel("lblFont", tr("Highlighted"), frame);
    auto* previews = new QHBoxLayout;
    previews->addWidget(lblPreviewNormal);
    previews->addWidget(lblFont);
    GridOf(frame)->addLayout(previews, GridOf(frame)->rowCount(), kLabelColumn, 1, kColumns);
}

QPushButton* PropertyDialog::makeButton(const QString& name, const QString& caption,
                                        QWidget* parent, const std::function<void()>& click) {
    QPushButton* button = makeDialogButton(name, caption, parent);
    connect(button, &QPushButton::clicked, this, [this, click] {
        leaveFocusedEdit(*this);
        click();
    });
    return button;
}

void PropertyDialog::arrange(QBoxLayout* left, QBoxLayout* right) {
    auto* frames = new QHBoxLayout;
    frames->addLayout(left);
    frames->addLayout(right, 1);
    QPushButton* cmdOK = makeButton("cmdOK", tr("O&K"), this, [this] { cmdOK_Click(); });
    cmdOK->setDefault(true);
    auto* closing = new QHBoxLayout;
    closing->addStretch();
    closing->addWidget(cmdOK);
    closing->addWidget(makeButton("cmdCancel", tr("&Cancel"), this, [this] { cmdCancel_Click(); }));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(frames, 1);
    layout->addLayout(closing);
}

void PropertyDialog::showBoxes(const MenuProp& prop) {
    m_bgImg.edit->showValue(prop.BgImg);
    m_columns.edit->showValue(prop.Columns);
    m_hBgColor.edit->showValue(prop.HBgColor);
    m_hFtColor.edit->showValue(prop.HFtColor);
    m_nBgColor.edit->showValue(prop.NBgColor);
    m_nFtColor.edit->showValue(prop.NFtColor);
    m_spacing.edit->showValue(prop.Spacing);
    const bool isInList = prop.Position >= 0 && prop.Position < cboPosition->count();
    cboPosition->setCurrentIndex(isInList ? prop.Position : -1);
}

void PropertyDialog::storeBoxes(MenuProp& prop) const {
    prop.BgImg = m_bgImg.edit->value();
    prop.Columns = m_columns.edit->value();
    prop.HBgColor = m_hBgColor.edit->value();
    prop.HFtColor = m_hFtColor.edit->value();
    prop.NBgColor = m_nBgColor.edit->value();
    prop.NFtColor = m_nFtColor.edit->value();
    prop.Spacing = m_spacing.edit->value();
    prop.Position = static_cast<std::int16_t>(cboPosition->currentIndex());
}

std::int32_t PropertyDialog::previewColor(ColorField PropertyDialog::*field) const {
    const PropertyEdit* edit = (this->*field).edit;
    if (edit->text().isEmpty() && m_defaults != nullptr)
        return m_defaults->previewColor(field);
    return HexToColor(edit->text().toStdString());
}

FontChoice PropertyDialog::FontOf(const MenuProp& prop) {
    const double points = LeadingNumber(prop.FontSize);
    return {prop.FontFamily,
            points > 0 ? static_cast<float>(std::min(points, kMaxPoints)) : kUsualPoints,
            prop.FontStyle, prop.FontWeight};
}

void PropertyDialog::setPreviewFont(const FontChoice& font) {
    lblFont->setFontChoice(font);
    lblPreviewNormal->setFontChoice(font);
}

void PropertyDialog::storePreviewFont(MenuProp& prop) const {
    const FontChoice& font = lblFont->fontChoice();
    prop.FontFamily = font.name;
    prop.FontSize = WholePoints(font.points);
    prop.FontStyle = font.isItalic;
    prop.FontWeight = font.isBold;
}

bool PropertyDialog::chooseFont() {
    const std::optional<FontChoice> chosen = m_host.dialogs.chooseFont(cdFont);
    if (!chosen.has_value())
        return false;
    cdFont = *chosen;
    setPreviewFont(*chosen);
    return true;
}

void PropertyDialog::Font_Set() {
    const FontChoice& font = lblFont->fontChoice();
    std::string text = font.name + " " + WholePoints(font.points) + "pt";
    if (font.isItalic)
        text += " italic";
    if (font.isBold)
        text += " bold";
    lblFont->setText(QString::fromStdString(text));
}

void PropertyDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous())
        cboPosition->setFocus(Qt::OtherFocusReason);
}

void PropertyDialog::txtHBgColor_LostFocus() {
    lblFont->setBackColor(previewColor(&PropertyDialog::m_hBgColor));
}

void PropertyDialog::txtNBgColor_LostFocus() {
    lblPreviewNormal->setBackColor(previewColor(&PropertyDialog::m_nBgColor));
}

void PropertyDialog::txtHFtColor_LostFocus() {
    lblFont->setForeColor(previewColor(&PropertyDialog::m_hFtColor));
}

void PropertyDialog::txtNFtColor_LostFocus() {
    lblPreviewNormal->setForeColor(previewColor(&PropertyDialog::m_nFtColor));
}

void PropertyDialog::cmdHBgColor_Click() {
    m_hBgColor.Color_Pick(m_host.dialogs);
    txtHBgColor_LostFocus();
}

void PropertyDialog::cmdNBgColor_Click() {
    m_nBgColor.Color_Pick(m_host.dialogs);
    txtNBgColor_LostFocus();
}

void PropertyDialog::cmdHFtColor_Click() {
    m_hFtColor.Color_Pick(m_host.dialogs);
    txtHFtColor_LostFocus();
}

void PropertyDialog::cmdNFtColor_Click() {
    m_nFtColor.Color_Pick(m_host.dialogs);
    txtNFtColor_LostFocus();
}

void PropertyDialog::cmdCancel_Click() {
    reject();
}

void PropertyDialog::cmdBrowseBgImg_Click() {
    FileDialogRequest request;
    request.title = "Browse";
    request.filter = kImageFilter;
    request.filterIndex = kGifFilter;
    request.folder = m_host.document.SavePath();
    const std::string path = m_host.dialogs.openFile(request);
    if (!path.empty())
        m_bgImg.edit->setText(
            QString::fromStdString(ToRelativeURL(m_host.document.SavePath(), path)));
}

}  // namespace zev
