// SPDX-License-Identifier: MIT
#include "app/recovery_commands.h"

#include <QDateTime>
#include <QLocale>
#include <QMenu>
#include <algorithm>
#include <utility>

#include "app/strip_line.h"
#include "app/unsaved_changes_window.h"
#include "script/script_reader.h"
#include "script/script_writer.h"
#include "text/path.h"

namespace zev {

namespace {

/// Within a week the day's name is enough.
constexpr qint64 kDaysOfAWeek = 7;

QString timeText(std::int64_t secondsSince1970) {
    const QDateTime time = QDateTime::fromSecsSinceEpoch(secondsSince1970);
    const qint64 days = time.date().daysTo(QDate::currentDate());
    // In the language of the program's own words.
    return QLocale(QLocale::English)
        .toString(time, days >= 0 && days < kDaysOfAWeek ? "dddd HH:mm" : "d MMMM yyyy HH:mm");
}

/// "site/menu.js, 12 changes": the file with the folder that it lies in.
QString contentText(const UnsavedMenu& unsaved) {
    const QString count = unsaved.changeCount == 1
                              ? RecoveryCommands::tr("1 change")
                              : RecoveryCommands::tr("%1 changes").arg(unsaved.changeCount);
    if (unsaved.SaveFile.empty())
        return count;
    const Path path(unsaved.SaveFile);
    const std::string folder(Path(path.folder()).name());
    const std::string file = folder.empty() ? unsaved.SaveFile : Path(folder).child(path.name());
    return QString::fromStdString(file) + ", " + count;
}

}  // namespace

RecoveryCommands::RecoveryCommands(RecoveryHost host, const std::string& folder)
    : m_host(std::move(host)),
      m_store(m_host.files, folder),
      m_keeper(m_host.document, m_host.history.steps(), m_store,
               [] { return QDateTime::currentSecsSinceEpoch(); }) {
    connect(&m_host.history, &EditHistory::stepEnded, this, &RecoveryCommands::keep);
    connect(&m_host.menu, &QMenu::aboutToShow, this, &RecoveryCommands::fillMenu);
    offer();
    keep();
}

void RecoveryCommands::keep() {
    tell(m_keeper.keep());
}

void RecoveryCommands::sync() {
    tell(m_keeper.sync());
}

void RecoveryCommands::leave(bool isGivenUp) {
    m_keeper.leave(isGivenUp);
}

/// That nothing can be kept is said once; the person can go on without.
void RecoveryCommands::tell(const FileOutcome& problem) {
    m_isKept = !problem;
    if (m_isKept || std::exchange(m_hasToldWhy, true))
        return;
    const std::string why = problem->path + ": " + problem->reason;
    m_host.line.say(tr("What is not saved cannot be restored after a crash. %1")
                        .arg(QString::fromStdString(why)),
                    {{tr("Hide"), [this] { offer(); }}});
}

/// Of what crashes have left, the latest is offered first.
void RecoveryCommands::offer() {
    const std::vector<UnsavedMenu> menus = m_store.unsavedMenus();
    const auto crashed =
        std::find_if(menus.begin(), menus.end(), [](const auto& one) { return !one.isGivenUp; });
    if (crashed == menus.end()) {
        m_host.line.say("");
        return;
    }
    const UnsavedMenu unsaved = *crashed;
    m_host.line.say(tr("An unsaved menu of %1 (%2) can be restored")
                        .arg(timeText(unsaved.time), contentText(unsaved)),
                    {{tr("Restore"), [this, unsaved] { restore(unsaved); }},
                     {tr("Show Changes"), [this, unsaved] { showChanges(unsaved); }},
                     {tr("Discard"), [this, unsaved] { discard(unsaved); }}});
}

void RecoveryCommands::fillMenu() {
    m_host.menu.clear();
    for (const UnsavedMenu& unsaved : m_store.unsavedMenus()) {
        QString text = tr("%1 (%2)").arg(timeText(unsaved.time), contentText(unsaved));
        text.replace("&", "&&");
        m_host.menu.addAction(text, this, [this, unsaved] { restore(unsaved); });
    }
    if (m_host.menu.isEmpty())
        m_host.menu.addAction(tr("None"))->setEnabled(false);
}

void RecoveryCommands::restore(const UnsavedMenu& unsaved) {
    std::optional<JournalledMenu> menu = m_store.read(unsaved.journal);
    if (menu) {
        m_host.run("Restore", [&] {
            m_host.document.restore(std::move(menu->content), std::move(menu->SaveFile),
                                    std::move(menu->SavePath), menu->selection);
        });
        // Kept as the document from now on.
        if (m_isKept)
            m_store.discard(unsaved.journal);
    }
    offer();
}

void RecoveryCommands::showChanges(const UnsavedMenu& unsaved) {
    const std::optional<JournalledMenu> menu = m_store.read(unsaved.journal);
    if (!menu) {
        offer();
        return;
    }
    // As a save would leave it: of what it does not write nobody need be told.
    MenuContent after;
    ReadScript(definitionFileBytes(GenerateScript(menu->content)), after);
    MenuContent saved;
    FileResult<std::string> bytes =
        m_host.files.readFile(unsaved.SaveFile, kMaxDefinitionFileBytes);
    if (bytes.isOk())
        ReadScript(bytes.take(), saved);
    UnsavedChangesWindow(saved, after, contentText(unsaved), &m_host.window).exec();
}

void RecoveryCommands::discard(const UnsavedMenu& unsaved) {
    m_store.discard(unsaved.journal);
    offer();
}

}  // namespace zev
