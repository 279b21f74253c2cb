// SPDX-License-Identifier: MIT
#include "dialogs/property_form.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <utility>
#include <variant>

#include "dialogs/color_swatch.h"
#include "dialogs/dialog_button.h"
#include "model/menu_properties.h"

namespace zev {

PropertyForm::PropertyForm(const DialogHost& host, const QString& name, const QString& title,
                           QWidget* parent)
    : QDialog(parent), m_host(host) {
    setObjectName(name);
    setWindowTitle(title);
}

QGroupBox* PropertyForm::makeFrame(const QString& name, const QString& title) {
    auto* frame = new QGroupBox(title, this);
    frame->setObjectName(name);
    auto* grid = new QGridLayout(frame);
    grid->setColumnStretch(kBoxColumn, 1);
    return frame;
}

QGridLayout* PropertyForm::gridOf(const QGroupBox* frame) {
    return static_cast<QGridLayout*>(frame->layout());
}

QGridLayout* PropertyForm::addGrid(QBoxLayout* parts, int stretch) {
    auto* grid = new QGridLayout;
    grid->setColumnStretch(kBoxColumn, 1);
    parts->addLayout(grid, stretch);
    return grid;
}

PropertyEdit* PropertyForm::addBox(QGridLayout* grid, const PropertyBox& box, int end) {
    const PropertyField field =
        PropertyField::make(box.name, box.caption, box.tooltip, grid->parentWidget());
    const int row = grid->rowCount();
    grid->addWidget(field.label, row, kLabelColumn);
    grid->addWidget(field.edit, row, kBoxColumn, 1, end - kBoxColumn);
    if (box.check)
        field.edit->setCheck(box.check, box.checkedWhen, m_host.messages);
    m_boxes.push_back({field.edit, box.member});
    return field.edit;
}

void PropertyForm::addBoxes(QGridLayout* grid, std::span<const PropertyBox> boxes) {
    for (const PropertyBox& box : boxes)
        addBox(grid, box);
}

PropertyEdit* PropertyForm::addColor(QGroupBox* frame, const QString& name,
                                     std::string MenuProp::*member, const ColorTexts& texts) {
    const ColorField field = ColorField::make(name, texts, frame);
    const int row = gridOf(frame)->rowCount();
    gridOf(frame)->addWidget(field.label, row, kLabelColumn);
    gridOf(frame)->addWidget(field.edit, row, kBoxColumn);
    gridOf(frame)->addWidget(field.swatch, row, kSwatchColumn);
    gridOf(frame)->addWidget(field.button, row, kButtonColumn);
    connect(field.button, &QPushButton::clicked, this, [this, field] {
        leaveFocusedEdit(*this);
        field.Color_Pick(m_host.dialogs);
        emit field.edit->left();
    });
    m_boxes.push_back({field.edit, member});
    return field.edit;
}

QPushButton* PropertyForm::makeButton(const QString& name, const QString& caption, QWidget* parent,
                                      const std::function<void()>& click) {
    QPushButton* button = makeDialogButton(name, caption, parent);
    connect(button, &QPushButton::clicked, this, [this, click] {
        leaveFocusedEdit(*this);
        click();
    });
    return button;
}

void PropertyForm::addClosingButtons(QBoxLayout* row) {
    QPushButton* cmdOK = makeButton("cmdOK", tr("O&K"), this, [this] { cmdOK_Click(); });
    cmdOK->setDefault(true);
    // The box being edited is not left first: nobody wants to hear about values that are thrown
    // away.
    QPushButton* cmdCancel = makeDialogButton("cmdCancel", tr("&Cancel"), this);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    row->addStretch();
    row->addWidget(cmdOK);
    row->addWidget(cmdCancel);
}

void PropertyForm::showBoxes(const MenuProp& prop) {
    for (const Box& box : m_boxes)
        box.edit->showValue(prop.*box.member);
}

void PropertyForm::storeBoxes(MenuProp& prop) const {
    for (const Box& box : m_boxes)
        prop.*box.member = box.edit->value();
}

MenuProp PropertyForm::shown() const {
    MenuProp prop;
    storeBoxes(prop);
    return prop;
}

bool PropertyForm::focusBoxAtStart(std::string_view property) {
    const MenuPropertyRow* const row = findMenuProperty(property);
    const auto* text = row ? std::get_if<TextMember>(&row->member) : nullptr;
    for (const Box& box : m_boxes)
        if (text && box.member == text->member)
            m_startBox = box.edit;
    return m_startBox != nullptr;
}

bool PropertyForm::event(QEvent* event) {
    const bool isHandled = QDialog::event(event);
    if (event->type() == QEvent::WindowActivate)
        if (PropertyEdit* box = std::exchange(m_startBox, nullptr)) {
            box->setFocus();
            box->selectAll();
        }
    return isHandled;
}

PropertyEdit* PropertyForm::firstBox() const {
    return m_boxes.front().edit;
}

}  // namespace zev
