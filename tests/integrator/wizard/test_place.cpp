// SPDX-License-Identifier: MIT
// Placing the menu in the pages from the wizard's last frame.

#include <QCheckBox>
#include <QListWidget>
#include <QTableWidget>

#include "integrator/wizard/place_window.h"
#include "tests/app/when_shown.h"
#include "wizard_desk.h"

using namespace zev;

namespace {

constexpr const char* kWithHeader =
    "<html><head></head>\n<body>\n<header id=top>Title</header>\n<p>See our products.</p>\n"
    "</body></html>";

/// The window, opened by its key from the last frame of a run over these pages.
void inPlace(WizardDesk& desk, const std::function<void(PlaceWindow&)>& work) {
    // A window that was open before has just gone.
    desk.wizard.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk.wizard));
    bool isDone = false;
    whenShown<PlaceWindow>([&](PlaceWindow& window) {
        work(window);
        window.close();
        isDone = true;
    });
    QTest::keyClick(&desk.wizard, Qt::Key_I, Qt::AltModifier);
    QTRY_VERIFY(isDone);
}

template <typename Widget>
Widget& named(PlaceWindow& window, const char* name) {
    return *window.findChild<Widget*>(name);
}

void choosePlace(PlaceWindow& window, const char* place) {
    auto& list = named<QComboBox>(window, "cboPlace");
    list.setCurrentIndex(list.findData(QString(place)));
    QVERIFY(list.currentIndex() >= 0);
}

QStringList pages(PlaceWindow& window) {
    const auto& list = named<QListWidget>(window, "listPages");
    QStringList names;
    for (int row = 0; row < list.count(); ++row)
        names.append(list.item(row)->text());
    return names;
}

void press(PlaceWindow& window, const char* name) {
    QTest::mouseClick(window.findChild<QPushButton*>(name), Qt::LeftButton);
}

bool holds(WizardDesk& desk, const std::string& name, const std::string& text) {
    return desk.page(name).find(text) != std::string::npos;
}

}  // namespace

class test_place : public QObject {
    Q_OBJECT

  private slots:
    void theMenuIsPlacedFirstInThePages() {
        WizardDesk desk;
        desk.goToMenuFrame({"a.htm", "b.htm"});
        desk.next(2);
        inPlace(desk, [&](PlaceWindow& window) {
            QCOMPARE(named<QLabel>(window, "lblFits").text(),
                     QString("It fits in 2 of 2 pages; the others stay as they are."));
            press(window, "btnPlace");
        });
        QTRY_COMPARE(desk.label("lblMsg"), QString("The menu stands in 2 pages."));
        QVERIFY(holds(desk, "a.htm",
                      "<!-- zevmenu menu --><script language=\"JavaScript1.2\" "
                      "src=\"menu_def.js\"></script>"));
        QVERIFY(holds(desk, "b.htm", "ZEVDisplayMenu();"));
        // The backup is the one of the first run.
        QCOMPARE(desk.page("a.htm.bak"), std::string(kPage));
        desk.messages.expect("2 pages are as before the run.");
        desk.click("btnUndoRun");
        QCOMPARE(desk.page("a.htm"), std::string(kPage));
        QCOMPARE(desk.page("b.htm"), std::string(kPage));
    }

    void aPageWithACallOfItsOwnIsNamedAndGetsNoSecondOne() {
        WizardDesk desk;
        const std::string pasted =
            "<script language=\"JavaScript1.2\" src=\"menu_def.js\"></script>\r\n"
            "<script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>";
        desk.disk.addFile("/site/h.htm", "<html><head></head><body>\n" + pasted + "</body></html>");
        desk.goToMenuFrame({"a.htm", "h.htm"});
        desk.next(2);
        inPlace(desk, [&](PlaceWindow& window) {
            QCOMPARE(pages(window),
                     (QStringList{"h.htm: line 3: has a call of its own; it stays, and no second "
                                  "one is placed: <script language=\"JavaScript1.2\">"
                                  "ZEVDisplayMenu();",
                                  "a.htm"}));
            QCOMPARE(named<QLabel>(window, "lblFits").text(),
                     QString("It fits in 1 of 2 pages; the others stay as they are."));
            press(window, "btnPlace");
        });
        QTRY_COMPARE(desk.label("lblMsg"), QString("The menu stands in 2 pages."));
        QVERIFY(holds(desk, "a.htm", "zevmenu menu"));
        QVERIFY(!holds(desk, "h.htm", "zevmenu menu"));
        QVERIFY(holds(desk, "h.htm", pasted));
    }

