// The wizard through its real widgets, over pages on a disk in memory.

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include "dialogs/frm_path.h"
#include "integrator/frm_integrator.h"
#include "platform/fake/fake_file_system.h"
#include "platform/fake/fake_services.h"
#include "platform/html/html_page.h"

using namespace zev;

namespace {

constexpr const char* kPage = "<html><head></head><body>text</body></html>";
constexpr const char* kReference =
    "<script language=\"JavaScript1.2\" src=\"menu_def.js\"></script>";
constexpr const char* kInPlaceCall =
    "<script language=\"JavaScript1.2\">ZEVDisplayMenu();</script>";

/// Reading the first of 100 pages for so long tells that counting will take more than a moment.
constexpr int kSlowReadMs = 100;

void failTest(const std::string& problem) {
    QTest::qFail(problem.c_str(), __FILE__, __LINE__);
}

/// Calls back before each file is read, with the number of files read before.
class WatchedDisk : public FakeFileSystem {
  public:
    std::function<void(int)> onRead;

    FileResult<std::string> readFile(const std::string& path,
                                     std::uint64_t maxBytes) const override {
        if (onRead)
            onRead(m_readCount++);
        return FakeFileSystem::readFile(path, maxBytes);
    }

  private:
    mutable int m_readCount = 0;
};

/// The wizard over the pages "/site/a.htm" and "/site/b.htm" and the library in "/site/js".
struct WizardDesk {
    WizardDesk() {
        disk.addFile("/site/a.htm", kPage);
        disk.addFile("/site/b.htm", kPage);
        for (const char* name : {"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js"})
            disk.addFile(std::string("/site/js/") + name, "");
        wizard.show();
        wizard.activateWindow();
        if (!QTest::qWaitForWindowActive(&wizard))
            failTest("the wizard does not become active");
    }

    template <typename Widget>
    Widget& named(const QString& name) {
        auto* widget = wizard.findChild<Widget*>(name);
        if (widget == nullptr)
            qFatal("no widget named %s", qPrintable(name));
        return *widget;
    }
    QLineEdit& field(const QString& name) { return named<QLineEdit>(name); }
    QComboBox& list(const QString& name) { return named<QComboBox>(name); }
    QPushButton& button(const QString& name) { return named<QPushButton>(name); }
    QString label(const QString& name) { return named<QLabel>(name).text(); }
    QString text(const QString& name) { return named<QPlainTextEdit>(name).toPlainText(); }
    bool isShown(const QString& name) { return named<QWidget>(name).isVisible(); }

    void click(const QString& name) {
        auto& target = named<QWidget>(name);
        // Near the left edge: option buttons take clicks on their mark and caption alone.
        QTest::mouseClick(&target, Qt::LeftButton, {}, QPoint(10, target.height() / 2));
    }
    void next(int times = 1) {
        for (int i = 0; i < times; ++i)
            click("btnNext");
    }
    void type(const QString& name, const QString& text) {
        QLineEdit& target = field(name);
        QTest::mouseClick(&target, Qt::LeftButton);
        target.selectAll();
        QTest::keyClick(&target, Qt::Key_Backspace);
        QTest::keyClicks(&target, text);
    }
    void choose(const QString& name, int index) {
        list(name).setFocus();
        QTest::keyClick(&list(name), Qt::Key_Home);
        for (int step = 0; step < index; ++step)
            QTest::keyClick(&list(name), Qt::Key_Down);
    }
    /// Indexes of the frames that are shown.
    QList<int> shownFrames() {
        QList<int> shown;
        for (int step = 0; step < 6; ++step) {
            if (isShown(QString("frm_%1").arg(step)))
                shown.append(step);
        }
        return shown;
    }

    void choosePages(const std::vector<std::string>& names, const std::string& folder = "/site") {
        dialogs.expectOpenFiles({folder, names});
        click("BtnInputFile");
    }
    /// Puts pages into the folder that integration would drop a script from; gives their names.
    std::vector<std::string> addPagesWithAScript(int count) {
        std::vector<std::string> names;
        for (int number = 0; number < count; ++number) {
            names.push_back("p" + std::to_string(number) + ".htm");
            disk.addFile("/site/" + names.back(),
                         "<head></head><body><script>own()</script></body>\n");
        }
        return names;
    }
    /// From the welcome to step 3, with pages, library and definition given.
    void goToMenuFrame(const std::vector<std::string>& names = {"a.htm"}) {
        next();
        choosePages(names);
        next();
        type("txtPath", "/site/js");
        type("txtMenuDef", "/site/menu_def.js");
        next();
    }
    /// Chooses the popup kind at step 3 with its first submenu.
    void choosePopup() {
        wizard.showSubmenus({"Products (1i2)", "Tea (1)"});
        choose("cboIntegration", 1);
        choose("cboMenuList", 0);
    }
    std::string page(const std::string& name = "a.htm") {
        return disk.allFiles().at("/site/" + name);
    }

