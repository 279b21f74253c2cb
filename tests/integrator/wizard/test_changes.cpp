// SPDX-License-Identifier: MIT
// What will change is shown before it does.

#include <QCheckBox>
#include <QElapsedTimer>
#include <QListWidget>
#include <QTableView>
#include <QTimer>

#include "integrator/wizard/changes_window.h"
#include "integrator/wizard/page_changes_model.h"
#include "wizard_desk.h"

using namespace zev;

namespace {

constexpr const char* kForeign =
    "<html><head><script src=\"js/analytics.js\"></script></head>"
    "<body><script>own();</script>text</body></html>";

/// The window that is open over the wizard; null when there is none.
ChangesWindow* openChanges(WizardDesk& desk) {
    for (auto* changes : desk.wizard.findChildren<ChangesWindow*>())
        if (changes->isVisible())
            return changes;
    return nullptr;
}

template <typename Widget>
Widget& named(ChangesWindow& changes, const char* name) {
    return *changes.findChild<Widget*>(name);
}

QStringList scripts(ChangesWindow& changes) {
    const auto& list = named<QListWidget>(changes, "listScripts");
    QStringList names;
    for (int row = 0; row < list.count(); ++row)
        names.append(list.item(row)->text());
    return names;
}

QStringList row(ChangesWindow& changes, int number) {
    const QAbstractItemModel& model = *named<QTableView>(changes, "tablePages").model();
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column)
        cells.append(model.index(number, column).data().toString());
    return cells;
}

void press(ChangesWindow& changes, const char* name) {
    QTest::mouseClick(changes.findChild<QPushButton*>(name), Qt::LeftButton);
}

/// From step 1 with the page "f.htm", which has two scripts of its own, to the open window.
ChangesWindow& nextShowsChanges(WizardDesk& desk) {
    desk.disk.addFile("/site/f.htm", kForeign);
    desk.next();
    desk.choosePages({"f.htm", "a.htm"});
    desk.next();
    ChangesWindow* changes = openChanges(desk);
    if (changes == nullptr)
        qFatal("the window is not open");
    return *changes;
}

}  // namespace

class test_changes : public QObject {
    Q_OBJECT

  private slots:
    void nextShowsWhatWouldGoBeforeItGoesOn() {
        WizardDesk desk;
        ChangesWindow& changes = nextShowsChanges(desk);
        QVERIFY(changes.isModal());
        QCOMPARE(desk.shownFrames(), QList<int>{1});
        QCOMPARE(row(changes, 0), (QStringList{"f.htm", "", "js/analytics.js; own();", ""}));
        QCOMPARE(row(changes, 1), (QStringList{"a.htm", "", "", ""}));
        QCOMPARE(scripts(changes), (QStringList{"js/analytics.js (1 page)", "own(); (1 page)"}));
        QVERIFY(named<QCheckBox>(changes, "chkKeepAll").isChecked());
        QVERIFY(!named<QListWidget>(changes, "listScripts").isEnabled());
        QVERIFY(!named<QCheckBox>(changes, "chkSkipPages").isVisible());
    }

    void okKeepsAllScriptsAndGoesOn() {
        WizardDesk desk;
        press(nextShowsChanges(desk), "btnOK");
        QCOMPARE(desk.shownFrames(), QList<int>{2});
        desk.type("txtMenuDef", "/site/menu_def.js");
        desk.next(2);
        QVERIFY(desk.page("f.htm").find("js/analytics.js") != std::string::npos);
        QVERIFY(desk.page("f.htm").find("own();") != std::string::npos);
        QVERIFY(desk.page("f.htm").find("zevmenu_loader.js") != std::string::npos);
    }

    void cancelStaysAtTheStep() {
        WizardDesk desk;
        press(nextShowsChanges(desk), "btnCancel");
        QCOMPARE(desk.shownFrames(), QList<int>{1});
        desk.next();
        QVERIFY(openChanges(desk) != nullptr);
        QTest::keyClick(openChanges(desk), Qt::Key_Escape);
        QCOMPARE(desk.shownFrames(), QList<int>{1});
    }

