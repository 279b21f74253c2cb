// SPDX-License-Identifier: MIT
// The window that undoes earlier runs.

#include <QListWidget>

#include "integrator/run_record.h"
#include "integrator/wizard/undo_window.h"
#include "platform/locked_file.h"
#include "wizard_desk.h"

using namespace zev;

namespace {

/// Runs the wizard over these pages, with a library that may have moved since.
void runOver(WizardDesk& desk, const std::vector<std::string>& names,
             const QString& library = "js/") {
    desk.goToMenuFrame(names);
    desk.click("btnBack");
    desk.type("txtPath", library);
    desk.next(2);
    for (int step = 4; step > 0; --step)
        desk.click("btnBack");
}

QStringList listed(UndoWindow& window) {
    const auto* list = window.findChild<QListWidget*>("listRuns");
    QStringList runs;
    for (int row = 0; row < list->count(); ++row)
        runs.append(list->item(row)->text());
    return runs;
}

}  // namespace

class test_undo_window : public QObject {
    Q_OBJECT

  private slots:
    void runsAreListedNewestFirst() {
        WizardDesk desk;
        runOver(desk, {"a.htm"});
        runOver(desk, {"a.htm", "b.htm"}, "lib/");
        UndoWindow window(desk.disk, desk.messages, "/me/runs", nullptr);
        const QStringList runs = listed(window);
        QCOMPARE(runs.size(), 2);
        QVERIFY2(runs[0].endsWith(": 2 pages in /site"), qPrintable(runs[0]));
        QVERIFY2(runs[1].endsWith(": /site/a.htm"), qPrintable(runs[1]));
        const QString year = QString::number(QDate::currentDate().year() % 100);
        QVERIFY2(runs[0].contains(year), qPrintable(runs[0]));
    }

    void theChosenRunIsUndone() {
        WizardDesk desk;
        runOver(desk, {"a.htm"});
        runOver(desk, {"b.htm"});
        UndoWindow window(desk.disk, desk.messages, "/me/runs", nullptr);
        window.show();
        auto* list = window.findChild<QListWidget*>("listRuns");
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Down);
        desk.messages.expect("1 page is as before the run.");
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(desk.page("a.htm"), std::string(kPage));
        QVERIFY(desk.page("b.htm") != kPage);
        QCOMPARE(listed(window).size(), 1);
    }

    void aPageThatWasChangedSinceIsRefused() {
        WizardDesk desk;
        runOver(desk, {"a.htm"});
        desk.disk.addFile("/site/a.htm", "mine now");
        UndoWindow window(desk.disk, desk.messages, "/me/runs", nullptr);
        window.show();
        desk.messages.expect(
            "a list with the page",
            [](const MessageRequest& request) {
                return request.details == "/site/a.htm: was changed since the run\n";
            },
            MessageBox::Answer::Ok);
        QTest::mouseClick(window.findChild<QPushButton*>("btnUndo"), Qt::LeftButton);
        QCOMPARE(desk.page("a.htm"), std::string("mine now"));
        QCOMPARE(listed(window).size(), 1);
    }

    void aRunThatIsStillGoingOnIsRefused() {
        WizardDesk desk;
        runOver(desk, {"a.htm"});
        const std::string page = desk.page("a.htm");
        UndoWindow window(desk.disk, desk.messages, "/me/runs", nullptr);
        window.show();
        auto held = desk.disk.lockFile("/me/runs/" + listRuns(desk.disk, "/me/runs").front());
        desk.messages.expect("This run is still going on, or being undone. Nothing was changed.");
        QTest::mouseClick(window.findChild<QPushButton*>("btnUndo"), Qt::LeftButton);
        QCOMPARE(desk.page("a.htm"), page);
        QCOMPARE(listed(window).size(), 1);
        held.reset();
        desk.messages.expect("1 page is as before the run.");
        QTest::mouseClick(window.findChild<QPushButton*>("btnUndo"), Qt::LeftButton);
        QCOMPARE(desk.page("a.htm"), std::string(kPage));
    }

    void tenRunsAreListed() {
        WizardDesk desk;
        for (int i = 0; i < 12; ++i)
            runOver(desk, {"a.htm"}, QString("js%1/").arg(i));
        QCOMPARE(listRuns(desk.disk, "/me/runs").size(), 12u);
        UndoWindow window(desk.disk, desk.messages, "/me/runs", nullptr);
        QCOMPARE(listed(window).size(), 10);
    }

    void withoutRunsThereIsNothingToUndo() {
        WizardDesk desk;
        for (const char* folder : {"/me/runs", ""}) {
            UndoWindow window(desk.disk, desk.messages, folder, nullptr);
            QCOMPARE(listed(window), QStringList{"There is no run that can be undone."});
            QVERIFY(!window.findChild<QPushButton*>("btnUndo")->isEnabled());
        }
    }
};

QTEST_MAIN(test_undo_window)
#include "test_undo_window.moc"
