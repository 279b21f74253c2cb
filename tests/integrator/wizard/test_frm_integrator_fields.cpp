// SPDX-License-Identifier: MIT
// What the wizard is told in its first three steps.

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QProgressDialog>
#include <QTemporaryDir>
#include <QTimer>

#include "dialogs/frm_path.h"
#include "integrator/wizard/changes_window.h"
#include "tests/dialogs/roll_wheel.h"
#include "wizard_desk.h"

using namespace zev;

namespace {

/// Reading the first of 100 pages for so long tells that counting will take more than a moment.
constexpr int kSlowReadMs = 100;

}  // namespace

class test_frm_integrator_fields : public QObject {
    Q_OBJECT

  private slots:
    void theWheelChangesAListOnlyWhileItHasTheFocus_data() {
        QTest::addColumn<QString>("name");
        for (const char* name : {"comboFiles", "cboIntegration", "cboMenuList"})
            QTest::newRow(name) << name;
    }
    void theWheelChangesAListOnlyWhileItHasTheFocus() {
        QFETCH(QString, name);
        WizardDesk desk;
        QComboBox& list = desk.list(name);
        desk.wizard.findChild<QWidget*>("btnNext")->setFocus();
        list.setEnabled(true);
        list.addItems({"one more", "and one more"});
        list.setCurrentIndex(0);
        rollWheel(list);
        QCOMPARE(list.currentIndex(), 0);
        QVERIFY(!list.hasFocus());
    }

    // Step 1

    void chosenPagesAreListedInTheDialogsOrder() {
        WizardDesk desk;
        desk.next();
        desk.choosePages({"b.htm", "a.htm"});
        QCOMPARE(desk.list("comboFiles").count(), 2);
        QCOMPARE(desk.list("comboFiles").itemText(0), QString("b.htm"));
        QCOMPARE(desk.list("comboFiles").itemText(1), QString("a.htm"));
        QCOMPARE(desk.field("txtPathname").text(), QString("/site"));
        const FileDialogRequest& request = desk.dialogs.recorded()[0].request;
        QCOMPARE(QString::fromStdString(request.filter),
                 QString("Web Pages (*.htm;*.html;*.shtml;*.stm)|*.htm;*.html;*.shtml;*.stm|"
                         "Preprocessed HTML(*.asp;*.aspx;*.cfm;*.php)|*.asp;*.aspx;*.cfm;*.php|"
                         "All Files (*.*)|*.*"));
        QVERIFY(request.fileName.empty());
        QCOMPARE(QString::fromStdString(request.title), QString("Open"));
    }

    void thePageDialogStartsInTheFolderOfTheOpenMenu() {
        WizardDesk desk;
        desk.wizard.setDefinition("/site/js/menu.js");
        desk.next();
        desk.choosePages({"a.htm"});
        QCOMPARE(desk.dialogs.recorded().back().request.folder, std::string("/site/js"));
        desk.choosePages({"b.htm"});
        QCOMPARE(desk.dialogs.recorded().back().request.folder, std::string("/site"));
    }

    void thePageDialogOfANewMenuStartsAnywhere() {
        WizardDesk desk;
        desk.next();
        desk.choosePages({}, "");
        QCOMPARE(desk.dialogs.recorded().back().request.folder, std::string());
    }

    void thePageInADrivesRootIsIntegrated() {
        WizardDesk desk;
        desk.disk.addFile("C:\\\\a.htm", kPage);
        desk.next();
        desk.choosePages({"a.htm"}, "C:\\");
        QCOMPARE(desk.field("txtPathname").text(), QString("C:\\"));
        desk.next();
        desk.type("txtPath", "C:\\js");
        desk.type("txtMenuDef", "C:\\menu_def.js");
        desk.next(2);
        QVERIFY2(desk.text("txtReport").startsWith("Processing C:\\\\a.htm\nSuccess: "),
                 qPrintable(desk.text("txtReport")));
        QVERIFY(desk.disk.allFiles().at("C:\\\\a.htm").find("zevmenu_loader.js") !=
                std::string::npos);
    }

