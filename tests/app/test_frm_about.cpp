// SPDX-License-Identifier: MIT
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <string>
#include <vector>

#include "app/frm_about.h"
#include "app/icons.h"
#include "theme_palettes.h"

using namespace zev;

class test_frm_about : public QObject {
    Q_OBJECT

  private slots:
    void init() { show(vendorAddresses("zevmenu.example")); }
    void showsNameAndVersion();
    void showsTheProgramsIcon();
    void linksOpenByMouse_data() { addLinks(); }
    void linksOpenByMouse();
    void linksOpenByKeyboard_data() { addLinks(); }
    void linksOpenByKeyboard();
    void linksAreReadable_data();
    void linksAreReadable();
    void linksLeadToTheManualWhereThereIsNoSite_data() { addLinks(); }
    void linksLeadToTheManualWhereThereIsNoSite();
    void everythingIsReachedByTab();
    void closes_data();
    void closes();

  private:
    void show(const VendorAddresses& vendor);
    static void addLinks();
    QLabel& label(const char* name) { return *m_about->findChild<QLabel*>(name); }

    std::vector<std::string> m_opened;
    std::unique_ptr<frmAbout> m_about;
};

void test_frm_about::show(const VendorAddresses& vendor) {
    m_opened.clear();
    m_about = std::make_unique<frmAbout>(
        vendor, [this](const std::string& address) { m_opened.push_back(address); });
    m_about->show();
    m_about->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_about.get()));
}

void test_frm_about::addLinks() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("address");
    QTest::newRow("web site") << "cmdWebSite"
                              << "https://zevmenu.example/";
    QTest::newRow("e-mail") << "cmdEMail"
                            << "mailto:support@zevmenu.example";
}

void test_frm_about::showsNameAndVersion() {
    QCOMPARE(m_about->objectName(), QString("frmAbout"));
    QCOMPARE(label("lblName").text(), QString("ZEVMenu Creator"));
    QCOMPARE(label("lblVersion").text(), QString("Version " ZEV_VERSION));
}

void test_frm_about::showsTheProgramsIcon() {
    const QIcon before = QApplication::windowIcon();
    QApplication::setWindowIcon(programIcon());
    init();
    int pictures = 0;
    for (const QLabel* label : m_about->findChildren<QLabel*>())
        pictures += label->isVisible() && !label->pixmap().isNull() ? 1 : 0;
    QCOMPARE(pictures, 1);
    QApplication::setWindowIcon(before);
}

void test_frm_about::linksOpenByMouse() {
    QFETCH(QString, name);
    QFETCH(QString, address);
    QPushButton& link = *m_about->findChild<QPushButton*>(name);
    QTest::mouseClick(&link, Qt::LeftButton);
    QCOMPARE(m_opened, std::vector<std::string>{address.toStdString()});
    QVERIFY(m_about->isVisible());
}

void test_frm_about::linksOpenByKeyboard() {
    QFETCH(QString, name);
    QFETCH(QString, address);
    QPushButton& link = *m_about->findChild<QPushButton*>(name);
    for (int tabs = 0; tabs < 5 && !link.hasFocus(); ++tabs)
        QTest::keyClick(m_about->focusWidget(), Qt::Key_Tab);
    QVERIFY(link.hasFocus());
    QTest::keyClick(&link, Qt::Key_Return);
    QCOMPARE(m_opened, std::vector<std::string>{address.toStdString()});
    QVERIFY(m_about->isVisible());
}

void test_frm_about::linksAreReadable_data() {
    QTest::addColumn<bool>("isDark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void test_frm_about::linksAreReadable() {
    QFETCH(bool, isDark);
    const QPalette before = QApplication::palette();
    QApplication::setPalette(isDark ? darkPalette() : lightPalette());
    init();
    for (const char* name : {"cmdWebSite", "cmdEMail"}) {
        const QPalette colours = m_about->findChild<QPushButton*>(name)->palette();
        const double ratio =
            contrast(colours.color(QPalette::ButtonText), colours.color(QPalette::Window));
        QVERIFY2(ratio >= 4.5, qPrintable(QString("%1: %2").arg(name).arg(ratio)));
    }
    QApplication::setPalette(before);
}

void test_frm_about::linksLeadToTheManualWhereThereIsNoSite() {
    QFETCH(QString, name);
    show({});
    QPushButton& link = *m_about->findChild<QPushButton*>(name);
    QCOMPARE(link.text(), QString("see the manual"));
    QTest::mouseClick(&link, Qt::LeftButton);
    QCOMPARE(m_opened, std::vector<std::string>{""});
    // The manual's window could not be used behind it.
    QVERIFY(!m_about->isVisible());
}

void test_frm_about::everythingIsReachedByTab() {
    QCOMPARE(m_about->focusWidget()->objectName(), QString("cmdOK"));
    QStringList visited;
    for (int tabs = 0; tabs < 3; ++tabs) {
        QTest::keyClick(m_about->focusWidget(), Qt::Key_Tab);
        visited << m_about->focusWidget()->objectName();
    }
    QCOMPARE(visited, (QStringList{"cmdWebSite", "cmdEMail", "cmdOK"}));
}

void test_frm_about::closes_data() {
    QTest::addColumn<int>("key");
    QTest::newRow("Enter") << int(Qt::Key_Return);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
}

void test_frm_about::closes() {
    QFETCH(int, key);
    QTest::keyClick(m_about->focusWidget(), Qt::Key(key));
    QVERIFY(!m_about->isVisible());
    QVERIFY(m_opened.empty());
}

QTEST_MAIN(test_frm_about)
#include "test_frm_about.moc"
