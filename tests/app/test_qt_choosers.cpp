// SPDX-License-Identifier: MIT
// The real colour and font dialogs of Qt, answered with real keys.

#include <QCheckBox>
#include <QColorDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QGroupBox>
#include <QLineEdit>
#include <QListView>
#include <QSpinBox>
#include <QTest>
#include <algorithm>

#include "platform/qt/qt_common_dialogs.h"
#include "when_shown.h"

using namespace zev;

namespace {

bool hasStyle(const QString& family, bool isItalic, bool isBold) {
    const QStringList styles = QFontDatabase::styles(family);
    return std::any_of(styles.begin(), styles.end(), [&](const QString& style) {
        const QFont font = QFontDatabase::font(family, style, 10);
        return font.italic() == isItalic && font.bold() == isBold;
    });
}

bool isGeneric(const QString& listed) {
    return styleSheetFamily(listed) != listed;
}

/// A family with a plain, an italic, a bold and a bold italic style; not the one called `other`.
std::string existingFamily(const QString& other = {}) {
    for (const QString& family : QFontDatabase::families())
        if (family != other && hasStyle(family, false, false) && hasStyle(family, true, false) &&
            hasStyle(family, false, true) && hasStyle(family, true, true))
            return family.toStdString();
    qFatal("no font family with all styles is installed");
}

}  // namespace

class test_qt_choosers : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void theColorDialogStartsWithTheColorAndRoomToMixOthers();
    void aColorIsChosenByItsNumbers();
    void colorCancelledGivesNothing();
    void theFontDialogStartsWithTheFont_data();
    void theFontDialogStartsWithTheFont();
    void theFontDialogStartsWithTheSystemsFontWhenToldNone();
    void aFontStartsInTheStyleThatItsFamilyNamesInItsOwnWay_data();
    void aFontStartsInTheStyleThatItsFamilyNamesInItsOwnWay();
    void aFontThatIsMissingStartsWithOneThatExistsAndStays();
    void aListOfFontsStartsWithItsFirst_data();
    void aListOfFontsStartsWithItsFirst();
    void aNewSizeLeavesFamilyAndStylesAsTheyStand_data();
    void aNewSizeLeavesFamilyAndStylesAsTheyStand();
    void aSizeThatIsNotTouchedKeepsItsFraction();
    void aFamilyIsNamedAsAStyleSheetNamesIt_data();
    void aFamilyIsNamedAsAStyleSheetNamesIt();
    void aGenericFamilyIsChosenByTheNameThatBrowsersKnow();
    void aFontIsChosenWithItsStyle();
    void theFontDialogOffersNoEffectThatAChoiceDoesNotHold();
    void fontCancelledGivesNothing();
    void colorAndFontDialogsBelongToTheActiveWindow();
};

