// SPDX-License-Identifier: MIT
// Every property of a menu, from the dialogs to the menu on the page: typed and chosen in the real
// dialogs, saved on the real disk, shown by the real browser engine, opened again.

#include <QAbstractButton>
#include <QComboBox>
#include <QCursor>
#include <QImage>

#include "dialogs/frm_adv_prop.h"
#include "dialogs/frm_default_prop.h"
#include "dialogs/frm_menu_prop.h"
#include "editor_on_disk.h"
#include "page_probe.h"

using namespace zev;

namespace {

constexpr int kPageTimeMs = 30000;

struct Text {
    const char* field;
    const char* text;
};

/// What the lines of the definition are to be, without their line ends.
const QStringList kDefaultLines = {
    "zev_state.columns = 2;",
    "zev_state.bgimage = 'images/defaults.png';",
    "zev_state.hbgcolor = '#E0A030';",
    "zev_state.hftcolor = '#101112';",
    "zev_state.nbgcolor = '#204060';",
    "zev_state.nftcolor = '#F0F1E0';",
    "zev_state.hspacing = 4;",
    "zev_state.menuoffset = 7;",
    "zev_state.closedelay = 900;",
    "zev_state.position = 'left';",
    "zev_state.fontFamily = 'DejaVu Serif';",
    "zev_state.fontSize = '12pt';",
    "zev_state.fontStyle = 'italic';",
    "",
};

const QStringList kTopMenuLines = {
    "zevmenu = new ZEVMenu('0');",
    "zevmenu.columns = 4;",
    "zevmenu.bgimage = 'images/top.png';",
    "zevmenu.hbgcolor = '#FFFF80';",
    "zevmenu.hftcolor = '#800000';",
    "zevmenu.nbgcolor = '#E0E8F0';",
    "zevmenu.nftcolor = '#203040';",
    "zevmenu.hspacing = 12;",
    "zevmenu.position = 'right';",
    "zevmenu.ffade = '0.5';",
    "zevmenu.fopacity = '90';",
    "zevmenu.fshadow = '#808080';",
    "zevmenu.fontFamily = 'DejaVu Sans';",
    "zevmenu.fontSize = '15pt';",
    "zevmenu.fontStyle = 'none';",
    "zevmenu.fontWeight = 'bold';",
    "zevmenu.htmlAfter = '&nbsp;!';",
    "zevmenu.htmlBefore = '<b title=\\'new\\'>*</b>&nbsp;';",
    "zevmenu.itemborder = '2px dashed #0000FF';",
    "zevmenu.menuborder = '3px solid #00FF00';",
    "zevmenu.target = 'main';",
    "zevmenu.cellpadding = 6;",
    "zevmenu.divider = '|';",
    "",
    "zevmenu.AddItem('One', 'one.html', '');",
    "zevmenu.AddItem('Two', 'two.html', '');",
    "zevmenu.AddItem('Three', 'three.html', '');",
    "zevmenu.AddItem('Four', 'four.html', '');",
    "zevmenu.AddItem('Five', 'five.html', '');",
    "",
};

const QStringList kSubmenuLines = {
    "zevmenu = new ZEVMenu('2');",
    "zevmenu.columns = 3;",
    "zevmenu.bgimage = 'images/submenu.png';",
    "zevmenu.hbgcolor = '#FF0000';",
    "zevmenu.hftcolor = '#00FFFF';",
    "zevmenu.nbgcolor = 'transparent';",
    "zevmenu.nftcolor = '#330033';",
    "zevmenu.hspacing = 9;",
    "zevmenu.position = 'bottom';",
    "zevmenu.ffade = '5';",
    "zevmenu.fopacity = '60';",
    "zevmenu.fshadow = '#FF00FF';",
    "zevmenu.fontFamily = 'DejaVu Sans Mono';",
    "zevmenu.fontSize = '9pt';",
    "zevmenu.fontStyle = 'none';",
    "zevmenu.fontWeight = 'bold';",
    "zevmenu.htmlAfter = '';",
    "zevmenu.htmlBefore = '&gt;';",
    "zevmenu.itemborder = '1px solid #00FF00';",
    "zevmenu.menuborder = '4px dotted #0000FF';",
    "zevmenu.target = 'side';",
    "zevmenu.cellpadding = 0;",
    "zevmenu.divider = '<i>/</i>';",
    "",
    "zevmenu.AddItem('Two A', 'twoa.html', '');",
    "zevmenu.AddItem('Two B', 'twob.html', '');",
    "zevmenu.AddItem('Two C', 'twoc.html', '');",
    "zevmenu.AddItem('Two D', 'twod.html', '');",
    "",
};

/// The submenus whose properties are left to the defaults.
const QStringList kOtherLines = {
    "zevmenu = new ZEVMenu('2i1');",
    "",
    "zevmenu.AddItem('Two A A', 'twoaa.html', '');",
    "",
    "zevmenu = new ZEVMenu('3');",
    "",
    "zevmenu.AddItem('Three A', 'threea.html', '');",
    "zevmenu.AddItem('Three B', 'threeb.html', '');",
    "zevmenu.AddItem('Three C', 'threec.html', '');",
    "",
    "zevmenu = new ZEVMenu('3i1');",
    "",
    "zevmenu.AddItem('Deep', 'deep.html', '');",
    "",
};

/// Waits until `script` gives `expected` in the Preview tab.
#define TRY_IN_PREVIEW(script, expected)                                            \
    QTRY_COMPARE_WITH_TIMEOUT(evaluateInPage(*find<QWidget>("WebBrowser"), script), \
                              QVariant(expected), kPageTimeMs)

}  // namespace

