// SPDX-License-Identifier: MIT
// What the wizard opens with after it was closed.

#include <QCheckBox>
#include <QElapsedTimer>
#include <QRadioButton>

#include "wizard_desk.h"

using namespace zev;

namespace {

/// A wizard opened for a menu, with the memory in "/me", over a desk's disk.
struct OpenedWizard {
    OpenedWizard(WizardDesk& desk, const std::string& definition,
                 const std::vector<Submenu>& submenus = {{"Products", "1i2"}, {"Tea", "1"}})
        : wizard({desk.disk, desk.messages, desk.dialogs, "/me"}, {"/"}, nullptr) {
        if (!definition.empty())
            wizard.setDefinition(definition);
        wizard.showSubmenus(submenus);
        wizard.recallEntries();
    }
    template <typename Widget>
    Widget& named(const char* name) {
        return *wizard.findChild<Widget*>(name);
    }
    void press(const char* name) { named<QPushButton>(name).click(); }
    /// Step 1, with pages from the file dialog.
    void choosePages(WizardDesk& desk, const std::vector<std::string>& names) {
        press("btnNext");
        desk.dialogs.expectOpenFiles({"/site", names});
        press("BtnInputFile");
    }

    frmIntegrator wizard;
};

}  // namespace

class test_frm_integrator_memory : public QObject {
    Q_OBJECT

  private slots:
    void itOpensWithWhatWasEnteredLast() {
        WizardDesk desk;
        {
            OpenedWizard first(desk, "/site/menu.js");
            first.choosePages(desk, {"b.htm", "a.htm"});
            first.named<QCheckBox>("chkBackup").setChecked(false);
            first.named<QCheckBox>("chkKeepScripts").setChecked(true);
            first.named<QLineEdit>("txtPath").setText("js/");
            first.named<QComboBox>("cboIntegration").setCurrentIndex(1);
            first.named<QComboBox>("cboMenuList").setCurrentIndex(1);
            first.named<QRadioButton>("optXY").setChecked(true);
            first.named<QLineEdit>("txtX").setText("5");
            first.named<QLineEdit>("txtY").setText("6");
            first.press("btnExit");
        }
        OpenedWizard again(desk, "/site/menu.js");
        QCOMPARE(again.named<QComboBox>("comboFiles").count(), 2);
        QCOMPARE(again.named<QComboBox>("comboFiles").itemText(0), QString("b.htm"));
        QCOMPARE(again.named<QLineEdit>("txtPathname").text(), QString("/site"));
        QVERIFY(!again.named<QCheckBox>("chkBackup").isChecked());
        QVERIFY(again.named<QCheckBox>("chkKeepScripts").isChecked());
        QCOMPARE(again.named<QLineEdit>("txtPath").text(), QString("js/"));
        QCOMPARE(again.named<QLineEdit>("txtMenuDef").text(), QString("/site/menu.js"));
        QCOMPARE(again.named<QComboBox>("cboIntegration").currentIndex(), 1);
        QCOMPARE(again.named<QComboBox>("cboMenuList").currentText(), QString("Tea (1)"));
        QVERIFY(again.named<QRadioButton>("optXY").isChecked());
        QVERIFY(again.named<QLineEdit>("txtX").isEnabled());
        QCOMPARE(again.named<QLineEdit>("txtX").text(), QString("5"));
        QCOMPARE(again.named<QLineEdit>("txtY").text(), QString("6"));
    }

    void whatIsEnteredAgainIsIntegrated() {
        WizardDesk desk;
        {
            OpenedWizard first(desk, "/site/menu.js");
            first.choosePages(desk, {"a.htm"});
            first.named<QLineEdit>("txtPath").setText("/site/js");
            first.press("btnExit");
        }
        OpenedWizard again(desk, "/site/menu.js");
        for (int step = 0; step < 4; ++step)
            again.press("btnNext");
        QVERIFY(desk.page().find("src=\"js/zevmenu_loader.js\"") != std::string::npos);
    }

    void anotherDefinitionHasItsOwn() {
        WizardDesk desk;
        {
            OpenedWizard first(desk, "/site/menu.js");
            first.choosePages(desk, {"a.htm"});
            first.press("btnExit");
        }
        OpenedWizard other(desk, "/site/other.js");
        QCOMPARE(other.named<QComboBox>("comboFiles").count(), 0);
        OpenedWizard unsaved(desk, "");
        QCOMPARE(unsaved.named<QComboBox>("comboFiles").count(), 0);
    }