    WatchedDisk disk;
    HtmlPage parser{disk};
    FakeMessageBox messages{failTest};
    FakeCommonDialogs dialogs{failTest};
    frmIntegrator wizard{{disk, parser, messages, dialogs}, {"/"}, nullptr};
};

}  // namespace

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

    void theKindsOfMenuAndTheTooltips() {
        WizardDesk desk;
        QCOMPARE(desk.list("cboIntegration").count(), 2);
        QCOMPARE(desk.list("cboIntegration").itemText(0), QString("Horizontal or vertical menu"));
        QCOMPARE(desk.list("cboIntegration").itemText(1),
                 QString("Popup menu appearing on mouse events!"));
        QCOMPARE(desk.list("cboIntegration").toolTip(), QString("Horizontal or vertical menu"));
        QCOMPARE(desk.list("cboMenuList").toolTip(), QString("Select submenu"));
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
        WizardDesk desk;
        QCOMPARE(desk.shownFrames(), QList<int>{0});
        QVERIFY(!desk.button("btnBack").isEnabled());
        QCOMPARE(desk.list("cboIntegration").currentIndex(), 0);
        for (const char* name : {"cboMenuList", "optMouse", "optXY", "txtX", "txtY"})
            QVERIFY2(!desk.named<QWidget>(name).isEnabled(), name);
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
        QCOMPARE(desk.button("btnNext").text(), QString("Next >>"));
        desk.next();
        QCOMPARE(desk.shownFrames(), QList<int>{5});
        QCOMPARE(desk.button("btnNext").text(), QString("Finish"));
        desk.next();
        QVERIFY(!desk.wizard.isVisible());
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

    void aPopupMenuWithoutAChoiceStaysAtStep3() {
        WizardDesk desk;
        desk.wizard.showSubmenus({"Products (1i2)"});
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
        QCOMPARE(desk.button("btnNext").text(), QString("Finish"));
        for (const int step : {4, 3, 2, 1, 0}) {
            desk.click("btnBack");
            QCOMPARE(desk.shownFrames(), QList<int>{step});
            QCOMPARE(desk.button("btnNext").text(), QString("Next >>"));
            QVERIFY(desk.button("btnBack").isEnabled());
        }
        desk.click("btnBack");
        QCOMPARE(desk.shownFrames(), QList<int>{0});
        QVERIFY(!desk.button("btnBack").isEnabled());
    }

    void exitClosesAtAnyStep() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.click("btnExit");
        QVERIFY(!desk.wizard.isVisible());
        QCOMPARE(desk.page(), std::string(kPage));
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
        if (isTicked) {
            desk.next();
            desk.click("chkKeepScripts");
            desk.click("btnBack");
        }
        desk.goToMenuFrame();
        desk.next();
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
        QTest::newRow("an apostrophe in a folder") << "/site/it's"
                                                   << "/site/it's/m.js"
                                                   << "enter \"it%27s/\"."
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
        WizardDesk desk;
        const auto enabled = [&] {
            QStringList names;
            for (const char* name : {"cboMenuList", "optMouse", "optXY", "txtX", "txtY"}) {
                if (desk.named<QWidget>(name).isEnabled())
                    names.append(name);
            }
            return names;
        };
        const auto back = [&] { return desk.field("txtX").palette().color(QPalette::Base); };
        const QColor buttonFace = desk.wizard.palette().color(QPalette::Button);
        desk.goToMenuFrame();
        desk.choosePopup();
        QCOMPARE(enabled(), (QStringList{"cboMenuList", "optMouse", "optXY"}));
        QCOMPARE(back(), buttonFace);
        desk.click("optXY");
        QCOMPARE(back(), desk.wizard.palette().color(QPalette::Base));
        QCOMPARE(enabled(), (QStringList{"cboMenuList", "optMouse", "optXY", "txtX", "txtY"}));
        desk.click("optMouse");
        QCOMPARE(enabled(), (QStringList{"cboMenuList", "optMouse", "optXY"}));
        desk.click("optXY");
        desk.choose("cboIntegration", 0);
        QCOMPARE(enabled(), QStringList());
    }

    void aPositionMustBeAnInteger() {
        WizardDesk desk;
        desk.goToMenuFrame();
        desk.choosePopup();
        desk.click("optXY");
        desk.type("txtX", "-20");
        desk.type("txtY", "abc");
        desk.messages.expect(
            "a message about the number", [](const MessageRequest& r) { return !r.text.empty(); },
            MessageBox::Answer::Ok);
        QTest::keyClick(&desk.field("txtY"), Qt::Key_Tab);
        QCOMPARE(desk.field("txtX").text(), QString("-20"));
        QCOMPARE(desk.field("txtY").text(), QString());
    }

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
                                             done);
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
                 std::string("ERROR: /site/gone.htm Not Found!\r\n\r\n\r\n"));
        const FileDialogRequest& request = desk.dialogs.recorded().back().request;
        QCOMPARE(QString::fromStdString(request.filter),
                 QString("Text Files (*.txt;*.log)|*.txt;*.log|All Files (*.*)|*.*"));
        QVERIFY(request.asksBeforeReplacing);
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

    void theLastMessageIsAboutTheLastPage_data() {
        QTest::addColumn<QString>("last");
        QTest::addColumn<bool>("isSuccess");
        QTest::newRow("the last one failed") << "bad.htm" << false;
        QTest::newRow("only the first one failed") << "a.htm" << true;
    }
    void theLastMessageIsAboutTheLastPage() {
        QFETCH(QString, last);
        QFETCH(bool, isSuccess);
        WizardDesk desk;
        desk.disk.addFile("/site/bad.htm", "no page at all");
        desk.goToMenuFrame({isSuccess ? "bad.htm" : "a.htm", last.toStdString()});
        desk.choosePopup();
        desk.next(2);
        if (!isSuccess)
            QCOMPARE(
                desk.label("lblMsg"),
                QString("Menu integration failure. Verify that your input file is a valid HTML "
                        "file containing <head></head> and <body></body> tags"));
        for (const char* name :
             {"txtCode", "btnCopyCode", "lblLinkCode", "txtLinkCode", "btnCopyLinkCode"})
            QCOMPARE(desk.isShown(name), isSuccess);
    }
};

QTEST_MAIN(test_frm_integrator)
#include "test_frm_integrator.moc"
