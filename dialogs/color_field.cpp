// SPDX-License-Identifier: MIT
#include "dialogs/color_field.h"

#include <QPushButton>

#include "dialogs/color_swatch.h"
#include "dialogs/dialog_button.h"
#include "model/input_rules.h"
#include "platform/common_dialogs.h"

namespace zev {

ColorField ColorField::make(const QString& name, const ColorTexts& texts, QWidget* parent) {
    ColorField field{PropertyField::make(name, texts.caption, texts.tooltip, parent)};
    field.edit->setAccessibleName(texts.spoken);
    field.swatch = new ColorSwatch(parent);
    field.swatch->setAccessibleName(QObject::tr("%1 as shown").arg(texts.spoken));
    field.button = makeDialogButton("cmd" + name, texts.button, parent);
    field.button->setAccessibleName(texts.spokenButton);
    QObject::connect(field.edit, &QLineEdit::textChanged, field.swatch,
                     [swatch = field.swatch](const QString& colorText) {
                         swatch->setColor(colorOf(colorText.toStdString()));
                     });
    return field;
}

void ColorField::Color_Pick(CommonDialogs& dialogs) const {
    if (const auto color = dialogs.chooseColor(HexToColor(edit->text().toStdString())))
        edit->setText(QString::fromStdString(ColorToHex(*color)));
}

}  // namespace zev
