// SPDX-License-Identifier: MIT
// The wizard's last frame: what it says of the whole run, and taking the run back.

#include "wizard_desk.h"

using namespace zev;

namespace {

constexpr const char* kPasted =
    "<script language=\"JavaScript1.2\" src=\"old/menu_def.js\"></script>\r\n"
    "<script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>";

}  // namespace

class test_frm_integrator_result : public QObject {
    Q_OBJECT

  private slots:
    void itJudgesTheWholeRunFailuresFirst() {
        WizardDesk desk;
        desk.disk.addFile("/site/bad.htm", "no page at all");
        desk.goToMenuFrame({"bad.htm", "gone.htm", "a.htm", "b.htm"});
        desk.next(2);
        QCOMPARE(desk.label("lblSummary"),
                 QString("2 failed: /site/bad.htm, /site/gone.htm\n2 done"));
        QVERIFY(desk.label("lblMsg").startsWith("Menu integration failure."));
        // The pages that are done still need it.
        QVERIFY(desk.isShown("txtCode"));
    }

    void aRunWithoutFailuresSaysNoMore() {
        WizardDesk desk;
        desk.goToMenuFrame({"a.htm", "b.htm"});
        desk.next(2);
        QVERIFY(!desk.isShown("lblSummary"));
        QVERIFY(desk.label("lblMsg").startsWith("Menu integration successful."));
    }

    void manyFailuresAreNotAllNamed() {
        WizardDesk desk;
        desk.goToMenuFrame({"1.htm", "2.htm", "3.htm", "4.htm", "a.htm"});
        desk.next(2);
        QCOMPARE(desk.label("lblSummary"),
                 QString("4 failed: /site/1.htm, /site/2.htm, /site/3.htm, \u2026\n1 done"));
    }

    void theReportEndsWithTheSummary() {
        WizardDesk desk;
        desk.goToMenuFrame({"gone.htm", "a.htm"});
        desk.next();
        QVERIFY2(desk.text("txtReport").endsWith("Failed: /site/gone.htm\n1 done, 1 failed\n\n"),
                 qPrintable(desk.text("txtReport")));
    }

    void theRunIsUndone_data() {
        QTest::addColumn<bool>("isByKey");
        QTest::newRow("button") << false;
        QTest::newRow("key") << true;
    }
    void theRunIsUndone() {
        QFETCH(bool, isByKey);
        WizardDesk desk;
        desk.goToMenuFrame({"a.htm", "b.htm"});
        desk.next(2);
        QVERIFY(desk.isShown("btnUndoRun"));
        desk.messages.expect("2 pages are as before the run.");
        if (isByKey)
            QTest::keyClick(&desk.wizard, Qt::Key_U, Qt::AltModifier);
        else
            desk.click("btnUndoRun");
        QTRY_COMPARE(desk.page("a.htm"), std::string(kPage));
        QTRY_COMPARE(desk.page("b.htm"), std::string(kPage));
        QTRY_VERIFY(!desk.isShown("btnUndoRun"));
        for (int i = 0; i < 2; ++i) {
            QVERIFY(desk.label("lblMsg").startsWith("The run was undone."));
            QVERIFY(!desk.isShown("txtCode"));
            QVERIFY(!desk.button("btnPlace").isEnabled());
            desk.click("btnBack");
            desk.next();
        }
    }

    void pagesThatWereChangedSinceAreRefusedAndListed() {
        WizardDesk desk;
        desk.goToMenuFrame({"a.htm", "b.htm"});
        desk.next(2);
        desk.disk.addFile("/site/a.htm", "mine now");
        desk.messages.expect(
            "a list with the page",
            [](const MessageRequest& request) {
                return request.text == "1 page is as before the run.\n1 page is left alone." &&
                       request.details == "/site/a.htm: was changed since the run\n";
            },
            MessageBox::Answer::Ok);
        desk.click("btnUndoRun");
        QCOMPARE(desk.page("a.htm"), std::string("mine now"));
        QCOMPARE(desk.page("b.htm"), std::string(kPage));
        QVERIFY(desk.isShown("btnUndoRun"));
    }

    void aNewRunIsTheOneThatIsUndone() {
        WizardDesk desk;
        desk.goToMenuFrame({"a.htm"});
        desk.next();
        const std::string first = desk.page();
        desk.click("btnBack");
        desk.click("btnBack");
        desk.type("txtPath", "elsewhere/");
        desk.next(3);
        QVERIFY(desk.page() != first);
        desk.messages.expect("1 page is as before the run.");
        desk.click("btnUndoRun");
        QCOMPARE(desk.page(), first);
    }

    void aRunThatCannotBeRecordedIsDoneAndSaysSo() {
        WizardDesk desk;
        desk.disk.addFile("/me", "a file where the folder should be");
        desk.goToMenuFrame();
        desk.next(2);
        QVERIFY(desk.page() != kPage);
        QVERIFY2(desk.label("lblSummary").startsWith("This run cannot be undone: /me"),
                 qPrintable(desk.label("lblSummary")));
        QVERIFY(!desk.isShown("btnUndoRun"));
    }

    void earlierReferencesAreOfferedAndReplaced() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.next();
        std::string page = desk.page();
        page.insert(page.find("text"), kPasted);
        desk.disk.addFile("/site/a.htm", page);
        desk.click("btnBack");
        desk.next(2);
        QCOMPARE(desk.label("lblSummary"), QString("References to the menu's earlier place: 1"));
        QVERIFY(desk.isShown("btnReferences"));
        const auto isList = [](const MessageRequest& request) {
            return request.details == "/site/a.htm: old/menu_def.js\n";
        };
        desk.messages.expect("the references", isList, MessageBox::Answer::No);
        desk.click("btnReferences");
        QVERIFY(desk.page().find("old/menu_def.js") != std::string::npos);
        desk.messages.expect("the references", isList, MessageBox::Answer::Yes);
        desk.click("btnReferences");
        QVERIFY(desk.page().find("old/menu_def.js") == std::string::npos);
        QVERIFY(desk.page().find("src=\"menu_def.js\"") != std::string::npos);
        QVERIFY(!desk.isShown("btnReferences"));
    }

    void referencesThatWereWrittenByHandAreListedAndLeft() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.next();
        std::string page = desk.page();
        page.insert(page.find("text"),
                    "<script src='mine/menu_def.js' defer></script>"
                    "<script language=JavaScript>ZEVDisplayMenu();</script>");
        desk.disk.addFile("/site/a.htm", page);
        desk.click("btnBack");
        desk.click("btnBack");
        desk.click("btnBack");
        desk.click("chkKeepScripts");
        desk.next(4);
        QCOMPARE(desk.label("lblSummary"),
                 QString("References to another menu, written by hand: 1"));
        desk.messages.expect(
            "the reference",
            [](const MessageRequest& request) {
                return request.details ==
                           "/site/a.htm: mine/menu_def.js (written by hand, stays)\n" &&
                       request.buttons == MessageRequest::Buttons::Ok;
            },
            MessageBox::Answer::Ok);
        desk.click("btnReferences");
        QVERIFY(desk.page().find("mine/menu_def.js") != std::string::npos);
    }

    void withoutEarlierReferencesNothingIsOffered() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.next(2);
        QVERIFY(!desk.isShown("btnReferences"));
    }
};

QTEST_MAIN(test_frm_integrator_result)
#include "test_frm_integrator_result.moc"
