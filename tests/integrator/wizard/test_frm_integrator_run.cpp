// SPDX-License-Identifier: MIT
// The wizard's work: the run over the pages, its report, and the code to paste.

#include <QClipboard>
#include <QGuiApplication>
#include <QProgressBar>

#include "wizard_desk.h"

using namespace zev;

namespace {

constexpr const char* kReference =
    "<script language=\"JavaScript1.2\" src=\"menu_def.js\"></script>";
constexpr const char* kInPlaceCall =
    "<script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>";

}  // namespace

class test_frm_integrator_run : public QObject {
    Q_OBJECT

  private slots:
    // Report

    void thePagesAreIntegratedAndReported() {
        WizardDesk desk;
        desk.goToMenuFrame({"b.htm", "gone.htm", "a.htm"});
        desk.next();
        const QString done =
            "Success: Menu library references added\nSuccess: Event handlers added\n"
            "Success: Menu creation code added\nSuccess: Menu integration successful\n\n";
        QCOMPARE(desk.text("txtReport"), "Processing /site/b.htm\n" + done +
                                             "ERROR: /site/gone.htm Not Found!\n\n"
                                             "Processing /site/a.htm\n" +
                                             done + "Failed: /site/gone.htm\n2 done, 1 failed\n\n");
        for (const char* name : {"a.htm", "b.htm"})
            QVERIFY(desk.page(name).find("src=\"js/zevmenu_loader.js\"") != std::string::npos);
    }

    void theReportIsSavedWithOneMoreLineBreak() {
        WizardDesk desk;
        desk.goToMenuFrame({"gone.htm"});
        desk.next();
        desk.dialogs.expectSaveFile("/site/report.txt");
        desk.click("btnSaveReport");
        QCOMPARE(desk.page("report.txt"),
                 std::string("ERROR: /site/gone.htm Not Found!\r\n\r\n"
                             "Failed: /site/gone.htm\r\n0 done, 1 failed\r\n\r\n\r\n"));
        const FileDialogRequest& request = desk.dialogs.recorded().back().request;
        QCOMPARE(QString::fromStdString(request.filter),
                 QString("Text Files (*.txt;*.log)|*.txt;*.log|All Files (*.*)|*.*"));
        QVERIFY(request.asksBeforeReplacing);
        QVERIFY(request.fileName.empty());
        QCOMPARE(QString::fromStdString(request.title), QString("Save"));
        QCOMPARE(QString::fromStdString(request.extension), QString("txt"));
    }