    void itTellsWhereItFitsAndWhereNot() {
        WizardDesk desk;
        desk.disk.addFile("/site/h.htm", kWithHeader);
        desk.goToMenuFrame({"a.htm", "h.htm"});
        desk.next(2);
        inPlace(desk, [&](PlaceWindow& window) {
            auto& elements = named<QComboBox>(window, "cboElement");
            QVERIFY(!elements.isEnabled());
            choosePlace(window, "after:");
            QVERIFY(elements.isEnabled());
            elements.setCurrentIndex(elements.findText("header"));
            QVERIFY(elements.currentIndex() >= 0);
            QCOMPARE(pages(window), (QStringList{"a.htm: there is no such place", "h.htm"}));
            QCOMPARE(named<QLabel>(window, "lblFits").text(),
                     QString("It fits in 1 of 2 pages; the others stay as they are."));
            press(window, "btnPlace");
        });
        QTRY_VERIFY(holds(desk, "h.htm", "</header><!-- zevmenu menu -->"));
        QVERIFY(!holds(desk, "a.htm", "zevmenu menu"));
        QCOMPARE(desk.label("lblMsg"), QString("The menu stands in the page."));
        QVERIFY(desk.label("lblSummary").startsWith("1 failed: /site/a.htm"));
    }

    void theChangesOfAPageAreShownSideBySide() {
        WizardDesk desk;
        desk.disk.addFile("/site/h.htm", kWithHeader);
        desk.goToMenuFrame({"h.htm"});
        desk.next(2);
        const std::string before = desk.page("h.htm");
        inPlace(desk, [&](PlaceWindow& window) {
            choosePlace(window, "instead:");
            auto& elements = named<QComboBox>(window, "cboElement");
            elements.setCurrentIndex(elements.findText("#top"));
            const auto& table = named<QTableWidget>(window, "tableChanges");
            QCOMPARE(table.rowCount(), 1);
            QCOMPARE(table.item(0, 0)->text(), QString("3"));
            QCOMPARE(table.item(0, 1)->text(), QString("<header id=top>Title</header>"));
            QVERIFY(table.item(0, 2)->text().startsWith("<!-- zevmenu menu -->"));
            press(window, "btnCancel");
        });
        QCOMPARE(desk.page("h.htm"), before);
    }

    void anElementCanBeTyped() {
        WizardDesk desk;
        desk.disk.addFile("/site/h.htm", kWithHeader);
        desk.goToMenuFrame({"h.htm"});
        desk.next(2);
        inPlace(desk, [&](PlaceWindow& window) {
            choosePlace(window, "before:");
            QLineEdit& element = *named<QComboBox>(window, "cboElement").lineEdit();
            element.setFocus();
            element.selectAll();
            QTest::keyClicks(&element, "p >");
            QTest::keyClick(&element, Qt::Key_Tab);
            QVERIFY(!window.findChild<QPushButton*>("btnPlace")->isEnabled());
            QVERIFY(named<QLabel>(window, "lblFits").text().startsWith("Please enter"));
            element.setFocus();
            element.selectAll();
            QTest::keyClicks(&element, "p");
            QTest::keyClick(&element, Qt::Key_Tab);
            press(window, "btnPlace");
        });
        QTRY_VERIFY(holds(desk, "h.htm", "<!-- /zevmenu menu --><p>"));
    }

