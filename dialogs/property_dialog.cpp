// SPDX-License-Identifier: MIT
#include "dialogs/property_dialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <algorithm>
#include <utility>

#include "dialogs/combo_wheel.h"
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

}  // namespace

PropertyDialog::PropertyDialog(const DialogHost& host, const QString& name, const QString& title,
                               const PropertyDialog* defaults, QWidget* parent)
    : PropertyForm(host, name, title, parent),
      m_defaults(defaults),
      lblPreviewNormal(new PreviewLabel("lblPreviewNormal", tr("Normal"), this)),
      lblFont(new PreviewLabel("lblFont", tr("Highlighted"), this)) {}

void PropertyDialog::addPosition(QGroupBox* frame, const QString& caption, const QString& tooltip) {
    auto* label = new QLabel(caption, frame);
    label->setObjectName("lblPosition");
    cboPosition = new QComboBox(frame);
    cboPosition->setObjectName("cboPosition");
    cboPosition->setAccessibleName(QString(caption).remove(u'&').remove(u':'));
    cboPosition->setToolTip(tooltip);
    cboPosition->addItems({"", tr("Right"), tr("Bottom"), tr("Left"), tr("Top")});
    cboPosition->setItemData(0, tr("Not set"), Qt::AccessibleTextRole);
    keepWheelForFocus(*cboPosition);
    label->setBuddy(cboPosition);
    const int row = gridOf(frame)->rowCount();
    gridOf(frame)->addWidget(label, row, kLabelColumn);
    gridOf(frame)->addWidget(cboPosition, row, kBoxColumn, 1, kColumns - kBoxColumn);
}

void PropertyDialog::addPreviewedColor(QGroupBox* frame, const QString& name,
                                       const PreviewedColor& color, ColorTexts texts) {
    texts.tooltip =
        tr("Color in RGB hexadecimal (#FFFFFF). Set the value to transparent for transparency "
           "effect");
    m_colors.push_back(color);
    connect(addColor(frame, name, color.member, texts), &PropertyEdit::left, this,
            [this, color] { color.preview(shown(), shownDefaults()); });
}

QGroupBox* PropertyDialog::makeBackgroundFrame() {
    QGroupBox* frame = makeFrame("FrameBackground", tr("Background Settings"));
    txtBgImg = addBox(gridOf(frame),
                      {"BgImg", tr("&Image:"), tr("Menu background image"), &MenuProp::BgImg},
                      kButtonColumn);
    txtBgImg->setMinimumWidth(kUrlWidth * fontMetrics().averageCharWidth());
    QPushButton* cmdBrowseBgImg =
        makeButton("cmdBrowseBgImg", tr("&Browse"), frame, [this] { cmdBrowseBgImg_Click(); });
    cmdBrowseBgImg->setAccessibleName(tr("Browse for background image"));
    gridOf(frame)->addWidget(cmdBrowseBgImg, gridOf(frame)->rowCount() - 1, kButtonColumn);
    addPreviewedColor(frame, "HBgColor",
                      {&MenuProp::HBgColor, lblFont, &PreviewLabel::setBackColor},
                      {tr("&Highlight Color:"), tr("S&elect Color"),
                       tr("Background highlight color"), tr("Select background highlight color")});
    addPreviewedColor(frame, "NBgColor",
                      {&MenuProp::NBgColor, lblPreviewNormal, &PreviewLabel::setBackColor},
                      {tr("Nor&mal Color:"), tr("Se&lect Color"), tr("Background normal color"),
                       tr("Select background normal color")});
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
    const int row = gridOf(frame)->rowCount();
    gridOf(frame)->addWidget(lblFontDisplay, row, kLabelColumn);
    gridOf(frame)->addWidget(cmdFont, row, kBoxColumn, Qt::AlignLeft);
    return frame;
}

void PropertyDialog::addRow(QGroupBox* frame, QPushButton* button) {
    gridOf(frame)->addWidget(button, gridOf(frame)->rowCount(), kBoxColumn, 1,
                             kColumns - kBoxColumn, Qt::AlignLeft);
}

