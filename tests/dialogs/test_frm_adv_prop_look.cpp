// SPDX-License-Identifier: MIT
// Advanced Menu Properties: its controls, their names and order, and its size.

#include <QGroupBox>
#include <QPushButton>
#include <QSet>

#include "adv_prop_desk.h"

using namespace zev;

class test_frm_adv_prop_look : public QObject {
    Q_OBJECT

  private slots:
    void everyBoxHasItsLabelTooltipAndFrame_data() {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("tooltip");
        QTest::addColumn<QString>("frame");
        const auto row = [](const char* name, const char* label, const char* tooltip,
                            const char* frame) {
            QTest::newRow(name) << QString(label) << QString(tooltip) << QString(frame);
        };
        row("Divider", "Menu Divider:",
            "Horizontal menu divider. Set Spacing to at least 1 if divider is specified",
            "FrameAdvanced");
        row("HTMLBefore", "HTML Before:", "HTML code added before each menu item", "FrameAdvanced");
        row("HTMLAfter", "HTML After:", "HTML code added after each menu item", "FrameAdvanced");
        row("Target", "Target Frame:", "Default target frame or window of child menu hyperlinks",
            "FrameAdvanced");
        row("ItemBorder",
            "Item Border:", "Menu item border settings in CSS syntax (1px solid #FFFFFF)",
            "FrameAdvanced");
        row("MenuBorder", "Menu Border:", "Menu border settings in CSS syntax (1px solid #FFFFFF)",
            "FrameAdvanced");
        row("CellPadding", "Cell Padding:", "Padding around each menu item", "FrameAdvanced");
        row("Fade", "Fade Duration (0 - 5):",
            "Menu fade effect. 0: Fast. 5: Slow. decimal values allowed, e.g. 0.2", "FrameIE");
        row("Opacity", "Opacity (1 - 100):", "Menu opacity. 1: Transparent. 100: Opaque",
            "FrameIE");
        row("Shadow", "Shadow Color:", "Menu shadow color", "FrameIE");
    }
    void everyBoxHasItsLabelTooltipAndFrame() {
        QFETCH(QString, label);
        QFETCH(QString, tooltip);
        QFETCH(QString, frame);
        AdvDesk desk;
        const QString name = QTest::currentDataTag();
        auto& shownLabel = desk.find<QLabel>(desk.form(), "lbl" + name);
        QLineEdit& box = desk.box("txt" + name);
        QCOMPARE(shownLabel.text().remove('&'), label);
        QCOMPARE(shownLabel.buddy(), &box);
        QCOMPARE(box.toolTip(), tooltip);
        QCOMPARE(box.accessibleName(), label.chopped(1));
        QCOMPARE(box.parentWidget()->objectName(), frame);
    }

    void titleFramesAndButtonsAreNamed() {
        AdvDesk desk;
        QCOMPARE(desk.form().objectName(), QString("frmAdvProp"));
        QCOMPARE(desk.form().windowTitle(), QString("Advanced Menu Properties"));
        QCOMPARE(desk.find<QGroupBox>(desk.form(), "FrameAdvanced").title(),
                 QString("Advanced Menu Settings"));
        QCOMPARE(desk.find<QGroupBox>(desk.form(), "FrameIE").title(),
                 QString("IE Filter Effects"));
        const std::pair<const char*, const char*> buttons[] = {
            {"cmdShadow", "Select Color"},
            {"cmdCopy", "Copy Menu Properties"},
            {"cmdPaste", "Paste Menu Properties"},
            {"cmdOK", "OK"},
            {"cmdCancel", "Cancel"}};
        for (const auto& [name, caption] : buttons)
            QCOMPARE(desk.find<QPushButton>(desk.form(), name).text().remove('&'),
                     QString(caption));
    }

    void everyLabelAndButtonHasAnAccessKeyOfItsOwn() {
        AdvDesk desk;
        QStringList captions;
        for (const QLabel* label : desk.form().findChildren<QLabel*>())
            captions << label->text();
        for (const auto* button : desk.form().findChildren<QPushButton*>())
            captions << button->text();
        QCOMPARE(captions.size(), 15);
        QSet<QString> keys;
        for (const QString& caption : captions) {
            const QKeySequence key = QKeySequence::mnemonic(caption);
            QVERIFY2(!key.isEmpty(), qPrintable(caption));
            QVERIFY2(!keys.contains(key.toString()), qPrintable(caption));
            keys.insert(key.toString());
        }
    }

    void everyControlHasANameOfItsOwnForAssistiveTechnology() {
        AdvDesk desk;
        QSet<QString> names;
        for (const QWidget* widget : desk.form().findChildren<QWidget*>()) {
            if (qobject_cast<const QLabel*>(widget) != nullptr ||
                qobject_cast<const QGroupBox*>(widget) != nullptr)
                continue;
            QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
            QVERIFY2(!names.contains(widget->accessibleName()),
                     qPrintable(widget->accessibleName()));
            names.insert(widget->accessibleName());
        }
        QCOMPARE(names.size(), 16);
        QVERIFY(names.contains("Select Shadow Color"));
    }

    void tabGoesThroughTheControlsAsTheyAreRead() {
        AdvDesk desk;
        const QStringList order = {"txtDivider",    "txtHTMLBefore", "txtHTMLAfter",   "txtTarget",
                                   "txtItemBorder", "txtMenuBorder", "txtCellPadding", "txtFade",
                                   "txtOpacity",    "txtShadow",     "cmdShadow",      "cmdCopy",
                                   "cmdPaste",      "cmdOK",         "cmdCancel"};
        for (const QString& name : order) {
            QCOMPARE(desk.focused(), name);
            desk.press(Qt::Key_Tab);
        }
        QCOMPARE(desk.focused(), order.front());
    }

    void itFitsASmallScreenAndShowsLongBorders() {
        AdvDesk desk;
        const QSize size = desk.form().sizeHint();
        QVERIFY2(size.width() <= 1024 && size.height() <= 768 - 40,
                 qPrintable(QString("%1 x %2").arg(size.width()).arg(size.height())));
        const int needed =
            desk.form().fontMetrics().horizontalAdvance("1px solid #FFFFFF &nbsp;&nbsp;");
        QVERIFY(desk.box("txtItemBorder").width() > needed);
        QVERIFY(desk.box("txtShadow").width() >
                desk.form().fontMetrics().horizontalAdvance("transparent"));
    }
};

QTEST_MAIN(test_frm_adv_prop_look)
#include "test_frm_adv_prop_look.moc"
