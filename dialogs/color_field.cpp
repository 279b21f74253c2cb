#include "dialogs/color_field.h"

#include <QPushButton>

#include "dialogs/color_swatch.h"
#include "dialogs/dialog_button.h"
#include "model/input_rules.h"
#include "platform/common_dialogs.h"

namespace zev {

ColorField ColorField::make(const QString& name, const QString& caption,
                            const QString& buttonCaption, const QString& accessibleName,
                            const QString& tooltip, QWidget* parent) {
    ColorField field{PropertyField::make(name, caption, accessibleName, tooltip, parent)};
    field.swatch = new ColorSwatch(parent);
    field.swatch->setAccessibleName(QObject::tr("%1 as shown").arg(accessibleName));
    field.button = makeDialogButton("cmd" + name, buttonCaption, parent);
    field.button->setAccessibleName(
        QObject::tr("Select %1").arg(accessibleName.left(1).toLower() + accessibleName.mid(1)));
    QObject::connect(field.edit, &QLineEdit::textChanged, field.swatch,
                     [swatch = field.swatch](const QString& colorText) {
                         swatch->setColor(ColorOf(colorText.toStdString()));
                     });
    return field;
}

void ColorField::Color_Pick(CommonDialogs& dialogs) const {
    if (const auto color = dialogs.chooseColor(HexToColor(edit->text().toStdString())))
        edit->setText(QString::fromStdString(ColorToHex(*color)));
}

}  // namespace zev