class test_properties : public QObject, private EditorOnDisk {
    Q_OBJECT

  private slots:
    void initTestCase();
    void everyPropertyOfTheDefaultsIsSet();
    void everyPropertyOfTheTopMenuIsSet();
    void everyPropertyOfASubmenuIsSet();
    void theSavedFileHoldsThemAll();
    void thePreviewShowsThoseOfTheTopMenu();
    void thePreviewShowsThoseOfTheSubmenu();
    void thePreviewShowsTheDefaultsElsewhere();
    void openBringsThemBack();
    void theDialogsShowWhatWasOpened();
    void anotherDefaultFontChangesTheLinesOfAllMenus();
    void cleanupTestCase();

  private:
    const MenuNode* addItem(const char* button, const QString& caption);
    template <typename Form>
    void fillIn(const std::function<void()>& open, const std::function<void(Form&)>& step);
    void inMenuProperties(const MenuNode* node, const std::function<void(frmMenuProp&)>& step);
    static void press(QWidget& form, const char* button);
    static void typeAll(QWidget& form, const std::vector<Text>& texts);
    static void choosePosition(QWidget& form, const char* position);
    void browse(QWidget& form, const char* picture);
    void chooseFont(QWidget& form, const FontChoice& font);
    void fillInAdvanced(QWidget& form, const std::vector<Text>& texts);
    QStringList savedLines();
    QVariant inPage(const QString& script);

    const MenuNode* m_two = nullptr;
    const MenuNode* m_three = nullptr;
};

/// Adds an item by a button of the toolbar, makes it current and gives it caption and link.
const MenuNode* test_properties::addItem(const char* button, const QString& caption) {
    const MenuNode* before = m_window->document().CurNode();
    clickButton(button);
    if (m_window->document().CurNode() == before)
        clickNode(before->children().back());
    type("txtCaption", caption);
    type("txtURL", caption.toLower().remove(' ') + ".html");
    return m_window->document().CurNode();
}

/// Runs `open`, which is to show a dialog, takes `step` in it, and presses OK.
template <typename Form>
void test_properties::fillIn(const std::function<void()>& open,
                             const std::function<void(Form&)>& step) {
    bool isClosed = false;
    whenShown<Form>([&](Form& form) {
        activate(form);
        step(form);
        press(form, "cmdOK");
        isClosed = !form.isVisible();
        if (!isClosed)
            form.close();
    });
    open();
    QVERIFY(isClosed);
    m_dialogs.verify();
}

void test_properties::inMenuProperties(const MenuNode* node,
                                       const std::function<void(frmMenuProp&)>& step) {
    activate(*m_window);
    clickNode(node);
    fillIn<frmMenuProp>([this] { pressShortcut(Qt::Key_F2, Qt::NoModifier); }, step);
}

void test_properties::press(QWidget& form, const char* button) {
    QTest::mouseClick(findIn<QAbstractButton>(form, button), Qt::LeftButton);
}

void test_properties::typeAll(QWidget& form, const std::vector<Text>& texts) {
    for (const Text& text : texts) {
        typeInto(form, text.field, text.text);
        if (*text.text == '\0')
            QTest::keyClick(findIn<QLineEdit>(form, text.field), Qt::Key_Delete);
    }
}

void test_properties::choosePosition(QWidget& form, const char* position) {
    auto* list = findIn<QComboBox>(form, "cboPosition");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Home);
    for (int steps = list->findText(position); steps > 0; --steps)
        QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(list->currentText(), position);
}

