// SPDX-License-Identifier: MIT
// Menus of earlier products, from their files to the menu on the page: imported in the editor's
// window, shown by the real browser engine, saved on the real disk, opened again.

#include <QCursor>
#include <QTextEdit>

#include "editor_on_disk.h"
#include "link_tree.h"
#include "page_probe.h"

using namespace zev;

namespace {

constexpr int kPageTimeMs = 30000;

/// Waits until `script` gives `expected` in the Preview tab. A page that is just being left answers
/// too, so the script must tell the pages apart.
#define TRY_IN_PREVIEW(script, expected) \
    QTRY_COMPARE_WITH_TIMEOUT(inPage(script).toString(), QString(expected), kPageTimeMs)

}  // namespace

class test_import : public QObject, private EditorOnDisk {
    Q_OBJECT

  private slots:
    void initTestCase();
    void anImportedMenuIsLikeAnyOther_data();
    void anImportedMenuIsLikeAnyOther();
    void cleanupTestCase();

  private:
    void importFile(int entry, const QString& path, const QString& warnings);
    void readWarnings(QMessageBox& box, const QString& warnings);
    void lookAtPreview(const QString& folder);
    QVariant inPage(const QString& script);

    QString m_pageFunctions;
};

void test_import::initTestCase() {
    start();
    // Where no menu opens under it.
    QCursor::setPos(m_window->geometry().bottomRight() + QPoint(20, 20));
    m_pageFunctions = bytesOf(ZEV_PAGE_FUNCTIONS);
    // Beside the folders that the menus are shown from, as beside the one they are imported from.
    const QDir folder(m_folder.path());
    QVERIFY(folder.mkdir("images"));
    const QDir images(ZEV_SAMPLES_FOLDER "/images");
    for (const QString& name : images.entryList(QDir::Files))
        QVERIFY(QFile::copy(images.filePath(name), folder.filePath("images/" + name)));
}

void test_import::anImportedMenuIsLikeAnyOther_data() {
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("warnings");
    QTest::addColumn<QString>("topLevel");
    QTest::addColumn<QString>("shape");
    QTest::addColumn<QStringList>("way");
    QTest::newRow("Quillmenu") << 0 << "quillmenu_every_rule.js"
                               << "line 66|line 71|line 72|line 72"
                               << "Start|plants|Seeds|What's on|Address"
                               << "bar" << QStringList{"plants", "Roses", "Wild roses", "Dog rose"};
    QTest::newRow("OrletBar") << 1 << "orletbar_every_rule.txt"
                              << "line 29"
                              << "Start|Plants|Seeds|What's on|Workshops|Tools"
                              << "bar"
                              << QStringList{"Plants", "Roses", "Climbing roses", "Ramblers"};
    QTest::newRow("OrletMenu") << 2 << "orletmenu_every_rule.txt"
                               << "line 19"
                               << "Opening hours|Greenhouses|Garden|Gardener's tips"
                               << "list" << QStringList{"Greenhouses", "Orchids", "Lady's slipper"};
    QTest::newRow("OrletButton") << 3 << "orletbutton_every_rule.txt"
                                 << "line 23"
                                 << "Start|Plants|Seeds|Gardener's advice||Contact|By train"
                                 << "bar" << QStringList{"Plants", "Roses", "Climbing roses"};
}