    void otherPagesReplaceTheChosenOnesAndCancelKeepsThem() {
        WizardDesk desk;
        desk.next();
        desk.choosePages({"b.htm", "a.htm"});
        desk.choosePages({"a.htm"});
        QCOMPARE(desk.list("comboFiles").count(), 1);
        desk.choosePages({}, "");
        QCOMPARE(desk.list("comboFiles").count(), 1);
        QCOMPARE(desk.field("txtPathname").text(), QString("/site"));
    }

    void pageNamesMayHoldAnyCharacter() {
        WizardDesk desk;
        const std::vector<std::string> names{"a 'b' \"c\" & %41.htm", "new\nline.htm",
                                             "\xC3\x84pfel\\\xE2\x82\xAC.htm"};
        for (const std::string& name : names)
            desk.disk.addFile("/site/" + name, kPage);
        desk.goToMenuFrame(names);
        desk.next();
        QCOMPARE(desk.text("txtReport").count("Success: Menu integration successful"), 3);
        for (const std::string& name : names) {
            QVERIFY2(desk.page(name).find("zevmenu_loader.js") != std::string::npos, name.c_str());
            QCOMPARE(desk.page(name + ".bak"), std::string(kPage));
        }
    }

    void scriptsThatWouldBeRemovedAreCounted() {
        WizardDesk desk;
        desk.disk.addFile("/site/s.htm",
                          "<head><script>a</script><script type=x>b</script>"
                          "<script language=JavaScript>c</script></head>");
        desk.disk.addFile("/site/t.htm", "<script>d</script>");
        desk.next();
        QCOMPARE(desk.label("lblScripts"), QString());
        desk.choosePages({"s.htm", "gone.htm", "t.htm"});
        QCOMPARE(desk.label("lblScripts"), QString("3 scripts will be removed from the pages."));
        desk.choosePages({"t.htm"});
        QCOMPARE(desk.label("lblScripts"), QString("1 script will be removed from the pages."));
        desk.click("chkKeepScripts");
        QCOMPARE(desk.label("lblScripts"), QString("0 scripts will be removed from the pages."));
    }

    void countingInManyPagesShowsItsProgress() {
        WizardDesk desk;
        desk.next();
        int shownCount = 0;
        desk.disk.onRead = [&](int readCount) {
            if (readCount == 0)
                QTest::qSleep(kSlowReadMs);
            auto* progress = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
            if (progress == nullptr)
                return;
            ++shownCount;
            QCOMPARE(progress->windowTitle(), desk.wizard.windowTitle());
            QCOMPARE(progress->maximum(), 100);
            QCOMPARE(progress->value(), readCount);
        };
        desk.choosePages(desk.addPagesWithAScript(100));
        QCOMPARE(shownCount, 99);
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
        QCOMPARE(desk.label("lblScripts"), QString("100 scripts will be removed from the pages."));
    }

    void countingCanBeSkipped_data() {
        QTest::addColumn<bool>("isByKey");
        QTest::newRow("button") << false;
        QTest::newRow("Escape") << true;
    }
    void countingCanBeSkipped() {
        QFETCH(bool, isByKey);
        WizardDesk desk;
        desk.next();
        desk.disk.onRead = [&](int readCount) {
            if (readCount == 0)
                QTest::qSleep(kSlowReadMs);
            if (readCount != 2)
                return;
            QWidget* progress = QApplication::activeModalWidget();
            QVERIFY(progress != nullptr);
            if (isByKey)
                QTest::keyClick(progress, Qt::Key_Escape);
            else
                QTest::mouseClick(progress->findChild<QPushButton*>(), Qt::LeftButton);
        };
        desk.choosePages(desk.addPagesWithAScript(100));
        desk.disk.onRead = {};
        QCOMPARE(desk.label("lblScripts"),
                 QString("3 scripts will be removed from the first 3 of 100 pages; the others were "
                         "not counted."));
        desk.click("chkKeepScripts");
        QCOMPARE(desk.label("lblScripts"), QString("0 scripts will be removed from the pages."));
        // What was skipped is the counting, not the pages.
        desk.next();
        desk.type("txtMenuDef", "/site/menu_def.js");
        desk.next(2);
        QCOMPARE(desk.text("txtReport").count("Success: Menu integration successful"), 100);
        desk.click("btnBack");
        desk.click("btnBack");
        desk.click("btnBack");
        desk.choosePages({"a.htm"});
        desk.click("chkKeepScripts");
        QCOMPARE(desk.label("lblScripts"), QString("0 scripts will be removed from the pages."));
    }

