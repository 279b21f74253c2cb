// SPDX-License-Identifier: MIT
// The wizard's window and its steps.

#include <QAccessible>
#include <QCheckBox>
#include <QGroupBox>
#include <QMouseEvent>
#include <QRadioButton>

#include "wizard_desk.h"

using namespace zev;

class test_frm_integrator : public QObject {
    Q_OBJECT

  private slots:
    // What is shown

    void theWindowAndItsFramesHaveTheirTitles() {
        WizardDesk desk;
        QCOMPARE(desk.wizard.windowTitle(), QString("ZEVMenu Integrator"));
        const QStringList titles{
            "", "Step 1 of 3", "Step 2 of 3", "Step 3 of 3", "Step 2 of 3", "Step 3 of 3"};
        for (int step = 0; step < 6; ++step)
            QCOMPARE(desk.named<QGroupBox>(QString("frm_%1").arg(step)).title(), titles[step]);
    }

    void eachControlHasItsText_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        const QList<std::pair<const char*, const char*>> texts{
            {"lblWelcome2", "Please click Next to continue or Exit to return to Menu Creator"},
            {"lblFrm1",
             "Please enter the filename(s) of the web page where you want to integrate the menu. "
             "Multiple files can be selected"},
            {"lblInputFile", "Filename:"},
            {"BtnInputFile", "Browse"},
            {"lblPathname", "Path:"},
            {"chkBackup",
             "Backup files (Recommended). The .bak extension will be appended to the filename. "
             "Existing backups will be overwritten."},
            {"chkKeepScripts", "Keep other scripts on the page"},
            {"lblFrm3",
             "Specify the path of the menu library files, i.e. zevmenu_loader.js, zevmenu_ns4.js "
             "and zevmenu_dom.js"},
            {"lblPath", "Path:"},
            {"btnPath", "Browse"},
            {"lblFrm5",
             "Specify the JavaScript file containing the menu definition, e.g. menu_def.js."},
            {"lblMenuDef", "Filename:"},
            {"btnMenuDef", "Browse"},
            {"lblFrm6", "Select how you want the menu to appear on your web page"},
            {"lblInt", "Menu:"},
            {"lblMenuList", "Popup Menu:"},
            {"optMouse", "Menu appears beside mouse cursor"},
            {"optXY", "Menu appears at the following position"},
            {"lblX", "X:"},
            {"lblY", "Y:"},
            {"Label1", "Menu Integration Report"},
            {"btnSaveReport", "Save"},
            {"lblLinkCode", "Copy the code example below to add the menu to hyperlinks:"},
            {"btnBack", "<< Back"},
            {"btnNext", "Next >>"},
            {"btnExit", "Exit"}};
        for (const auto& [name, text] : texts)
            QTest::newRow(name) << name << text;
    }
    void eachControlHasItsText() {
        QFETCH(QString, name);
        WizardDesk desk;
        QString text = desk.named<QWidget>(name).property("text").toString();
        QTEST(text.remove('&').replace('\n', ' '), "text");
    }

    void theWelcomeSaysWhenToRunTheWizard() {
        WizardDesk desk;
        QVERIFY2(desk.label("lblWelcome1")
                     .startsWith("The Menu Integrator integrates ZEVMenu to existing web pages and "
                                 "should be launched only after you have configured and saved the "
                                 "menu file to the appropriate web folder. There is no need to "
                                 "re-run the wizard after each modification unless changes have "
                                 "been made to the paths of the files, \n\n"),
                 qPrintable(desk.label("lblWelcome1")));
        QVERIFY(desk.label("lblWelcome1").contains("support@zevmenu.example"));
    }

    void theWelcomeNamesTheHelpEntryWhereTheProgramIsOfNoSite() {
        WizardDesk desk{VendorAddresses{}};
        QVERIFY2(desk.label("lblWelcome1")
                     .endsWith("\n\nPlease tell us about problems: Help > Support & Upgrades tells "
                               "how."),
                 qPrintable(desk.label("lblWelcome1")));
    }

    void theKindsOfMenuAndTheTooltips() {
        WizardDesk desk;
        QCOMPARE(desk.list("cboIntegration").count(), 2);
        QCOMPARE(desk.list("cboIntegration").itemText(0), QString("Horizontal or vertical menu"));
        QCOMPARE(desk.list("cboIntegration").itemText(1),
                 QString("Popup menu appearing on mouse events!"));
        QCOMPARE(desk.list("cboIntegration").toolTip(), QString("Horizontal or vertical menu"));
        QCOMPARE(desk.list("cboMenuList").toolTip(), QString("Select submenu"));
    }

    void noTextIsCutOffByALargeFont() {
        WizardDesk desk;
        QFont font = desk.wizard.font();
        font.setPointSize(3 * font.pointSize());
        desk.wizard.setFont(font);
        const auto cutOff = [&] {
            QStringList names;
            for (const QLabel* label : desk.wizard.findChildren<QLabel*>())
                if (label->isVisible() && label->height() < label->heightForWidth(label->width()))
                    names.append(label->objectName());
            return names.join(' ');
        };
        desk.next();
        const int startHeight = desk.wizard.height();
        desk.choosePages({"a.htm"});
        QTRY_COMPARE(cutOff(), QString());
        desk.next();
        desk.type("txtPath", "it's");
        desk.type("txtMenuDef", "D:\\m.js");
        QTRY_COMPARE(cutOff(), QString());
        QVERIFY(desk.wizard.height() > startHeight);
        desk.choosePopup();
        for (int step = 3; step < 6; ++step) {
            desk.next();
            QCOMPARE(desk.shownFrames(), QList<int>{step});
            QTRY_COMPARE(cutOff(), QString());
        }
    }

    void eachStepsAccessKeysDoNotClash() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.choosePopup();
        desk.next(2);
        for (int step = 5; step >= 0; --step) {
            QCOMPARE(desk.shownFrames(), QList<int>{step});
            QStringList keys = desk.accessKeys<QPushButton>() + desk.accessKeys<QCheckBox>() +
                               desk.accessKeys<QRadioButton>() + desk.accessKeys<QLabel>();
            const QString all = keys.join(' ');
            keys.removeDuplicates();
            QCOMPARE(keys.join(' '), all);
            desk.click("btnBack");
        }
    }

    void theTabKeyGoesRightAndDown() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.choosePopup();
        desk.click("optXY");
        desk.type("txtX", "10");
        desk.type("txtY", "20");
        desk.next(2);
        const auto placeOf = [&](const QWidget& control) {
            return QRect(control.mapTo(&desk.wizard, QPoint()), control.size());
        };
        const QString buttons = " btnBack btnNext btnExit";
        const QStringList controls{
            buttons.trimmed(),
            "comboFiles BtnInputFile txtPathname chkBackup chkKeepScripts" + buttons,
            "txtPath btnPath txtMenuDef btnMenuDef" + buttons,
            "cboIntegration cboMenuList optXY txtX txtY" + buttons,
            "txtReport btnSaveReport" + buttons,
            "txtCode btnCopyCode txtLinkCode btnCopyLinkCode" + buttons};
        for (int step = 5; step >= 0; --step) {
            desk.button("btnExit").setFocus();
            QTest::keyClick(&desk.wizard, Qt::Key_Tab);
            QStringList names{desk.wizard.focusWidget()->objectName()};
            while (desk.wizard.focusWidget()->objectName() != "btnExit") {
                const QRect before = placeOf(*desk.wizard.focusWidget());
                QTest::keyClick(desk.wizard.focusWidget(), Qt::Key_Tab);
                const QWidget& control = *desk.wizard.focusWidget();
                const QRect place = placeOf(control);
                const bool isInRow =
                    place.top() <= before.bottom() && place.bottom() >= before.top();
                QVERIFY2(
                    place.top() > before.bottom() || (isInRow && place.left() > before.right()),
                    qPrintable(control.objectName()));
                names.append(control.objectName());
            }
            QCOMPARE(names.join(' '), controls[step]);
            desk.click("btnBack");
        }
    }

    void everyFieldHasALabelAndEveryControlANameOfItsOwn() {
        WizardDesk desk;
        QSet<QWidget*> labelled;
        for (const QLabel* label : desk.wizard.findChildren<QLabel*>())
            labelled.insert(label->buddy());
        for (const char* name :
             {"comboFiles", "txtPathname", "txtPath", "txtMenuDef", "cboIntegration", "cboMenuList",
              "txtX", "txtY", "txtReport", "txtLinkCode"})
            QVERIFY2(labelled.contains(&desk.named<QWidget>(name)), name);
        QSet<QString> names;
        for (int step = 0; step < 6; ++step) {
            auto& frame = desk.named<QGroupBox>(QString("frm_%1").arg(step));
            for (const QPushButton* button : frame.findChildren<QPushButton*>()) {
                QVERIFY2(!button->accessibleName().isEmpty(), qPrintable(button->objectName()));
                QVERIFY2(!names.contains(button->accessibleName()),
                         qPrintable(button->objectName()));
                names.insert(button->accessibleName());
            }
        }
    }

    void theTabKeyGoesThroughAFrameAsItIsRead_data() {
        QTest::addColumn<int>("step");
        QTest::addColumn<QString>("controls");
        QTest::newRow("welcome") << 0 << "";
        QTest::newRow("pages") << 1
                               << "comboFiles BtnInputFile txtPathname chkBackup chkKeepScripts ";
        QTest::newRow("paths") << 2 << "txtPath btnPath txtMenuDef btnMenuDef ";
        QTest::newRow("menu") << 3 << "cboIntegration cboMenuList optXY txtX txtY ";
        QTest::newRow("report") << 4 << "txtReport btnSaveReport ";
        QTest::newRow("code") << 5 << "txtCode btnCopyCode txtLinkCode btnCopyLinkCode ";
    }
    void theTabKeyGoesThroughAFrameAsItIsRead() {
        QFETCH(int, step);
        QFETCH(QString, controls);
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.choosePopup();
        desk.click("optXY");
        desk.type("txtX", "1");
        desk.type("txtY", "1");
        desk.next(2);
        for (int back = 5; back > step; --back)
            desk.click("btnBack");
        desk.button("btnExit").setFocus();
        QStringList order;
        do {
            QTest::keyClick(desk.wizard.focusWidget(), Qt::Key_Tab);
            order.append(desk.wizard.focusWidget()->objectName());
        } while (order.last() != "btnExit" && order.size() < 20);
        QCOMPARE(order.join(' '), controls + "btnBack btnNext btnExit");
    }

    // Steps

    void itStartsAtTheWelcome() {
        const OddDisabledFields odd;
        WizardDesk desk;
        QCOMPARE(desk.shownFrames(), QList<int>{0});
        QVERIFY(!desk.button("btnBack").isEnabled());
        QCOMPARE(desk.list("cboIntegration").currentIndex(), 0);
        for (const char* name : {"cboMenuList", "optMouse", "optXY", "txtX", "txtY"})
            QVERIFY2(!desk.named<QWidget>(name).isEnabled(), name);
        for (const char* name : {"txtX", "txtY"})
            QCOMPARE(desk.backOf(name), desk.wizard.palette().color(QPalette::Button));
        QVERIFY(desk.named<QRadioButton>("optMouse").isChecked());
        QVERIFY(desk.named<QCheckBox>("chkBackup").isChecked());
        QVERIFY(!desk.named<QCheckBox>("chkKeepScripts").isChecked());
    }

    void nextShowsOneFrameAfterTheOtherAndThenCloses() {
        WizardDesk desk;
        desk.next();
        QCOMPARE(desk.shownFrames(), QList<int>{1});
        QVERIFY(desk.button("btnBack").isEnabled());
        desk.choosePages({"a.htm"});
        desk.next();
        QCOMPARE(desk.shownFrames(), QList<int>{2});
        desk.type("txtMenuDef", "/site/menu_def.js");
        desk.next();
        QCOMPARE(desk.shownFrames(), QList<int>{3});
        desk.next();
        QCOMPARE(desk.shownFrames(), QList<int>{4});
        QCOMPARE(desk.caption("btnNext"), QString("Next >>"));
        desk.next();
        QCOMPARE(desk.shownFrames(), QList<int>{5});
        QCOMPARE(desk.caption("btnNext"), QString("Finish"));
        desk.next();
        QVERIFY(!desk.wizard.isVisible());
    }

    void assistiveTechnologyIsToldWhatNextDoes() {
        WizardDesk desk;
        const auto told = [&] {
            return QAccessible::queryAccessibleInterface(&desk.button("btnNext"))
                ->text(QAccessible::Name);
        };
        desk.goToMenuFrame();
        desk.next();
        QCOMPARE(told(), QString("Next >>"));
        desk.next();
        QCOMPARE(told(), QString("Finish"));
        desk.click("btnBack");
        QCOMPARE(told(), QString("Next >>"));
    }

    void aDoubleClickIsOneStep() {
        WizardDesk desk;
        QPushButton& next = desk.button("btnNext");
        const QPoint place = next.mapTo(&desk.wizard, next.rect().center());
        QTest::mouseDClick(desk.wizard.windowHandle(), Qt::LeftButton, {}, place);
        QCOMPARE(desk.shownFrames(), QList<int>{1});
    }

    void aClickWhileTheLastPageTakesItsTimeIsNotOnTheReport() {
        WizardDesk desk;
        desk.goToMenuFrame();
        QPushButton& next = desk.button("btnNext");
        desk.disk.onRead = [&](int) {
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                const QPoint place = next.rect().center();
                const bool isPress = type == QEvent::MouseButtonPress;
                QCoreApplication::postEvent(
                    &next, new QMouseEvent(type, place, next.mapToGlobal(place), Qt::LeftButton,
                                           isPress ? Qt::LeftButton : Qt::NoButton, {}));
            }
        };
        desk.next();
        QCoreApplication::processEvents();
        QCOMPARE(desk.shownFrames(), QList<int>{4});
    }

    void enterGoesOnFromEachStep() {
        WizardDesk desk;
        const auto pressEnter = [&] { QTest::keyClick(desk.wizard.focusWidget(), Qt::Key_Return); };
        pressEnter();
        QCOMPARE(desk.shownFrames(), QList<int>{1});
        desk.choosePages({"a.htm", "b.htm"});
        pressEnter();
        QCOMPARE(desk.shownFrames(), QList<int>{2});
        desk.type("txtMenuDef", "/site/menu_def.js");
        for (const int step : {3, 4, 5}) {
            pressEnter();
            QCOMPARE(desk.shownFrames(), QList<int>{step});
        }
        pressEnter();
        QVERIFY(!desk.wizard.isVisible());
    }

    void noticesHaveAnOkButtonAndNoIcon() {
        WizardDesk desk;
        desk.next();
        desk.messages.expect("Please select at least one file to continue");
        desk.next();
        desk.choosePages({"a.htm"});
        desk.next();
        desk.messages.expect("Please enter menu definition filename");
        desk.next();
        desk.type("txtMenuDef", "m.js");
        desk.next();
        desk.messages.expect("No dropdown menu found! Popup menu options disabled");
        desk.choose("cboIntegration", 1);
        for (const MessageRequest& notice : desk.messages.recorded()) {
            QVERIFY2(notice.buttons == MessageRequest::Buttons::Ok, notice.text.c_str());
            QVERIFY2(notice.icon == MessageRequest::Icon::None, notice.text.c_str());
        }
    }

    void withoutPagesStep1Stays() {
        WizardDesk desk;
        desk.next();
        desk.messages.expect("Please select at least one file to continue");
        desk.next();
        QCOMPARE(desk.shownFrames(), QList<int>{1});
    }

    void withoutADefinitionStep2Stays() {
        WizardDesk desk;
        desk.next();
        desk.choosePages({"a.htm"});
        desk.next();
        desk.messages.expect("Please enter menu definition filename");
        desk.next();
        QCOMPARE(desk.shownFrames(), QList<int>{2});
    }

    // What is typed is asked for, not what it is good for; the blanks are left out where it is
    // used.
    void aDefinitionNameOfBlanksIsAccepted() {
        WizardDesk desk;
        desk.next();
        desk.choosePages({"a.htm"});
        desk.next();
        desk.type("txtMenuDef", "  ");
        desk.next();
        QCOMPARE(desk.shownFrames(), QList<int>{3});
        QVERIFY(desk.messages.recorded().empty());
        desk.next(2);
        QVERIFY2(desk.text("txtCode").startsWith(
                     "<script language=\"JavaScript1.2\" src=\"\"></script>\n"),
                 qPrintable(desk.text("txtCode")));
    }

    void theLibrarysPathNeedNotBeGiven() {
        WizardDesk desk;
        desk.next();
        desk.choosePages({"a.htm"});
        desk.next();
        desk.type("txtMenuDef", "m.js");
        desk.next(2);
        QVERIFY(desk.page().find("src=\"zevmenu_loader.js\"") != std::string::npos);
    }

    void aPopupMenuWithoutAChoiceStaysAtStep3() {
        WizardDesk desk;
        desk.wizard.showSubmenus({{"Products", "1i2"}});
        desk.goToMenuFrame();
        desk.choose("cboIntegration", 1);
        desk.messages.expect("Please select a popup menu");
        desk.next();
        QCOMPARE(desk.shownFrames(), QList<int>{3});
        QCOMPARE(desk.page(), std::string(kPage));
    }

    void aPositionThatIsNotGivenStaysAtStep3() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.choosePopup();
        desk.click("optXY");
        desk.type("txtX", "5");
        desk.messages.expect("Please enter the position of the menu");
        desk.next();
        QCOMPARE(desk.shownFrames(), QList<int>{3});
    }

    void backGoesBackAndIsDisabledOnlyByAPressAtTheWelcome() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.next(2);
        QCOMPARE(desk.caption("btnNext"), QString("Finish"));
        for (const int step : {4, 3, 2, 1, 0}) {
            desk.click("btnBack");
            QCOMPARE(desk.shownFrames(), QList<int>{step});
            QCOMPARE(desk.caption("btnNext"), QString("Next >>"));
            QVERIFY(desk.button("btnBack").isEnabled());
        }
        desk.click("btnBack");
        QCOMPARE(desk.shownFrames(), QList<int>{0});
        QVERIFY(!desk.button("btnBack").isEnabled());
    }

    void exitClosesAtAnyStep_data() {
        QTest::addColumn<int>("step");
        for (int step = 0; step < 6; ++step)
            QTest::addRow("%d", step) << step;
    }
    void exitClosesAtAnyStep() {
        QFETCH(int, step);
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.next(2);
        for (int back = 5; back > step; --back)
            desk.click("btnBack");
        QCOMPARE(desk.shownFrames(), QList<int>{step});
        desk.click("btnExit");
        QVERIFY(!desk.wizard.isVisible());
    }

    void leavingBeforeTheReportChangesNothing() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.click("btnExit");
        QVERIFY(!desk.wizard.isVisible());
        QCOMPARE(desk.page(), std::string(kPage));
    }
};

QTEST_MAIN(test_frm_integrator)
#include "test_frm_integrator.moc"