void test_properties::browse(QWidget& form, const char* picture) {
    m_dialogs.expectOpenFile(m_folder.filePath("site/images/").toStdString() + picture);
    press(form, "cmdBrowseBgImg");
}

void test_properties::chooseFont(QWidget& form, const FontChoice& font) {
    m_dialogs.expectChooseFont(font);
    press(form, "cmdFont");
}

void test_properties::fillInAdvanced(QWidget& form, const std::vector<Text>& texts) {
    fillIn<frmAdvProp>([&] { press(form, "cmdAdvanced"); },
                       [&](frmAdvProp& advanced) { typeAll(advanced, texts); });
    activate(form);
}

/// The lines of the saved definition. The last line end is the file's own.
QStringList test_properties::savedLines() {
    const QString text = QString::fromUtf8(bytesOf(m_menuFile));
    QStringList lines = text.split("\r\n");
    while (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

QVariant test_properties::inPage(const QString& script) {
    return evaluateInPage(*find<QWidget>("WebBrowser"), script);
}

void test_properties::initTestCase() {
    start();
    // Where no menu opens under it.
    QCursor::setPos(m_window->geometry().bottomRight() + QPoint(20, 20));
    const QDir folder(m_folder.path());
    QVERIFY(folder.mkdir("site/images"));
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(0xffd080);
    for (const char* name : {"defaults", "top", "submenu"})
        QVERIFY(picture.save(folder.filePath(QString("site/images/%1.png").arg(name))));

    addItem("Add Menu Item", "One");
    m_two = addItem("Add Menu Item", "Two");
    for (const char* caption : {"Two A", "Two B", "Two C", "Two D"}) {
        clickNode(m_two);
        addItem("Add Submenu Item", caption);
    }
    clickNode(m_two->children().front());
    addItem("Add Submenu Item", "Two A A");
    clickNode(m_two);
    m_three = addItem("Add Menu Item", "Three");
    for (const char* caption : {"Three A", "Three B", "Three C"}) {
        clickNode(m_three);
        addItem("Add Submenu Item", caption);
    }
    clickNode(m_three->children().front());
    addItem("Add Submenu Item", "Deep");
    clickNode(m_three);
    addItem("Add Menu Item", "Four");
    addItem("Add Menu Item", "Five");
    saveAs([this] { clickButton("Save"); });
}

void test_properties::everyPropertyOfTheDefaultsIsSet() {
    fillIn<frmDefaultProp>([this] { pressShortcut(Qt::Key_F8, Qt::NoModifier); },
                           [this](frmDefaultProp& form) {
                               choosePosition(form, "Left");
                               typeAll(form, {{"txtCloseDelay", "900"},
                                              {"txtSpacing", "4"},
                                              {"txtColumns", "2"},
                                              {"txtMenuOffset", "7"},
                                              {"txtNBgColor", "#204060"},
                                              {"txtHFtColor", "#101112"},
                                              {"txtNFtColor", "#F0F1E0"}});
                               browse(form, "defaults.png");
                               m_dialogs.expectChooseColor(0x30A0E0);
                               press(form, "cmdHBgColor");
                               chooseFont(form, {"DejaVu Serif", 12, true, false});
                           });
}

void test_properties::everyPropertyOfTheTopMenuIsSet() {
    inMenuProperties(
        m_two,
        [this](frmMenuProp& form) {
            choosePosition(form, "Right");
            typeAll(form, {{"txtColumns", "4"},
                           {"txtSpacing", "12"},
                           {"txtHBgColor", "#FFFF80"},
                           {"txtNBgColor", "#E0E8F0"},
                           {"txtHFtColor", "#800000"}});
            browse(form, "top.png");
            m_dialogs.expectChooseColor(0x403020);
            press(form, "cmdNFtColor");
            chooseFont(form, {"DejaVu Sans", 15, false, true});
            fillInAdvanced(form, {{"txtDivider", "|"},
                                  {"txtHTMLBefore", "<b title='new'>*</b>&nbsp;"},
                                  {"txtHTMLAfter", "&nbsp;!"},
                                  {"txtTarget", "main"},
                                  {"txtItemBorder", "2px dashed #0000FF"},
                                  {"txtMenuBorder", "3px solid #00FF00"},
                                  {"txtCellPadding", "6"},
                                  {"txtFade", "0.5"},
                                  {"txtOpacity", "90"},
                                  {"txtShadow", "#808080"}});
        });
}

void test_properties::everyPropertyOfASubmenuIsSet() {
    inMenuProperties(m_two->children().front(), [this](frmMenuProp& form) {
        choosePosition(form, "Bottom");
        typeAll(form, {{"txtColumns", "3"},
                       {"txtSpacing", "9"},
                       {"txtHBgColor", "#FF0000"},
                       {"txtNBgColor", "transparent"},
                       {"txtHFtColor", "#00FFFF"},
                       {"txtNFtColor", "#330033"}});
        browse(form, "submenu.png");
        chooseFont(form, {"DejaVu Sans Mono", 9, false, true});
        fillInAdvanced(form, {{"txtDivider", "<i>/</i>"},
                              {"txtHTMLBefore", "&gt;"},
                              {"txtHTMLAfter", ""},
                              {"txtTarget", "side"},
                              {"txtItemBorder", "1px solid #00FF00"},
                              {"txtMenuBorder", "4px dotted #0000FF"},
                              {"txtCellPadding", "0"},
                              {"txtFade", "5"},
                              {"txtOpacity", "60"},
                              {"txtShadow", "#FF00FF"}});
    });
    // A submenu of the top menu starts with a position of its own, which is to go.
    inMenuProperties(m_three->children().front(), [](frmMenuProp& form) {
        QCOMPARE(findIn<QComboBox>(form, "cboPosition")->currentText(), "Bottom");
        choosePosition(form, "");
    });
}

void test_properties::theSavedFileHoldsThemAll() {
    activate(*m_window);
    clickButton("Save");
    QStringList expected = kDefaultLines + kTopMenuLines + kSubmenuLines + kOtherLines;
    while (expected.last().isEmpty())
        expected.removeLast();
    QCOMPARE(savedLines(), expected);
    QVERIFY(!m_window->document().bModified());
}

void test_properties::thePreviewShowsThoseOfTheTopMenu() {
    clickTab("Preview");
    TRY_IN_PREVIEW("Boolean(window.ZEVMenu?.shared.sums)", true);
    inPage(bytesOf(ZEV_PAGE_FUNCTIONS));
    TRY_IN_PREVIEW("grid('One')", "4 columns, 12 px apart, |||");
    TRY_IN_PREVIEW("look('One')",
                   "background: rgb(224, 232, 240)\n"
                   "colour: rgb(32, 48, 64)\n"
                   "font: normal, 700, 20px, DejaVu Sans\n"
                   "padding: 6px\n"
                   "item border: 2px dashed rgb(0, 0, 255)\n"
                   "menu border: 3px solid rgb(0, 255, 0)\n"
                   "image: images/top.png\n"
                   "opacity: 0.9\n"
                   "shadow: rgb(128, 128, 128)\n"
                   "text: *_One_!\n"
                   "target: main");
}

void test_properties::thePreviewShowsThoseOfTheSubmenu() {
    // Fades in over its time, and is looked at when it has.
    TRY_IN_PREVIEW("point('Two'); box('Two A').getAnimations()[0].effect.getTiming().duration",
                   5000);
    inPage("box('Two A').getAnimations().forEach(fading => fading.finish()); 0");
    TRY_IN_PREVIEW("gap('Two', 'Two A')", "bottom 7");
    TRY_IN_PREVIEW("grid('Two A')", "3 columns, 9 px apart, //");
    TRY_IN_PREVIEW("look('Two B')",
                   "background: rgba(0, 0, 0, 0)\n"
                   "colour: rgb(51, 0, 51)\n"
                   "font: normal, 700, 12px, DejaVu Sans Mono\n"
                   "padding: 0px\n"
                   "item border: 1px solid rgb(0, 255, 0)\n"
                   "menu border: 4px dotted rgb(0, 0, 255)\n"
                   "image: images/submenu.png\n"
                   "opacity: 0.6\n"
                   "shadow: rgb(255, 0, 255)\n"
                   "text: >Two B\n"
                   "target: side");
    // An item whose submenu is open is highlighted.
    TRY_IN_PREVIEW("look('Two').split('\\n').slice(0, 2).join(' ')",
                   "background: rgb(255, 255, 128) colour: rgb(128, 0, 0)");
    inPage("point('Two A')");
    TRY_IN_PREVIEW("look('Two A').split('\\n').slice(0, 2).join(' ')",
                   "background: rgb(255, 0, 0) colour: rgb(0, 255, 255)");
}

void test_properties::thePreviewShowsTheDefaultsElsewhere() {
    inPage("point('Three')");
    TRY_IN_PREVIEW("isShown('Three A')", true);
    // The top menu is a row, whose own position holds for its submenus.
    TRY_IN_PREVIEW("gap('Three', 'Three A')", "right 7");
    TRY_IN_PREVIEW("grid('Three A')", "2 columns, 4 px apart, ");
    TRY_IN_PREVIEW("look('Three B')",
                   "background: rgb(32, 64, 96)\n"
                   "colour: rgb(240, 241, 224)\n"
                   "font: italic, 400, 16px, DejaVu Serif\n"
                   "padding: 1px\n"
                   "item border: 0px none rgb(240, 241, 224)\n"
                   "menu border: 0px none rgb(240, 241, 224)\n"
                   "image: images/defaults.png\n"
                   "opacity: 1\n"
                   "shadow: rgba(0, 0, 0, 0)\n"
                   "text: __Three B__\n"
                   "target: ");
    inPage("point('Three A')");
    TRY_IN_PREVIEW("isShown('Deep')", true);
    TRY_IN_PREVIEW("gap('Three A', 'Deep')", "left 7");
    TRY_IN_PREVIEW("look('Three A').split('\\n').slice(0, 2).join(' ')",
                   "background: rgb(224, 160, 48) colour: rgb(16, 17, 18)");
}

// A file never brings the offset and the close delay back.
void test_properties::openBringsThemBack() {
    const QStringList saved = savedLines();
    clickTab("Menu");
    clickButton("New");
    QVERIFY(m_window->document().tree().isEmpty());
    m_dialogs.expectOpenFile(m_menuFile.toStdString());
    pressShortcut(Qt::Key_O);
    m_dialogs.verify();
    QVERIFY(QFile::remove(m_menuFile));
    saveAs([this] { m_window->mnuFileSaveAs_Click(); });
    QStringList expected = saved;
    expected.replaceInStrings("zev_state.menuoffset = 7;", "zev_state.menuoffset = 1;");
    expected.replaceInStrings("zev_state.closedelay = 900;", "zev_state.closedelay = 500;");
    QCOMPARE(savedLines(), expected);
}

void test_properties::theDialogsShowWhatWasOpened() {
    const QByteArray saved = bytesOf(m_menuFile);
    const auto read = [](QWidget& form) {
        QStringList texts = {findIn<QComboBox>(form, "cboPosition")->currentText()};
        for (const char* name : {"txtColumns", "txtSpacing", "txtBgImg", "txtHBgColor",
                                 "txtNBgColor", "txtHFtColor", "txtNFtColor"})
            texts << findIn<QLineEdit>(form, name)->text();
        return texts.join('|');
    };
    fillIn<frmDefaultProp>(
        [this] { pressShortcut(Qt::Key_F8, Qt::NoModifier); },
        [&](frmDefaultProp& form) {
            QCOMPARE(read(form), "Left|2|4|images/defaults.png|#E0A030|#204060|#101112|#F0F1E0");
        });
    inMenuProperties(m_window->document().tree().firstNode(), [&](frmMenuProp& form) {
        QCOMPARE(read(form), "Right|4|12|images/top.png|#FFFF80|#E0E8F0|#800000|#203040");
        fillIn<frmAdvProp>([&] { press(form, "cmdAdvanced"); },
                           [](frmAdvProp& advanced) {
                               QCOMPARE(findIn<QLineEdit>(advanced, "txtHTMLBefore")->text(),
                                        "<b title=\\'new\\'>*</b>&nbsp;");
                               QCOMPARE(findIn<QLineEdit>(advanced, "txtOpacity")->text(), "90");
                           });
        activate(form);
    });
    // OK in all three changes nothing of what was opened.
    activate(*m_window);
    clickButton("Save");
    QCOMPARE(bytesOf(m_menuFile), saved);
}

// Menus that agree with the defaults need no line.
void test_properties::anotherDefaultFontChangesTheLinesOfAllMenus() {
    QStringList expected = savedLines();
    fillIn<frmDefaultProp>([this] { pressShortcut(Qt::Key_F8, Qt::NoModifier); },
                           [this](frmDefaultProp& form) {
                               chooseFont(form, {"DejaVu Serif", 12, false, true});
                           });
    activate(*m_window);
    clickButton("Save");
    expected.replaceInStrings("zev_state.fontStyle = 'italic';", "zev_state.fontWeight = 'bold';");
    QCOMPARE(expected.removeAll("zevmenu.fontStyle = 'none';"), 2);
    QCOMPARE(expected.removeAll("zevmenu.fontWeight = 'bold';"), 2);
    QCOMPARE(savedLines(), expected);
}

void test_properties::cleanupTestCase() {
    m_window.reset();
}

QTEST_MAIN(test_properties)
#include "test_properties.moc"