    void otherScriptsAreKeptOnlyWhenTicked_data() {
        QTest::addColumn<bool>("isTicked");
        QTest::newRow("as it starts") << false;
        QTest::newRow("ticked") << true;
    }
    void otherScriptsAreKeptOnlyWhenTicked() {
        QFETCH(bool, isTicked);
        WizardDesk desk;
        desk.disk.addFile("/site/a.htm", "<head></head><body><script>mine()</script></body>\n");
        desk.next();
        desk.choosePages({"a.htm"});
        if (isTicked)
            desk.click("chkKeepScripts");
        desk.next();
        if (!isTicked) {
            // What would go is shown first.
            auto& changes = desk.named<ChangesWindow>("ChangesWindow");
            changes.findChild<QCheckBox*>("chkKeepAll")->setChecked(false);
            changes.accept();
        }
        QCOMPARE(desk.shownFrames(), QList<int>{2});
        desk.type("txtMenuDef", "/site/menu_def.js");
        desk.next(2);
        QCOMPARE(desk.page().find("mine()") != std::string::npos, isTicked);
    }

    void aBackupIsMadeOnlyWhenTicked_data() {
        QTest::addColumn<bool>("isTicked");
        QTest::newRow("as it starts") << true;
        QTest::newRow("not ticked") << false;
    }
    void aBackupIsMadeOnlyWhenTicked() {
        QFETCH(bool, isTicked);
        WizardDesk desk;
        if (!isTicked) {
            desk.next();
            desk.click("chkBackup");
            desk.click("btnBack");
        }
        desk.goToMenuFrame();
        desk.next();
        QCOMPARE(desk.disk.FileExists("/site/a.htm.bak"), isTicked);
        if (isTicked)
            QCOMPARE(desk.page("a.htm.bak"), std::string(kPage));
    }

    // Step 2

    void theDefinitionIsChosenInAFileDialog() {
        WizardDesk desk;
        desk.next();
        desk.choosePages({"a.htm"});
        desk.next();
        desk.dialogs.expectOpenFile("/site/menu_def.js");
        desk.click("btnMenuDef");
        QCOMPARE(desk.field("txtMenuDef").text(), QString("/site/menu_def.js"));
        QCOMPARE(QString::fromStdString(desk.dialogs.recorded().back().request.filter),
                 QString("JavaScript files (*.js)|*.js|All Files (*.*)|*.*"));
        desk.dialogs.expectOpenFile("");
        desk.click("btnMenuDef");
        QCOMPARE(desk.field("txtMenuDef").text(), QString("/site/menu_def.js"));
    }

    void theLibraryIsChosenInTheDirectoryChooser_data() {
        QTest::addColumn<bool>("isAccepted");
        QTest::newRow("OK") << true;
        QTest::newRow("Cancel") << false;
    }
    void theLibraryIsChosenInTheDirectoryChooser() {
        QFETCH(bool, isAccepted);
        WizardDesk desk;
        desk.next();
        desk.choosePages({"a.htm"});
        desk.next();
        desk.type("txtPath", "old/");
        auto& chooser = desk.named<frmPath>("frmPath");
        QTimer::singleShot(0, &chooser, [&] {
            chooser.findChild<QLineEdit*>("txtPath")->setText("/site/js");
            chooser.findChild<QPushButton*>(isAccepted ? "btnOK" : "btnCancel")->click();
        });
        desk.click("btnPath");
        auto& frame = desk.named<QGroupBox>("frm_2");
        QCOMPARE(frame.findChild<QLineEdit*>("txtPath")->text(),
                 QString(isAccepted ? "/site/js" : "old/"));
    }