    void singleScriptsAreKept() {
        WizardDesk desk;
        ChangesWindow& changes = nextShowsChanges(desk);
        QTest::keyClick(&named<QCheckBox>(changes, "chkKeepAll"), Qt::Key_Space);
        auto& list = named<QListWidget>(changes, "listScripts");
        QVERIFY(list.isEnabled());
        list.setFocus();
        list.setCurrentRow(0);
        QTest::keyClick(&list, Qt::Key_Space);
        press(changes, "btnOK");
        desk.type("txtMenuDef", "/site/menu_def.js");
        desk.next(2);
        QVERIFY(desk.page("f.htm").find("js/analytics.js") != std::string::npos);
        QVERIFY(desk.page("f.htm").find("own();") == std::string::npos);
        QVERIFY2(desk.text("txtReport").contains("Removed: own();"),
                 qPrintable(desk.text("txtReport")));
        QVERIFY(!desk.text("txtReport").contains("Removed: js/analytics.js"));
    }

    void whatWasAnsweredIsShownAgain() {
        WizardDesk desk;
        ChangesWindow& changes = nextShowsChanges(desk);
        named<QCheckBox>(changes, "chkKeepAll").setChecked(false);
        press(changes, "btnOK");
        QCOMPARE(desk.shownFrames(), QList<int>{2});
        desk.click("btnBack");
        desk.click("btnChanges");
        QTRY_VERIFY(openChanges(desk) != nullptr);
        QVERIFY(!named<QCheckBox>(*openChanges(desk), "chkKeepAll").isChecked());
        press(*openChanges(desk), "btnOK");
        QCOMPARE(desk.shownFrames(), QList<int>{1});
        // It was seen.
        desk.next();
        QCOMPARE(desk.shownFrames(), QList<int>{2});
    }

    void otherPagesAreShownAgain() {
        WizardDesk desk;
        press(nextShowsChanges(desk), "btnOK");
        desk.click("btnBack");
        desk.click("chkKeepScripts");
        desk.choosePages({"f.htm"});
        desk.next();
        QVERIFY(openChanges(desk) != nullptr);
    }

    void withoutScriptsToLoseNextGoesOn() {
        WizardDesk desk;
        desk.next();
        desk.choosePages({"a.htm", "b.htm"});
        desk.next();
        QVERIFY(openChanges(desk) == nullptr);
        QCOMPARE(desk.shownFrames(), QList<int>{2});
    }

