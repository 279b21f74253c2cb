// SPDX-License-Identifier: MIT
// The row for a colour: text box, swatch, and the button that asks the colour dialog.

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSet>

#include "dialog_desk.h"
#include "dialogs/color_field.h"
#include "dialogs/color_swatch.h"
#include "tests/app/theme_palettes.h"

using namespace zev;

namespace {

/// A window with one colour row.
struct ColorDesk : DialogDesk {
    ColorDesk() {
        auto* layout = new QHBoxLayout(&window);
        layout->addWidget(field.label);
        layout->addWidget(field.edit);
        layout->addWidget(field.swatch);
        layout->addWidget(field.button);
        show(window);
    }
    QString described() const { return field.swatch->accessibleDescription(); }

    QWidget window;
    ColorField field =
        ColorField::make("HBgColor",
                         {"&Highlight Color:", "Select &Color", "Background highlight color",
                          "Select background highlight color", "Tooltip"},
                         &window);
};

/// The colours that are painted inside the swatch's border.
QSet<QRgb> paintedColors(QWidget& swatch) {
    const QImage image = swatch.grab().toImage();
    const int border = qCeil(image.devicePixelRatio());
    QSet<QRgb> colors;
    for (int y = border; y < image.height() - border; ++y)
        for (int x = border; x < image.width() - border; ++x)
            colors.insert(image.pixel(x, y));
    return colors;
}

}  // namespace

class test_color_field : public QObject {
    Q_OBJECT

  private slots:
    void theWidgetsHaveTheirNames() {
        ColorDesk desk;
        QCOMPARE(desk.field.label->objectName(), QString("lblHBgColor"));
        QCOMPARE(desk.field.label->text(), QString("&Highlight Color:"));
        QCOMPARE(desk.field.label->buddy(), desk.field.edit);
        QCOMPARE(desk.field.edit->objectName(), QString("txtHBgColor"));
        QCOMPARE(desk.field.edit->accessibleName(), QString("Background highlight color"));
        QCOMPARE(desk.field.edit->toolTip(), QString("Tooltip"));
        QCOMPARE(desk.field.button->objectName(), QString("cmdHBgColor"));
        QCOMPARE(desk.field.button->text(), QString("Select &Color"));
        QCOMPARE(desk.field.button->accessibleName(), QString("Select background highlight color"));
    }

    void theSwatchFollowsTheText_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("description");
        QTest::newRow("a colour") << "#FF8000"
                                  << "#FF8000";
        QTest::newRow("lower case") << "#ff8000"
                                    << "#FF8000";
        QTest::newRow("short") << "#12"
                               << "#120000";
        QTest::newRow("transparent") << "transparent"
                                     << "none";
        QTest::newRow("no digits") << "#GG"
                                   << "none";
        QTest::newRow("only the sign") << "#"
                                       << "none";
        QTest::newRow("empty") << ""
                               << "none";
    }
    void theSwatchFollowsTheText() {
        QFETCH(QString, text);
        QFETCH(QString, description);
        ColorDesk desk;
        desk.type(desk.window, "txtHBgColor", "#123456");
        QCOMPARE(desk.described(), QString("#123456"));
        desk.type(desk.window, "txtHBgColor", text);
        QCOMPARE(desk.described(), description);
        QCOMPARE(desk.field.edit->text(), text);

        // Also when the text is stored or pasted.
        desk.field.edit->showValue("#123456");
        QCOMPARE(desk.described(), QString("#123456"));
        desk.field.edit->showValue(text.toStdString());
        QCOMPARE(desk.described(), description);
        desk.field.edit->showValue("");
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(desk.field.edit, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.described(), description);
    }

    void theSwatchSaysNoneBeforeAnythingIsShown() {
        ColorDesk desk;
        QCOMPARE(desk.described(), QString("none"));
        QCOMPARE(desk.field.swatch->accessibleName(),
                 QString("Background highlight color as shown"));
    }

    void theSwatchIsPaintedInItsColorAndHatchedForNone_data() {
        QTest::addColumn<bool>("isDark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }
    void theSwatchIsPaintedInItsColorAndHatchedForNone() {
        QFETCH(bool, isDark);
        const QPalette before = QApplication::palette();
        QApplication::setPalette(isDark ? darkPalette() : lightPalette());
        ColorDesk desk;
        desk.field.edit->showValue("#FF8000");
        QCOMPARE(paintedColors(*desk.field.swatch), QSet<QRgb>{qRgb(0xFF, 0x80, 0)});
        desk.field.edit->showValue("transparent");
        QCOMPARE(paintedColors(*desk.field.swatch),
                 (QSet<QRgb>{desk.window.palette().color(QPalette::Base).rgb(),
                             desk.window.palette().color(QPalette::WindowText).rgb()}));
        QApplication::setPalette(before);
    }

    void theColorDialogIsPreselectedWithTheTextsColor_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("initial");
        QTest::newRow("a colour") << "#FF8000" << 0x0080FF;
        QTest::newRow("transparent") << "transparent" << 0;
        QTest::newRow("empty") << "" << 0;
    }
    void theColorDialogIsPreselectedWithTheTextsColor() {
        QFETCH(QString, text);
        QFETCH(int, initial);
        ColorDesk desk;
        desk.field.edit->showValue(text.toStdString());
        desk.dialogs.expectChooseColor(std::nullopt);
        desk.field.Color_Pick(desk.dialogs);
        QCOMPARE(desk.dialogs.recordedColors(), std::vector<std::int32_t>{initial});
    }

    void aChosenColorIsWrittenInUpperCase() {
        ColorDesk desk;
        desk.type(desk.window, "txtHBgColor", "transparent");
        desk.dialogs.expectChooseColor(0xEFCDAB);
        desk.field.Color_Pick(desk.dialogs);
        QCOMPARE(desk.field.edit->text(), QString("#ABCDEF"));
        QCOMPARE(desk.described(), QString("#ABCDEF"));
    }

    void aCancelledDialogLeavesTheTextAsItIs() {
        ColorDesk desk;
        desk.type(desk.window, "txtHBgColor", "#ff8");
        desk.dialogs.expectChooseColor(std::nullopt);
        desk.field.Color_Pick(desk.dialogs);
        QCOMPARE(desk.field.edit->text(), QString("#ff8"));
    }
};

QTEST_MAIN(test_color_field)
#include "test_color_field.moc"