    void aReportThatIsNotSavedSaysWhy() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.next();
        desk.disk.setWritable("/site", false);
        desk.dialogs.expectSaveFile("/site/report.txt");
        desk.messages.expect(
            "not saved",
            [](const MessageRequest& request) {
                return request.text.starts_with("/site/report.txt not saved: ");
            },
            MessageBox::Answer::Ok);
        desk.click("btnSaveReport");
        desk.dialogs.expectSaveFile("");
        desk.click("btnSaveReport");
    }

    void nextClearsTheReport() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.next();
        QVERIFY(!desk.text("txtReport").isEmpty());
        desk.next();
        desk.click("btnBack");
        QCOMPARE(desk.shownFrames(), QList<int>{4});
        QCOMPARE(desk.text("txtReport"), QString());
    }

    void aFurtherRunHasAReportOfItsOwn() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.next();
        desk.click("btnBack");
        desk.next();
        QCOMPARE(desk.text("txtReport").count("Processing /site/a.htm"), 1);
        QVERIFY(desk.text("txtReport").contains("Previous integration detected!"));
    }

    void cancelStopsBetweenTwoPages() {
        WizardDesk desk;
        desk.goToMenuFrame({"a.htm", "b.htm"});
        auto& progress = desk.named<QProgressBar>("pbProgress");
        QVERIFY(!progress.isVisible());
        bool wasShown = false;
        bool couldGoOn = true;
        QObject::connect(&progress, &QProgressBar::valueChanged, &progress, [&](int value) {
            if (value != 1)
                return;
            wasShown = progress.isVisible() && progress.maximum() == 2;
            couldGoOn = desk.button("btnNext").isEnabled() || desk.button("btnExit").isEnabled();
            desk.click("btnCancel");
        });
        desk.next();
        QVERIFY(wasShown);
        QVERIFY(!couldGoOn);
        QVERIFY(desk.page("a.htm") != kPage);
        QCOMPARE(desk.page("b.htm"), std::string(kPage));
        QVERIFY2(desk.text("txtReport").contains("Cancelled: 1 of 2 pages not processed"),
                 qPrintable(desk.text("txtReport")));
        QVERIFY(!progress.isVisible());
        QVERIFY(!desk.isShown("btnCancel"));
        QVERIFY(desk.button("btnNext").isEnabled());
        // The next run starts afresh.
        QObject::disconnect(&progress, nullptr, &progress, nullptr);
        desk.click("btnBack");
        desk.next();
        QVERIFY(desk.page("b.htm") != kPage);
    }

    void closingTheWindowStopsARunButKeepsTheWizard() {
        WizardDesk desk;
        desk.goToMenuFrame({"a.htm", "b.htm"});
        auto& progress = desk.named<QProgressBar>("pbProgress");
        QObject::connect(&progress, &QProgressBar::valueChanged, &progress,
                         [&] { desk.wizard.close(); });
        desk.next();
        QVERIFY(desk.wizard.isVisible());
        QVERIFY(desk.text("txtReport").contains("Cancelled"));
        desk.wizard.close();
        QVERIFY(!desk.wizard.isVisible());
    }

    // Code

    void aMenuInPlaceNeedsReferenceAndCall() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.next(2);
        QVERIFY(desk.label("lblMsg").startsWith(
            "Menu integration successful. Copy and paste the following code on the web page to "
            "complete the integration. Switch to HTML mode before pasting if you are using a "
            "WYSIWYG editor, e.g. FrontPage"));
        QCOMPARE(desk.text("txtCode"), QString(kReference) + "\n" + kInPlaceCall);
        QVERIFY(desk.isShown("txtCode"));
        for (const char* name : {"lblLinkCode", "txtLinkCode", "btnCopyLinkCode"})
            QVERIFY2(!desk.isShown(name), name);
    }

    void aDefinitionThatIsTypedAsAURLIsReferredToAsTyped() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.click("btnBack");
        desk.type("txtMenuDef", "  ../My Menu.js ");
        desk.next(3);
        QVERIFY2(desk.text("txtCode").startsWith(
                     "<script language=\"JavaScript1.2\" src=\"../My Menu.js\"></script>\n"),
                 qPrintable(desk.text("txtCode")));
    }

    void aPopupMenuNeedsReferenceAndLink_data() {
        QTest::addColumn<bool>("isAtMouse");
        QTest::addColumn<QString>("link");
        QTest::newRow("mouse") << true
                               << "<a href=\"\" onmouseover=\"ZEVMenuOpen('zev1i1', '2', event)\" "
                                  "onmouseout=\"ZEVMenuClose('zev1i1', '2', false)\">Menu</a>";
        QTest::newRow("position")
            << false << "<a href=\"\" onmouseover=\"ZEVMenuOpen('zev1i1', '2', 100, 50)\">Menu</a>";
    }
    void aPopupMenuNeedsReferenceAndLink() {
        QFETCH(bool, isAtMouse);
        QFETCH(QString, link);
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.choosePopup();
        if (!isAtMouse) {
            desk.click("optXY");
            desk.type("txtX", "100");
            desk.type("txtY", "50");
        }
        desk.next(2);
        QCOMPARE(desk.text("txtCode"), QString(kReference));
        QCOMPARE(desk.text("txtLinkCode"), link);
        for (const char* name : {"txtCode", "lblLinkCode", "txtLinkCode"})
            QVERIFY2(desk.isShown(name), name);
        desk.click("btnCopyLinkCode");
        QCOMPARE(QGuiApplication::clipboard()->text(), link);
        desk.click("btnCopyCode");
        QCOMPARE(QGuiApplication::clipboard()->text(), QString(kReference));
    }

    void theCodeIsBuiltAgainAfterGoingBack() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.choosePopup();
        desk.next(2);
        desk.click("btnBack");
        desk.click("btnBack");
        desk.choose("cboIntegration", 0);
        desk.next(2);
        QCOMPARE(desk.text("txtCode"), QString(kReference) + "\n" + kInPlaceCall);
        QCOMPARE(desk.text("txtLinkCode"), QString());
        QVERIFY(!desk.isShown("txtLinkCode"));
    }

    void theLastMessageIsAboutTheWholeRun_data() {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::addColumn<bool>("isSuccess");
        QTest::addColumn<bool>("hasCode");
        QTest::newRow("both are done") << "a.htm"
                                       << "b.htm" << true << true;
        QTest::newRow("the last one failed") << "a.htm"
                                             << "bad.htm" << false << true;
        QTest::newRow("only the first one failed") << "bad.htm"
                                                   << "a.htm" << false << true;
        QTest::newRow("the last one is not there") << "a.htm"
                                                   << "gone.htm" << false << true;
        QTest::newRow("none is there") << "gone.htm"
                                       << "gone too.htm" << false << false;
    }
    void theLastMessageIsAboutTheWholeRun() {
        QFETCH(QString, first);
        QFETCH(QString, last);
        QFETCH(bool, isSuccess);
        QFETCH(bool, hasCode);
        WizardDesk desk;
        desk.disk.addFile("/site/bad.htm", "no page at all");
        desk.goToMenuFrame({first.toStdString(), last.toStdString()});
        desk.choosePopup();
        desk.next(2);
        if (isSuccess)
            QVERIFY(desk.label("lblMsg").startsWith("Menu integration successful. "));
        else
            QCOMPARE(
                desk.label("lblMsg"),
                QString("Menu integration failure. Verify that your input file is a valid HTML "
                        "file containing <head></head> and <body></body> tags"));
        for (const char* name :
             {"txtCode", "btnCopyCode", "lblLinkCode", "txtLinkCode", "btnCopyLinkCode"})
            QCOMPARE(desk.isShown(name), hasCode);
    }

    void theLastMessageIsAboutTheLastRun() {
        WizardDesk desk;
        desk.disk.addFile("/site/bad.htm", "no page at all");
        desk.goToMenuFrame();
        desk.next(2);
        QVERIFY(desk.label("lblMsg").startsWith("Menu integration successful."));
        for (int back = 5; back > 1; --back)
            desk.click("btnBack");
        desk.choosePages({"bad.htm"});
        desk.next(4);
        QVERIFY(desk.label("lblMsg").startsWith("Menu integration failure."));
    }
};

QTEST_MAIN(test_frm_integrator_run)
#include "test_frm_integrator_run.moc"