    void anEarlierIntegrationIsNothingToLose() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.next();
        for (int step = 4; step > 1; --step)
            desk.click("btnBack");
        desk.choosePages({"a.htm"});
        desk.next();
        QVERIFY(openChanges(desk) == nullptr);
        QCOMPARE(desk.shownFrames(), QList<int>{2});
        desk.click("btnBack");
        desk.click("btnChanges");
        QTRY_VERIFY(openChanges(desk) != nullptr);
        QCOMPARE(row(*openChanges(desk), 0)[PageChangesModel::FoundBefore], QString("yes"));
        QVERIFY(!named<QCheckBox>(*openChanges(desk), "chkKeepAll").isChecked());
    }

    void pagesThatCannotBeIntegratedAreSkipped_data() {
        QTest::addColumn<bool>("isSkipped");
        QTest::newRow("as it starts") << true;
        QTest::newRow("not ticked") << false;
    }
    void pagesThatCannotBeIntegratedAreSkipped() {
        QFETCH(bool, isSkipped);
        WizardDesk desk;
        const std::string frames =
            "<html><head><script>own();</script></head><frameset><frame src=a.htm></frameset>"
            "</html>";
        desk.disk.addFile("/site/frames.htm", frames);
        desk.next();
        desk.choosePages({"a.htm", "frames.htm"});
        desk.next();
        ChangesWindow& changes = *openChanges(desk);
        QCOMPARE(row(changes, 0), (QStringList{"frames.htm", "", "own();",
                                               "a page of frames; no <body>; no </body>"}));
        auto& skip = named<QCheckBox>(changes, "chkSkipPages");
        QVERIFY(skip.isVisible());
        QVERIFY(skip.isChecked());
        if (!isSkipped)
            QTest::mouseClick(&skip, Qt::LeftButton, {}, QPoint(10, skip.height() / 2));
        press(changes, "btnOK");
        desk.type("txtMenuDef", "/site/menu_def.js");
        desk.next(2);
        QCOMPARE(desk.page("frames.htm") == frames, isSkipped);
    }

    void whatIsOddAboutAPageIsTold_data() {
        QTest::addColumn<QByteArray>("page");
        QTest::addColumn<QString>("told");
        QTest::newRow("UTF-16") << QByteArray("\xFF\xFE<\0h\0", 6)
                                << "in UTF-16; no <head>; no <body>; no </body>";
        QTest::newRow("base") << QByteArray("<head><base href=\"/x/\"></head><body></body>\n")
                              << "<base> leads elsewhere: relative addresses count from /x/";
        QTest::newRow("XHTML") << QByteArray(
                                      "<html xmlns=\"http://www.w3.org/1999/xhtml\"><head></head>"
                                      "<body></body></html>")
                               << "XHTML";
        QTest::newRow("no head") << QByteArray("<body></body>\n") << "no <head>";
    }
    void whatIsOddAboutAPageIsTold() {
        QFETCH(QByteArray, page);
        QFETCH(QString, told);
        WizardDesk desk;
        desk.disk.addFile("/site/odd.htm", page.toStdString());
        desk.next();
        desk.choosePages({"odd.htm"});
        desk.click("btnChanges");
        QTRY_VERIFY(openChanges(desk) != nullptr);
        QCOMPARE(row(*openChanges(desk), 0)[PageChangesModel::ToKnow], told);
    }

    void aPageThatIsNotThereIsTold() {
        WizardDesk desk;
        desk.next();
        desk.choosePages({"a.htm", "gone.htm"});
        desk.click("btnChanges");
        QTRY_VERIFY(openChanges(desk) != nullptr);
        QVERIFY(
            row(*openChanges(desk), 0)[PageChangesModel::ToKnow].startsWith("cannot be read: "));
    }

    void missingPathsAndUnsavedChangesAreTold() {
        WizardDesk desk;
        desk.wizard.sayUnsaved();
        desk.goToMenuFrame();
        desk.click("btnBack");
        desk.type("txtPath", "/nowhere");
        QCOMPARE(desk.label("lblMissing"), QString("The library is not in /nowhere.\nThere is no "
                                                   "menu definition /site/menu_def.js."));
        desk.click("btnBack");
        desk.click("btnChanges");
        QTRY_VERIFY(openChanges(desk) != nullptr);
        const QString notes = named<QLabel>(*openChanges(desk), "lblNotes").text();
        QVERIFY2(notes.contains("not saved") && notes.contains("/nowhere") &&
                     notes.contains("/site/menu_def.js"),
                 qPrintable(notes));
    }

    void addressesAreTakenOnTrust() {
        WizardDesk desk;
        desk.disk.addFile("/site/menu_def.js", "");
        desk.goToMenuFrame();
        desk.click("btnBack");
        QVERIFY(!desk.isShown("lblMissing"));
        desk.type("txtPath", "js/");
        desk.type("txtMenuDef", "http://zevmenu.example/m.js");
        QVERIFY(!desk.isShown("lblMissing"));
    }

    void theTableIsReachedByKey() {
        WizardDesk desk;
        desk.next();
        desk.choosePages({"a.htm"});
        QTest::keyClick(&desk.wizard, Qt::Key_W, Qt::AltModifier);
        QTRY_VERIFY(openChanges(desk) != nullptr);
        ChangesWindow& changes = *openChanges(desk);
        QVERIFY(!named<QTableView>(changes, "tablePages").accessibleName().isEmpty());
        QTest::keyClick(&changes, Qt::Key_Return);
        QTRY_VERIFY(openChanges(desk) == nullptr);
    }

    void twentyThousandPagesHaveNoWidgetsOfTheirOwn() {
        std::vector<std::string> names;
        std::vector<SurveyedPage> survey;
        for (int number = 0; number < 20000; ++number) {
            names.push_back("page" + std::to_string(number) + ".htm");
            survey.emplace_back();
            survey.back().findings.removedScripts = {"js/analytics.js"};
            survey.back().findings.hasHead = true;
            survey.back().findings.hasBody = true;
            survey.back().findings.hasBodyEnd = number % 100 != 0;
        }
        QElapsedTimer timer;
        timer.start();
        ChangesWindow changes({names, survey, {}, false}, {}, nullptr);
        changes.show();
        QVERIFY(QTest::qWaitForWindowExposed(&changes));
        qInfo("shown in %lld ms", static_cast<long long>(timer.elapsed()));
        QVERIFY(changes.findChildren<QWidget*>().size() < 100);
        QCOMPARE(row(changes, 0)[0], QString("page0.htm"));
        QCOMPARE(row(changes, 1)[0], QString("page100.htm"));
        QCOMPARE(row(changes, 200)[0], QString("page1.htm"));
    }
};

QTEST_MAIN(test_changes)
#include "test_changes.moc"