    void aCommentMarksThePlace() {
        WizardDesk desk;
        desk.disk.addFile("/site/m.htm",
                          "<html><head></head><body><!-- zevmenu -->text</body></html>");
        desk.goToMenuFrame({"a.htm"});
        desk.next(2);
        inPlace(desk, [](PlaceWindow& window) {
            QCOMPARE(named<QComboBox>(window, "cboPlace").findData("marker"), -1);
        });
        for (int step = 5; step > 1; --step)
            desk.click("btnBack");
        desk.choosePages({"m.htm"});
        desk.next(4);
        inPlace(desk, [](PlaceWindow& window) {
            choosePlace(window, "marker");
            press(window, "btnPlace");
        });
        QTRY_VERIFY(holds(desk, "m.htm", "<!-- zevmenu --><!-- zevmenu menu -->"));
    }

    void linksForVisitorsWithoutScriptGoWithIt() {
        WizardDesk desk;
        desk.wizard.setLinkList([](const std::string& url) { return "<ul>" + url + "</ul>"; });
        desk.goToMenuFrame({"a.htm"});
        desk.next(2);
        inPlace(desk, [](PlaceWindow& window) {
            auto& links = named<QCheckBox>(window, "chkLinks");
            QVERIFY(links.isVisible());
            QVERIFY(!links.isChecked());
            QTest::keyClick(&links, Qt::Key_Space);
            press(window, "btnPlace");
        });
        QTRY_VERIFY(holds(desk, "a.htm", "<ul>menu_def.js</ul><!-- /zevmenu menu -->"));
    }

    void wordsOfThePageBecomeThePopupsLink() {
        WizardDesk desk;
        desk.disk.addFile("/site/h.htm", kWithHeader);
        desk.goToMenuFrame({"h.htm"});
        desk.choosePopup();
        desk.next(2);
        inPlace(desk, [](PlaceWindow& window) {
            auto& words = named<QLineEdit>(window, "txtLinkText");
            QVERIFY(words.isVisible());
            words.setFocus();
            QTest::keyClicks(&words, "products");
            QTest::keyClick(&words, Qt::Key_Tab);
            press(window, "btnPlace");
        });
        QTRY_VERIFY(holds(desk, "h.htm", "ZEVMenuOpen('zev1i1', '2', event)"));
        QVERIFY(holds(desk, "h.htm", ">products</a>"));
        QVERIFY(!holds(desk, "h.htm", "ZEVDisplayMenu"));
    }

    void placingAgainReplacesTheFirst() {
        WizardDesk desk;
        desk.goToMenuFrame({"a.htm"});
        desk.next(2);
        for (int i = 0; i < 2; ++i)
            inPlace(desk, [](PlaceWindow& window) { press(window, "btnPlace"); });
        QTRY_COMPARE(QString::fromStdString(desk.page()).count("<!-- zevmenu menu -->"), 1);
    }

    void aRunWithoutAPageThatIsDoneOffersNothing() {
        WizardDesk desk;
        desk.goToMenuFrame({"gone.htm"});
        desk.next(2);
        QVERIFY(!desk.button("btnPlace").isEnabled());
    }

    void everyControlHasANameAndAKey() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.next(2);
        inPlace(desk, [](PlaceWindow& window) {
            QStringList keys;
            for (const QWidget* widget : window.findChildren<QWidget*>()) {
                const auto* label = qobject_cast<const QLabel*>(widget);
                const auto* button = qobject_cast<const QAbstractButton*>(widget);
                const QString text = label != nullptr    ? label->text()
                                     : button != nullptr ? button->text()
                                                         : QString();
                if (!widget->isVisible() || !text.contains('&'))
                    continue;
                const QString key = QKeySequence::mnemonic(text).toString();
                QVERIFY2(!keys.contains(key), qPrintable(text));
                keys.append(key);
            }
            QVERIFY(keys.size() >= 6);
            for (const char* name : {"cboPlace", "cboElement", "listPages", "tableChanges"})
                QVERIFY2(!window.findChild<QWidget*>(name)->accessibleName().isEmpty(), name);
        });
    }
};

QTEST_MAIN(test_place)
#include "test_place.moc"