    void aDefinitionThatWasChosenInTheWizardIsTheOneThatIsMeant() {
        WizardDesk desk;
        {
            OpenedWizard first(desk, "/site/menu.js");
            first.choosePages(desk, {"a.htm"});
            first.named<QLineEdit>("txtMenuDef").setText("/site/other.js");
            first.press("btnExit");
        }
        OpenedWizard same(desk, "/site/menu.js");
        QCOMPARE(same.named<QComboBox>("comboFiles").count(), 0);
        OpenedWizard other(desk, "/site/other.js");
        QCOMPARE(other.named<QComboBox>("comboFiles").count(), 1);
    }

    void aDefinitionThatIsTypedAsAURLBelongsToTheOpenMenu() {
        WizardDesk desk;
        {
            OpenedWizard first(desk, "/site/menu.js");
            first.choosePages(desk, {"a.htm"});
            first.named<QLineEdit>("txtMenuDef").setText("../m.js");
            first.press("btnExit");
        }
        OpenedWizard again(desk, "/site/menu.js");
        QCOMPARE(again.named<QLineEdit>("txtMenuDef").text(), QString("../m.js"));
    }

    void aSubmenuThatIsGoneIsNotChosen() {
        WizardDesk desk;
        {
            OpenedWizard first(desk, "/site/menu.js");
            first.named<QComboBox>("cboIntegration").setCurrentIndex(1);
            first.named<QComboBox>("cboMenuList").setCurrentIndex(1);
            first.press("btnExit");
        }
        OpenedWizard again(desk, "/site/menu.js", {});
        QCOMPARE(again.named<QComboBox>("cboIntegration").currentIndex(), 0);
    }

    void everyWayToCloseItCounts_data() {
        QTest::addColumn<int>("way");
        QTest::newRow("Escape") << 0;
        QTest::newRow("the window's own") << 1;
        QTest::newRow("Finish") << 2;
    }
    void everyWayToCloseItCounts() {
        QFETCH(int, way);
        WizardDesk desk;
        {
            OpenedWizard first(desk, "/site/menu.js");
            first.wizard.show();
            first.choosePages(desk, {"a.htm"});
            if (way == 0)
                QTest::keyClick(&first.wizard, Qt::Key_Escape);
            if (way == 1)
                first.wizard.close();
            for (int step = 1; way == 2 && step <= WizardFlow::kLastStep; ++step)
                first.press("btnNext");
            QVERIFY(!first.wizard.isVisible());
        }
        OpenedWizard again(desk, "/site/menu.js");
        QCOMPARE(again.named<QComboBox>("comboFiles").count(), 1);
    }

    void closingAnUnchangedWizardWritesNothing() {
        WizardDesk desk;
        const auto before = desk.disk.allFiles();
        OpenedWizard wizard(desk, "/site/menu.js");
        wizard.press("btnExit");
        QCOMPARE(desk.disk.allFiles(), before);
    }

    void twentyThousandPagesAreNotFelt() {
        WizardDesk desk;
        std::vector<std::string> names;
        for (int number = 0; number < 20000; ++number)
            names.push_back("some folder/page number " + std::to_string(number) + ".htm");
        WizardMemory memory(desk.disk, "/me");
        memory.remember("/site/menu.js", {{"/site", names}, {}});
        int readCount = 0;
        desk.disk.onRead = [&](int) { ++readCount; };
        QElapsedTimer timer;
        timer.start();
        OpenedWizard wizard(desk, "/site/menu.js");
        wizard.wizard.show();
        wizard.press("btnNext");
        QCoreApplication::processEvents();
        QCOMPARE(wizard.named<QComboBox>("comboFiles").count(), 20000);
        // The list of definitions, and the one with the pages; no page.
        QCOMPARE(readCount, 2);
        qInfo("opened in %lld ms", static_cast<long long>(timer.elapsed()));
    }

    void unsavedChangesAreTold() {
        WizardDesk desk;
        QVERIFY(!desk.isShown("lblUnsaved"));
        desk.wizard.sayUnsaved();
        QVERIFY(desk.isShown("lblUnsaved"));
        QVERIFY(desk.label("lblUnsaved").contains("not saved"));
    }

    void theLibraryBesideTheDefinitionIsEntered() {
        WizardDesk desk;
        desk.wizard.setDefinition("/site/menu.js");
        QCOMPARE(desk.field("txtPath").text(), QString());
        desk.wizard.setDefinition("/site/js/menu.js");
        QCOMPARE(desk.field("txtPath").text(), QString("/site/js"));
    }

    void aPathThatIsEnteredStaysBesideALibrary() {
        WizardDesk desk;
        desk.field("txtPath").setText("js/");
        desk.wizard.setDefinition("/site/js/menu.js");
        QCOMPARE(desk.field("txtPath").text(), QString("js/"));
    }
};

QTEST_MAIN(test_frm_integrator_memory)
#include "test_frm_integrator_memory.moc"