void PropertyDialog::addPreviews(QGroupBox* frame) {
    addPreviewedColor(frame, "HFtColor",
                      {&MenuProp::HFtColor, lblFont, &PreviewLabel::setForeColor},
                      {tr("Hi&ghlight Color:"), tr("Selec&t Color"), tr("Font highlight color"),
                       tr("Select font highlight color")});
    addPreviewedColor(frame, "NFtColor",
                      {&MenuProp::NFtColor, lblPreviewNormal, &PreviewLabel::setForeColor},
                      {tr("Norm&al Color:"), tr("Select Colo&r"), tr("Font normal color"),
                       tr("Select font normal color")});
    auto* previews = new QHBoxLayout;
    previews->addWidget(lblPreviewNormal);
    previews->addWidget(lblFont);
    gridOf(frame)->addLayout(previews, gridOf(frame)->rowCount(), kLabelColumn, 1, kColumns);
}

void PropertyDialog::arrange(QBoxLayout* left, QBoxLayout* right, QWidget* below) {
    auto* frames = new QHBoxLayout;
    frames->addLayout(left);
    frames->addLayout(right, 1);
    auto* closing = new QHBoxLayout;
    addClosingButtons(closing);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(frames, 1);
    if (below)
        layout->addWidget(below);
    layout->addLayout(closing);
}

void PropertyDialog::showBoxes(const MenuProp& prop) {
    PropertyForm::showBoxes(prop);
    const bool isInList = prop.Position >= 0 && prop.Position < cboPosition->count();
    cboPosition->setCurrentIndex(isInList ? prop.Position : -1);
}

void PropertyDialog::storeBoxes(MenuProp& prop) const {
    PropertyForm::storeBoxes(prop);
    prop.Position = static_cast<std::int16_t>(cboPosition->currentIndex());
}

void PropertyDialog::PreviewedColor::preview(const MenuProp& prop, const MenuProp& defaults) const {
    const std::string& own = prop.*member;
    (label->*show)(HexToColor(own.empty() ? defaults.*member : own));
}

void PropertyDialog::previewColors(const MenuProp& prop, const MenuProp& defaults) {
    for (const PreviewedColor& color : m_colors)
        color.preview(prop, defaults);
}

void PropertyDialog::previewShownColors() {
    previewColors(shown(), shownDefaults());
}

MenuProp PropertyDialog::shownDefaults() const {
    return m_defaults != nullptr ? m_defaults->shown() : MenuProp();
}

FontChoice PropertyDialog::fontOf(const MenuProp& prop) {
    const double points = leadingNumber(prop.FontSize);
    return {prop.FontFamily,
            points > 0 ? static_cast<float>(std::min(points, kMaxPoints)) : kUsualPoints,
            prop.FontStyle, prop.FontWeight};
}

void PropertyDialog::setPreviewFont(const FontChoice& font) {
    lblFont->setFontChoice(font);
    lblPreviewNormal->setFontChoice(font);
}

const FontChoice& PropertyDialog::previewFont() const {
    return lblFont->fontChoice();
}

void PropertyDialog::storePreviewFont(MenuProp& prop) const {
    const FontChoice& font = previewFont();
    prop.FontFamily = font.name;
    prop.FontSize = wholePoints(font.points);
    prop.FontStyle = font.isItalic;
    prop.FontWeight = font.isBold;
}

bool PropertyDialog::chooseFont(const FontChoice& initial) {
    const std::optional<FontChoice> chosen = m_host.dialogs.chooseFont(initial);
    if (!chosen.has_value())
        return false;
    cdFont = *chosen;
    setPreviewFont(*chosen);
    return true;
}

void PropertyDialog::Font_Set() {
    const FontChoice& font = previewFont();
    std::string text = font.name + " " + wholePoints(font.points) + "pt";
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

void PropertyDialog::cmdBrowseBgImg_Click() {
    FileDialogRequest request;
    request.title = "Browse";
    request.filter = kImageFilter;
    request.filterIndex = kGifFilter;
    request.folder = m_host.document.SavePath();
    const std::string path = m_host.dialogs.openFile(request);
    if (!path.empty())
        txtBgImg->setText(QString::fromStdString(ToRelativeURL(m_host.document.SavePath(), path)));
}

}  // namespace zev