    void theDirectoryChooserBeginsBesideTheMenu() {
        const QTemporaryDir site;
        WizardDesk desk;
        auto* path = desk.named<frmPath>("frmPath").findChild<QLineEdit*>("txtPath");
        desk.wizard.setDefinition(site.filePath("menu.js").toStdString());
        QCOMPARE(path->text(), site.path());
    }

    void aPathGivenBeforeKeepsTheDirectoryChooserWhereItIs() {
        const QTemporaryDir site;
        WizardDesk desk;
        auto* path = desk.named<frmPath>("frmPath").findChild<QLineEdit*>("txtPath");
        const QString before = path->text();
        desk.next();
        desk.choosePages({"a.htm"});
        desk.next();
        desk.type("txtPath", "/site/js");
        desk.wizard.setDefinition(site.filePath("menu.js").toStdString());
        QCOMPARE(path->text(), before);
    }

    void theDirectoryChooserStandsWhereItWasLeft() {
        WizardDesk desk;
        desk.next();
        desk.choosePages({"a.htm"});
        desk.next();
        auto& chooser = desk.named<frmPath>("frmPath");
        auto* path = chooser.findChild<QLineEdit*>("txtPath");
        QTimer::singleShot(0, &chooser, [&] {
            path->setText("/site/js");
            chooser.findChild<QPushButton*>("btnOK")->click();
        });
        desk.click("btnPath");
        QString shown;
        QTimer::singleShot(0, &chooser, [&] {
            shown = path->text();
            chooser.reject();
        });
        desk.click("btnPath");
        QCOMPARE(shown, QString("/site/js"));
    }

    void hintsNameWhatAPageCannotReach_data() {
        QTest::addColumn<QString>("library");
        QTest::addColumn<QString>("definition");
        QTest::addColumn<QString>("pathHint");
        QTest::addColumn<QString>("definitionHint");
        QTest::newRow("nothing wrong") << "/site/js"
                                       << "/site/m.js"
                                       << ""
                                       << "";
        QTest::newRow("URLs") << "js/"
                              << "http://zevmenu.example/m.js"
                              << ""
                              << "";
        QTest::newRow("nothing typed") << ""
                                       << ""
                                       << ""
                                       << "";
        QTest::newRow("no path, the menu beside the page") << ""
                                                           << "/site/m.js"
                                                           << ""
                                                           << "";
        QTest::newRow("no path, the menu elsewhere") << ""
                                                     << "/site/js/m.js"
                                                     << "Without a path the pages look"
                                                     << "";
        QTest::newRow("the path of the page's own folder") << "/site"
                                                           << "/site/js/m.js"
                                                           << ""
                                                           << "";
        QTest::newRow("no last slash") << "js"
                                       << "m.js"
                                       << "jszevmenu_loader.js"
                                       << "";
        QTest::newRow("lower-case drive") << "d:\\lib"
                                          << "d:\\m.js"
                                          << "d:\\lib"
                                          << "d:\\m.js";
        QTest::newRow("another drive") << "D:\\lib"
                                       << "D:\\m.js"
                                       << "D:"
                                       << "D:";
        QTest::newRow("an apostrophe in a URL") << "it's/"
                                                << "it's/m.js"
                                                << "enter \"it%27s/\"."
                                                << "";
        QTest::newRow("an apostrophe in a folder") << "/site/it's"
                                                   << "/site/it's/m.js"
                                                   << ""
                                                   << "";
        QTest::newRow("a double quote in a URL") << "a\"b/"
                                                 << "a\"b/m.js"
                                                 << "enter \"a%22b/\"."
                                                 << "enter \"a%22b/m.js\".";
        QTest::newRow("no last slash, and an apostrophe")
            << "it's"
            << "m.js"
            << "it'szevmenu_loader.js\".\nA quote in this path would break the script."
            << "";
        QTest::newRow("another drive, and an apostrophe") << "D:\\it's"
                                                          << "m.js"
                                                          << "\"D:\\it's\\\""
                                                          << "";
    }
    void hintsNameWhatAPageCannotReach() {
        QFETCH(QString, library);
        QFETCH(QString, definition);
        QFETCH(QString, pathHint);
        QFETCH(QString, definitionHint);
        WizardDesk desk;
        desk.next();
        desk.choosePages({"a.htm"});
        desk.next();
        desk.type("txtPath", library);
        desk.type("txtMenuDef", definition);
        QCOMPARE(desk.isShown("lblPathHint"), !pathHint.isEmpty());
        QVERIFY2(desk.label("lblPathHint").contains(pathHint),
                 qPrintable(desk.label("lblPathHint")));
        QCOMPARE(desk.isShown("lblMenuDefHint"), !definitionHint.isEmpty());
        QVERIFY2(desk.label("lblMenuDefHint").contains(definitionHint),
                 qPrintable(desk.label("lblMenuDefHint")));
    }

