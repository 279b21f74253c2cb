// SPDX-License-Identifier: MIT
#include "app/frm_about.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "text/program_name.h"

namespace zev {

namespace {

constexpr int kIconSizePx = 64;
constexpr double kNameSizeFactor = 1.6;

QLabel* makeNameLabel() {
    auto* label = new QLabel(QString(kProgramName));
    label->setObjectName("lblName");
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * kNameSizeFactor);
    label->setFont(font);
    return label;
}

}  // namespace

frmAbout::frmAbout(const VendorAddresses& vendor,
                   std::function<void(const std::string&)> openAddress, QWidget* parent)
    : QDialog(parent), m_openAddress(std::move(openAddress)) {
    setObjectName("frmAbout");
    setWindowTitle(QString("About ") + kProgramName);

    auto* version = new QLabel("Version " ZEV_VERSION);
    version->setObjectName("lblVersion");

    auto* links = new QFormLayout;
    links->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    const QString mail = QString::fromStdString(vendor.mail);
    links->addRow("Web site:",
                  makeLink("cmdWebSite", vendor.webSite, QString::fromStdString(vendor.webSite)));
    links->addRow("E-mail:",
                  makeLink("cmdEMail", vendor.isEmpty() ? "" : "mailto:" + vendor.mail, mail));

    auto* texts = new QVBoxLayout;
    texts->addWidget(makeNameLabel());
    texts->addWidget(version);
    texts->addSpacing(12);
    texts->addLayout(links);

    auto* content = new QHBoxLayout;
    content->setSpacing(18);
    if (const QIcon icon = QApplication::windowIcon(); !icon.isNull()) {
        auto* picture = new QLabel;
        picture->setPixmap(icon.pixmap(QSize(kIconSizePx, kIconSizePx), devicePixelRatioF()));
        content->addWidget(picture, 0, Qt::AlignTop);
    }
    content->addLayout(texts, 1);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    QPushButton* cmdOK = buttons->button(QDialogButtonBox::Ok);
    cmdOK->setObjectName("cmdOK");
    cmdOK->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 18, 18, 14);
    layout->setSpacing(18);
    layout->addLayout(content);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    cmdOK->setFocus();
}

/// A button that looks like a link: a label with a link in it takes a second press of Tab before
/// Enter follows it. In the colour of text, as many dark palettes keep a dark blue for links.
QPushButton* frmAbout::makeLink(const QString& name, const std::string& address,
                                QString shownText) {
    if (address.empty())
        shownText = "see the manual";
    auto* link = new QPushButton(shownText);
    link->setObjectName(name);
    link->setFlat(true);
    link->setCursor(Qt::PointingHandCursor);
    QFont font = link->font();
    font.setUnderline(true);
    link->setFont(font);
    connect(link, &QPushButton::clicked, this, [this, address] { follow(address); });
    return link;
}

void frmAbout::follow(const std::string& address) {
    // In front of the manual's window this box would keep it from being used.
    if (address.empty())
        accept();
    m_openAddress(address);
}

}  // namespace zev
