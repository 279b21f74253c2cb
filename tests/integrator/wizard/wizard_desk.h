// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <functional>
#include <string>
#include <vector>

#include "integrator/wizard/frm_integrator.h"
#include "platform/fake/fake_file_system.h"
#include "platform/fake/fake_services.h"

namespace zev {

/// A page that integration succeeds on.
constexpr const char* kPage = "<html><head></head><body>text</body></html>";
inline void failWizardTest(const std::string& problem) {
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

/// While it lives, disabled fields have a back that is neither the window's nor a button's.
class OddDisabledFields {
  public:
    OddDisabledFields() {
        QPalette palette = m_usual;
        palette.setColor(QPalette::Disabled, QPalette::Base, Qt::red);
        QApplication::setPalette(palette);
    }
    ~OddDisabledFields() { QApplication::setPalette(m_usual); }
    OddDisabledFields(const OddDisabledFields&) = delete;
    OddDisabledFields& operator=(const OddDisabledFields&) = delete;

  private:
    const QPalette m_usual = QApplication::palette();
};

/// The wizard over the pages "/site/a.htm" and "/site/b.htm" and the library in "/site/js".
struct WizardDesk {
    explicit WizardDesk(const VendorAddresses& addresses = vendorAddresses("zevmenu.example"))
        : vendor(addresses) {
        disk.addFile("/site/a.htm", kPage);
        disk.addFile("/site/b.htm", kPage);
        for (const char* name : {"zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js"})
            disk.addFile(std::string("/site/js/") + name, "");
        wizard.show();
        wizard.activateWindow();
        if (!QTest::qWaitForWindowActive(&wizard))
            failWizardTest("the wizard does not become active");
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
    /// A button's text without its access key.
    QString caption(const QString& name) { return button(name).text().remove('&'); }
    /// The access keys of what is shown of a kind of control, all of which must have one.
    template <typename Widget>
    QStringList accessKeys() {
        QStringList keys;
        for (const Widget* widget : wizard.findChildren<Widget*>()) {
            const auto* label = qobject_cast<const QLabel*>(static_cast<const QWidget*>(widget));
            if (!widget->isVisible() || (label != nullptr && label->buddy() == nullptr))
                continue;
            const QKeySequence key = QKeySequence::mnemonic(widget->text());
            keys.append(key.isEmpty() ? widget->objectName() + " has none" : key.toString());
        }
        return keys;
    }
    QString label(const QString& name) { return named<QLabel>(name).text(); }
    QString text(const QString& name) { return named<QPlainTextEdit>(name).toPlainText(); }
    QColor backOf(const QString& name) { return field(name).palette().color(QPalette::Base); }
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
        for (int step = 0; step < 6; ++step)
            if (isShown(QString("frm_%1").arg(step)))
                shown.append(step);
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
        wizard.showSubmenus({{"Products", "1i2"}, {"Tea", "1"}});
        choose("cboIntegration", 1);
        choose("cboMenuList", 0);
    }
    std::string page(const std::string& name = "a.htm") {
        return disk.allFiles().at("/site/" + name);
    }

    WatchedDisk disk;
    FakeMessageBox messages{failWizardTest};
    FakeCommonDialogs dialogs{failWizardTest};
    VendorAddresses vendor;
    frmIntegrator wizard{{disk, messages, dialogs, "", "/me/runs", vendor}, {"/"}, nullptr};
};

}  // namespace zev