void test_qt_choosers::initTestCase() {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void test_qt_choosers::theColorDialogStartsWithTheColorAndRoomToMixOthers() {
    whenShown<QColorDialog>([](QColorDialog& dialog) {
        QCOMPARE(dialog.currentColor(), QColor(0xFF, 0x80, 0x00));
        QVERIFY(!dialog.testOption(QColorDialog::ShowAlphaChannel));
        const auto numbers = dialog.findChildren<QSpinBox*>();
        QVERIFY(std::count_if(numbers.begin(), numbers.end(), [](const QSpinBox* number) {
                    return number->isVisible() && number->isEnabled();
                }) >= 3);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    QCOMPARE(QtCommonDialogs().chooseColor(0x0080FF), std::optional<std::int32_t>(0x0080FF));
}

void test_qt_choosers::aColorIsChosenByItsNumbers() {
    whenShown<QColorDialog>([](QColorDialog& dialog) {
        const auto texts = dialog.findChildren<QLineEdit*>();
        const auto text = std::find_if(texts.begin(), texts.end(), [](const QLineEdit* each) {
            return each->text().startsWith('#');
        });
        QVERIFY(text != texts.end());
        (*text)->selectAll();
        QTest::keyClicks(*text, "#abcdef");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    QCOMPARE(QtCommonDialogs().chooseColor(0), std::optional<std::int32_t>(0xEFCDAB));
}

void test_qt_choosers::colorCancelledGivesNothing() {
    whenShown<QColorDialog>([](QColorDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QCOMPARE(QtCommonDialogs().chooseColor(0x0080FF), std::optional<std::int32_t>());
}

void test_qt_choosers::theFontDialogStartsWithTheFont_data() {
    QTest::addColumn<bool>("isItalic");
    QTest::addColumn<bool>("isBold");
    QTest::newRow("plain") << false << false;
    QTest::newRow("italic") << true << false;
    QTest::newRow("bold") << false << true;
    QTest::newRow("bold italic") << true << true;
}

void test_qt_choosers::theFontDialogStartsWithTheFont() {
    QFETCH(bool, isItalic);
    QFETCH(bool, isBold);
    const FontChoice initial{existingFamily(), 14, isItalic, isBold};
    whenShown<QFontDialog>([&](QFontDialog& dialog) {
        QCOMPARE(dialog.currentFont().family().toStdString(), initial.name);
        QCOMPARE(dialog.currentFont().pointSize(), 14);
        QCOMPARE(dialog.currentFont().italic(), isItalic);
        QCOMPARE(dialog.currentFont().bold(), isBold);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    QVERIFY(QtCommonDialogs().chooseFont(initial) == initial);
}

void test_qt_choosers::theFontDialogStartsWithTheSystemsFontWhenToldNone() {
    const QFontInfo system{QFont()};
    whenShown<QFontDialog>([&](QFontDialog& dialog) {
        QCOMPARE(dialog.currentFont().pointSize(), system.pointSize());
        QVERIFY(QFontDatabase::families().contains(dialog.currentFont().family()));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    const std::optional<FontChoice> chosen = QtCommonDialogs().chooseFont({});
    QVERIFY(chosen.has_value());
    QVERIFY(!chosen->isItalic);
    QVERIFY(!chosen->isBold);
}

void test_qt_choosers::aFontStartsInTheStyleThatItsFamilyNamesInItsOwnWay_data() {
    QTest::addColumn<QString>("family");
    for (const QString& family : QFontDatabase::families())
        if (hasStyle(family, false, false))
            QTest::newRow(qPrintable(family)) << family;
}

void test_qt_choosers::aFontStartsInTheStyleThatItsFamilyNamesInItsOwnWay() {
    QFETCH(QString, family);
    const FontChoice initial{family.toStdString(), 12, false, false};
    whenShown<QFontDialog>([](QFontDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    const std::optional<FontChoice> chosen = QtCommonDialogs().chooseFont(initial);
    QVERIFY(chosen.has_value());
    QVERIFY(*chosen == initial);
}

void test_qt_choosers::aFontThatIsMissingStartsWithOneThatExistsAndStays() {
    whenShown<QFontDialog>([](QFontDialog& dialog) {
        const QString family = dialog.currentFont().family();
        QVERIFY2(QFontDatabase::families().contains(family), qPrintable(family));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    const FontChoice initial{"No Such Family", 9, false, false};
    const std::optional<FontChoice> chosen = QtCommonDialogs().chooseFont(initial);
    QVERIFY(chosen.has_value());
    QVERIFY(*chosen == initial);
}

void test_qt_choosers::aListOfFontsStartsWithItsFirst_data() {
    QTest::addColumn<QString>("list");
    QTest::newRow("plain") << "%1, No Such Family, serif";
    QTest::newRow("in quotes") << "\"%1\", No Such Family, serif";
    QTest::newRow("escaped, as in a script") << R"(\'%1\', \'No Such Family\', serif)";
}

void test_qt_choosers::aListOfFontsStartsWithItsFirst() {
    QFETCH(QString, list);
    const QString family = QString::fromStdString(existingFamily(QFontInfo(QFont()).family()));
    const FontChoice initial{list.arg(family).toStdString(), 12, false, false};
    whenShown<QFontDialog>([&](QFontDialog& dialog) {
        QCOMPARE(dialog.currentFont().family(), family);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    const std::optional<FontChoice> chosen = QtCommonDialogs().chooseFont(initial);
    QVERIFY(chosen.has_value());
    QVERIFY(*chosen == initial);
}

void test_qt_choosers::aNewSizeLeavesFamilyAndStylesAsTheyStand_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("not installed") << "No Such Family";
    QTest::newRow("list") << R"(\'DejaVu Serif\', Georgia, serif)";
    QTest::newRow("made by") << "Nimbus Sans";
    QTest::newRow("none") << "";
}

void test_qt_choosers::aNewSizeLeavesFamilyAndStylesAsTheyStand() {
    QFETCH(QString, name);
    whenShown<QFontDialog>([](QFontDialog& dialog) {
        QListView* sizes = dialog.findChildren<QListView*>().at(2);
        sizes->setFocus();
        QTest::keyClick(sizes, Qt::Key_End);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    FontChoice expected{name.toStdString(), 12, true, true};
    const std::optional<FontChoice> chosen = QtCommonDialogs().chooseFont(expected);
    QVERIFY(chosen.has_value());
    QVERIFY(chosen->points > 12);
    expected.points = chosen->points;
    QVERIFY(*chosen == expected);
}

void test_qt_choosers::aSizeThatIsNotTouchedKeepsItsFraction() {
    whenShown<QFontDialog>([](QFontDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    const FontChoice initial{existingFamily(), 10.5F, false, false};
    QVERIFY(QtCommonDialogs().chooseFont(initial) == initial);
}

void test_qt_choosers::aFamilyIsNamedAsAStyleSheetNamesIt_data() {
    QTest::addColumn<QString>("listed");
    QTest::addColumn<QString>("name");
    QTest::newRow("sans serif") << "Sans Serif"
                                << "sans-serif";
    QTest::newRow("sans") << "Sans"
                          << "sans-serif";
    QTest::newRow("serif") << "Serif"
                           << "serif";
    QTest::newRow("monospace") << "Monospace"
                               << "monospace";
    QTest::newRow("foundry") << "Nimbus Sans [urw]"
                             << "Nimbus Sans";
    QTest::newRow("of its own") << "Noto Sans Serif"
                                << "Noto Sans Serif";
    QTest::newRow("bracket") << "Odd [name] Sans"
                             << "Odd [name] Sans";
}

void test_qt_choosers::aFamilyIsNamedAsAStyleSheetNamesIt() {
    QFETCH(QString, listed);
    QFETCH(QString, name);
    QCOMPARE(styleSheetFamily(listed), name);
}

void test_qt_choosers::aGenericFamilyIsChosenByTheNameThatBrowsersKnow() {
    if (!QFontDatabase::families().contains("Serif"))
        QSKIP("the toolkit lists no generic family here");
    whenShown<QFontDialog>([](QFontDialog& dialog) {
        QListView* families = dialog.findChildren<QListView*>().at(0);
        families->setFocus();
        QTest::keyClick(families, Qt::Key_End);
        while (families->currentIndex().data().toString() != "Serif")
            QTest::keyClick(families, Qt::Key_Up);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    const std::optional<FontChoice> chosen =
        QtCommonDialogs().chooseFont({existingFamily(), 12, false, false});
    QVERIFY(chosen.has_value());
    QCOMPARE(chosen->name, "serif");
}

void test_qt_choosers::aFontIsChosenWithItsStyle() {
    FontChoice expected;
    whenShown<QFontDialog>([&](QFontDialog& dialog) {
        const auto lists = dialog.findChildren<QListView*>();
        const auto edits = dialog.findChildren<QLineEdit*>();
        QVERIFY(lists.size() == 3 && !edits.isEmpty());
        // Family, style and size, each by the keyboard.
        for (QListView* list : lists.first(2)) {
            list->setFocus();
            QTest::keyClick(list, Qt::Key_End);
            // The toolkit's generic families are no fonts.
            while (list == lists[0] && isGeneric(list->currentIndex().data().toString()))
                QTest::keyClick(list, Qt::Key_Up);
        }
        lists[2]->setFocus();
        QTest::keyClick(lists[2], Qt::Key_Home);
        const QFont shown = dialog.currentFont();
        expected = {shown.family().toStdString(), static_cast<float>(shown.pointSizeF()),
                    shown.italic(), shown.bold()};
        QCOMPARE(expected.name, lists[0]->currentIndex().data().toString().toStdString());
        QCOMPARE(shown.pointSize(), lists[2]->currentIndex().data().toString().toInt());
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    const FontChoice initial{existingFamily(), 20, false, false};
    const std::optional<FontChoice> chosen = QtCommonDialogs().chooseFont(initial);
    QVERIFY(chosen.has_value());
    QVERIFY(*chosen == expected);
    QVERIFY(*chosen != initial);
}

void test_qt_choosers::theFontDialogOffersNoEffectThatAChoiceDoesNotHold() {
    whenShown<QFontDialog>([](QFontDialog& dialog) {
        const auto effects = dialog.findChildren<QCheckBox*>();
        QCOMPARE(effects.size(), 2);
        for (const QCheckBox* effect : effects)
            QVERIFY2(!effect->isVisible(), qPrintable(effect->text()));
        for (const QGroupBox* group : dialog.findChildren<QGroupBox*>())
            QVERIFY2(!group->isVisible() || group->findChild<QCheckBox*>() == nullptr,
                     "an empty frame");
        dialog.reject();
    });
    QtCommonDialogs().chooseFont({});
}

void test_qt_choosers::fontCancelledGivesNothing() {
    whenShown<QFontDialog>([](QFontDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QVERIFY(!QtCommonDialogs().chooseFont({}).has_value());
}

void test_qt_choosers::colorAndFontDialogsBelongToTheActiveWindow() {
    QWidget window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    whenShown<QColorDialog>([&](QColorDialog& dialog) {
        QCOMPARE(dialog.parentWidget(), &window);
        dialog.reject();
    });
    QtCommonDialogs().chooseColor(0);
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    whenShown<QFontDialog>([&](QFontDialog& dialog) {
        QCOMPARE(dialog.parentWidget(), &window);
        dialog.reject();
    });
    QtCommonDialogs().chooseFont({});
}

QTEST_MAIN(test_qt_choosers)
#include "test_qt_choosers.moc"
