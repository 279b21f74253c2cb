// SPDX-License-Identifier: MIT
#include "app/notes/editor_notes.h"

#include <utility>

#include "app/notes/menu_fields.h"
#include "checks/link_problems.h"

namespace zev {

EditorNotes::EditorNotes(MenuDocument& document, FileCommands& fileCommands,
                         const EditorServices& services, RunStep runStep)
    : m_document(document),
      m_fileCommands(fileCommands),
      m_services(services),
      m_runStep(std::move(runStep)),
      m_problems(document, [this](const NotePlace& place, const std::string& value) {
          setField("Mend", place, value);
      }) {
    m_problems.changed = [this] { emit changed(); };
    m_document.addObserver(*this);
    m_fileCommands.setListener(*this);
    m_services.browser.scriptFailed = [this](const ScriptError& error) { scriptFailed(error); };
}

EditorNotes::~EditorNotes() {
    m_services.browser.scriptFailed = [](const ScriptError&) {};
    m_document.removeObserver(*this);
}

NoteList EditorNotes::notes(std::size_t most) const {
    NoteList all;
    const auto add = [&](const NoteList& list) {
        all.count += list.count;
        for (const Note& note : list.notes)
            if (all.notes.size() < most)
                all.notes.push_back(note);
    };
    for (std::size_t index = 0; index < m_lists.size(); ++index) {
        const auto kind = static_cast<NoteKind>(index);
        if (!isShown(kind))
            continue;
        // First of its kind: it is done with one click, beside the line.
        if (kind == NoteKind::Opened)
            add(leftDefaultsNotes(m_leftDefaults, m_document.DefaultProp(),
                                  [this](MenuProp kept) { keepDefaults(std::move(kept)); }));
        add(m_lists[index]);
        if (kind == NoteKind::Value)
            add(m_problems.valueNotes(most));
        else if (kind == NoteKind::Unkept)
            add(unkeptNotes(m_problems.unkeptValues()));
        else if (kind == NoteKind::Link)
            add(m_problems.linkNotes(most));
    }
    return all;
}

/// Undo may lead to a document that is as empty as this one, and has another file.
bool EditorNotes::isShown(NoteKind kind) const {
    return (kind != NoteKind::Opened && kind != NoteKind::ChangedOnDisk) ||
           m_document.SaveFile() == m_file;
}

void EditorNotes::checkMenu() {
    lookAtLinks();
    if (notes(1).count == 0) {
        NoteList nothing;
        addNote(nothing, {.kind = NoteKind::Checked, .text = "Nothing was found wrong"});
        set(NoteKind::Checked, std::move(nothing));
    } else {
        emit listAsked();
    }
}

void EditorNotes::keepDefaults(MenuProp kept) const {
    m_runStep(
        "Default Menu Properties",
        [this, &kept] { m_document.setMenu({MenuPropOwner::Kind::Defaults}, std::move(kept)); });
}

void EditorNotes::opened(const OpenedFile& file) {
    m_file = file.path;
    m_leftDefaults = leftDefaults(file.bytes);
    set(NoteKind::Opened, openedNotes(file, m_document.content()));
    lookAtLinks();
}

void EditorNotes::imported(const ImportedFile& file) {
    set(NoteKind::Imported, importedNotes(file, m_document.content()));
}

void EditorNotes::saved() {
    m_leftDefaults = {};
    for (const NoteKind kind : {NoteKind::Opened, NoteKind::Imported, NoteKind::Recalculated,
                                NoteKind::ChangedOnDisk, NoteKind::Checked})
        clear(kind);
    m_keptVersion.clear();
    lookAtLinks();
}

void EditorNotes::recalculated(const Changes& inverses, const std::string& oldFolder) {
    set(NoteKind::Recalculated,
        recalculatedNotes(
            inverses, m_document, oldFolder,
            [this](const std::string& step, const NotePlace& place, const std::string& value) {
                setField(step, place, value);
            }));
}

void EditorNotes::changedOnDisk(const std::string& kept) {
    // What was kept of it stays at hand until it is decided on.
    if (kept.empty() && !m_keptVersion.empty())
        return;
    m_file = m_document.SaveFile();
    m_keptVersion = kept;
    set(NoteKind::ChangedOnDisk,
        changedFileNotes(m_document.SaveFile(), kept,
                         {[this] {
                              m_runStep("Reload", [this] {
                                  m_fileCommands.reload(std::string(m_keptVersion));
                              });
                          },
                          [this] {
                              m_keptVersion.clear();
                              m_fileCommands.keepMine();
                          },
                          // With what is typed.
                          [this] { m_runStep("", [this] { showDifferences(); }); }}));
}

void EditorNotes::sameOnDisk() {
    if (m_keptVersion.empty())
        clear(NoteKind::ChangedOnDisk);
}

void EditorNotes::previewed() {
    clear(NoteKind::Script);
}

void EditorNotes::contentReplaced() {
    m_lists = {};
    m_leftDefaults = {};
    m_keptVersion.clear();
    emit changed();
}

void EditorNotes::itemChanged(const MenuNode& /*node*/) {
    dropOverNotes();
    touched();
}

void EditorNotes::menuChanged(const MenuPropOwner& /*owner*/) {
    dropOverNotes();
    touched();
}

void EditorNotes::set(NoteKind kind, NoteList list) {
    listOf(kind) = std::move(list);
    emit changed();
}

/// What was found of the menu is no more than what was.
void EditorNotes::touched() {
    clear(NoteKind::Checked);
}

void EditorNotes::dropOverNotes() {
    NoteList& list = listOf(NoteKind::Recalculated);
    list.count -= std::erase_if(list.notes, [this](const Note& note) {
        return note.value && fieldValue(m_document, note.place) != *note.value;
    });
}

/// Nobody has asked for what is looked at after Open and Save.
void EditorNotes::lookAtLinks() {
    m_problems.setLinkProblems(
        findBrokenLinks(m_document.content(), m_services.files,
                        {.definition = m_document.SavePath(), .isUnasked = true}));
}

void EditorNotes::showDifferences() {
    const std::string& path = m_keptVersion.empty() ? m_document.SaveFile() : m_keptVersion;
    const FileResult<std::string> other = m_services.files.readFile(path, kMaxDefinitionFileBytes);
    if (!other.isOk())
        return;
    NoteList& list = listOf(NoteKind::ChangedOnDisk);
    std::erase_if(list.notes, [](const Note& note) { return note.isDetail; });
    for (Note& note : differenceNotes(m_document.content(), other.value()).notes)
        addNote(list, std::move(note));
    emit changed();
    emit listAsked();
}

void EditorNotes::scriptFailed(const ScriptError& error) {
    set(NoteKind::Script,
        scriptErrorNotes(placeOfLine(m_document.content(), error.line), error.line, error.message));
}

void EditorNotes::setField(const std::string& step, const NotePlace& place,
                           const std::string& value) {
    m_runStep(
        step, [this, &place, &value] { setFieldValue(m_document, place, value); });
}

}  // namespace zev