    // Step 3

    void aMenuWithoutSubmenusHasNoPopup() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.messages.expect("No dropdown menu found! Popup menu options disabled");
        desk.choose("cboIntegration", 1);
        QCOMPARE(desk.list("cboIntegration").currentIndex(), 0);
        QVERIFY(!desk.list("cboMenuList").isEnabled());
    }

    void theKindOfMenuEnablesWhatBelongsToIt() {
        const OddDisabledFields odd;
        WizardDesk desk;
        const auto enabled = [&] {
            QStringList names;
            for (const char* name : {"cboMenuList", "optMouse", "optXY", "txtX", "txtY"})
                if (desk.named<QWidget>(name).isEnabled())
                    names.append(name);
            return names;
        };
        const QColor buttonFace = desk.wizard.palette().color(QPalette::Button);
        const QColor windowBack = desk.wizard.palette().color(QPalette::Base);
        QVERIFY(buttonFace != windowBack);
        const auto compareBacks = [&](const QColor& expected) {
            for (const char* name : {"txtX", "txtY"})
                QCOMPARE(desk.backOf(name), expected);
        };
        desk.goToMenuFrame();
        desk.choosePopup();
        QCOMPARE(enabled(), (QStringList{"cboMenuList", "optMouse", "optXY"}));
        compareBacks(buttonFace);
        desk.click("optXY");
        QCOMPARE(enabled(), (QStringList{"cboMenuList", "optMouse", "optXY", "txtX", "txtY"}));
        compareBacks(windowBack);
        desk.click("optMouse");
        QCOMPARE(enabled(), (QStringList{"cboMenuList", "optMouse", "optXY"}));
        compareBacks(buttonFace);
        desk.click("optXY");
        desk.choose("cboIntegration", 0);
        QCOMPARE(enabled(), QStringList());
        compareBacks(buttonFace);
    }

    void aPositionMustBeAnInteger() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.choosePopup();
        desk.click("optXY");
        desk.type("txtX", "-20");
        desk.type("txtY", "abc");
        desk.messages.expect("Please enter an integer value: 0 - 65535");
        QTest::keyClick(&desk.field("txtY"), Qt::Key_Tab);
        QCOMPARE(desk.field("txtX").text(), QString("-20"));
        QCOMPARE(desk.field("txtY").text(), QString());
    }
};

QTEST_MAIN(test_frm_integrator_fields)
#include "test_frm_integrator_fields.moc"