void test_import::anImportedMenuIsLikeAnyOther() {
    QFETCH(int, entry);
    QFETCH(QString, file);
    QFETCH(QString, warnings);
    const MenuDocument& document = m_window->document();
    clickTab("Menu");
    activate(*m_window);
    importFile(entry, ZEV_SAMPLES_FOLDER "/import/" + file, warnings);
    const QString imported = linkTree(document);
    QVERIFY(!imported.isEmpty());
    QCOMPARE(document.CurNode(), document.tree().firstNode());
    QVERIFY(!document.bModified());
    QCOMPARE(m_window->windowTitle(), QString("ZEVMenu Creator"));
    lookAtPreview("program");
    if (QTest::currentTestFailed())
        return;

    // Named, so that nothing is asked about changes.
    clickTab("Menu");
    m_menuFile = m_folder.filePath("site/" + QString(QTest::currentDataTag()) + ".js");
    saveAs([this] { chooseEntry("mnuFile", Qt::Key_A); });
    const QByteArray saved = bytesOf(m_menuFile);
    QVERIFY(saved.contains("zevmenu.AddItem("));

    clickButton("New");
    QVERIFY(document.tree().isEmpty());
    m_dialogs.expectOpenFile(m_menuFile.toStdString());
    pressShortcut(Qt::Key_O);
    m_dialogs.verify();
    QCOMPARE(linkTree(document), imported);
    lookAtPreview("site");

    clickTab("Menu");
    m_menuFile = m_folder.filePath("site/again.js");
    saveAs([this] { chooseEntry("mnuFile", Qt::Key_A); });
    QCOMPARE(bytesOf(m_menuFile), saved);
}

/// Chooses the entry with this number of File > Import, as a person does with the keyboard, and
/// reads the closing message.
void test_import::importFile(int entry, const QString& path, const QString& warnings) {
    m_dialogs.expectOpenFile(path.toStdString());
    bool isRead = false;
    whenShown<QMessageBox>([&](QMessageBox& box) {
        isRead = true;
        QCOMPARE(box.text(), QString("Finished importing %1. %2 warnings encountered.")
                                 .arg(path)
                                 .arg(warnings.count('|') + 1));
        readWarnings(box, warnings);
    });
    chooseEntry("mnuFile", Qt::Key_I);
    auto* import = find<QMenu>("mnuFileImport");
    QTRY_VERIFY(import->isVisible());
    while (import->activeAction() != import->actions().at(entry))
        QTest::keyClick(import, Qt::Key_Down);
    QTest::keyClick(import, Qt::Key_Return);
    QVERIFY(isRead);
    m_dialogs.verify();
    activate(*m_window);
}

/// Has the details shown, which are to begin with these lines, and closes the message.
void test_import::readWarnings(QMessageBox& box, const QString& warnings) {
    for (QAbstractButton* button : box.buttons())
        if (box.buttonRole(button) == QMessageBox::ActionRole)
            QTest::mouseClick(button, Qt::LeftButton);
    const auto* details = box.findChild<QTextEdit*>();
    QVERIFY(details != nullptr && details->isVisible());
    QStringList lines;
    for (const QString& detail : details->toPlainText().split('\n'))
        lines << detail.section(':', 0, 0);
    QCOMPARE(lines.join('|'), warnings);
    QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
}

/// Goes through the menu of the row being tested as a visitor does, in the page of `folder`.
void test_import::lookAtPreview(const QString& folder) {
    QFETCH(QString, topLevel);
    QFETCH(QString, shape);
    QFETCH(QStringList, way);
    clickTab("Preview");
    TRY_IN_PREVIEW("location.pathname.split('/').at(-2) + ': ' + shownNames()",
                   folder + ": " + topLevel);
    TRY_IN_PREVIEW(
        "items()[1].getBoundingClientRect().top < items()[0].getBoundingClientRect().bottom"
        " ? 'bar' : 'list'",
        shape);
    // Also the pictures of items that are not shown yet.
    TRY_IN_PREVIEW(
        "'missing: ' + items().flatMap(link => [...link.querySelectorAll('img')]).filter("
        "image => !image.complete || !image.naturalWidth).map(image => image.src).join()",
        "missing: ");
    for (qsizetype step = 1; step < way.size(); ++step) {
        QVERIFY(!inPage(QString("isShown(\"%1\")").arg(way[step])).toBool());
        // A visitor's mouse keeps moving; the menu may not listen yet at its first move.
        TRY_IN_PREVIEW(QString("point(\"%1\"), isShown(\"%2\")").arg(way[step - 1], way[step]),
                       "true");
    }
}

QVariant test_import::inPage(const QString& script) {
    return evaluateInPage(*find<QWidget>("WebBrowser"), m_pageFunctions + script);
}

void test_import::cleanupTestCase() {
    m_window.reset();
}

QTEST_MAIN(test_import)
#include "test_import.moc"
