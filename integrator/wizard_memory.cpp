// SPDX-License-Identifier: MIT
#include "integrator/wizard_memory.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string_view>
#include <utility>

#include "text/path.h"

namespace zev {

namespace {

// Both kinds of file are fields that each end in a zero byte: no path and no text of a field can
// hold one, but any other byte.

constexpr std::string_view kFormat = "zevmenu wizard 1";
constexpr const char* kListName = "definitions";
constexpr std::uint64_t kMaxBytes = std::uint64_t{64} << 20;
/// Fields before the names of the kept scripts and of the pages.
constexpr std::size_t kEntryFields = 14;

void addField(std::string& bytes, std::string_view field) {
    bytes += field;
    bytes += '\0';
}

void addField(std::string& bytes, bool isTrue) {
    addField(bytes, isTrue ? std::string_view("1") : std::string_view("0"));
}

/// What stands behind the last zero byte is no field.
std::vector<std::string> fieldsOf(std::string_view bytes) {
    std::vector<std::string> fields;
    for (std::size_t end = bytes.find('\0'); end != std::string_view::npos;
         end = bytes.find('\0')) {
        fields.emplace_back(bytes.substr(0, end));
        bytes.remove_prefix(end + 1);
    }
    return fields;
}

std::string bytesOf(const std::string& definition, const WizardEntries& entries) {
    const WizardAnswers& answers = entries.answers;
    std::string bytes;
    addField(bytes, kFormat);
    addField(bytes, definition);
    addField(bytes, answers.hasBackups);
    addField(bytes, answers.keepsOtherScripts);
    addField(bytes, answers.library);
    addField(bytes, answers.definition);
    addField(bytes, answers.isPopup);
    addField(bytes, answers.submenuId);
    addField(bytes, answers.placement.isAtMouse);
    addField(bytes, answers.placement.x);
    addField(bytes, answers.placement.y);
    addField(bytes, answers.skipsFailing);
    addField(bytes, entries.pages.folder);
    addField(bytes, std::to_string(answers.keptScripts.size()));
    for (const std::string& name : answers.keptScripts)
        addField(bytes, name);
    for (const std::string& name : entries.pages.names)
        addField(bytes, name);
    return bytes;
}

/// Nothing when some are missing.
std::optional<WizardEntries> entriesFrom(const std::vector<std::string>& fields) {
    WizardEntries entries;
    WizardAnswers& answers = entries.answers;
    answers.hasBackups = fields[2] == "1";
    answers.keepsOtherScripts = fields[3] == "1";
    answers.library = fields[4];
    answers.definition = fields[5];
    answers.isPopup = fields[6] == "1";
    answers.submenuId = fields[7];
    answers.placement = {fields[8] == "1", fields[9], fields[10]};
    answers.skipsFailing = fields[11] == "1";
    entries.pages.folder = fields[12];
    std::size_t keptCount = 0;
    std::from_chars(fields[13].data(), fields[13].data() + fields[13].size(), keptCount);
    const auto kept = fields.begin() + kEntryFields;
    if (keptCount > fields.size() - kEntryFields)
        return {};
    const auto pages = kept + static_cast<std::ptrdiff_t>(keptCount);
    answers.keptScripts.assign(kept, pages);
    entries.pages.names.assign(pages, fields.end());
    return entries;
}

}  // namespace

WizardMemory::WizardMemory(FileSystem& files, std::string folder)
    : m_files(files), m_folder(std::move(folder)) {}

std::string WizardMemory::pathOf(const std::string& name) const {
    return Path::onThisSystem(m_folder).child(name);
}

FileResult<std::vector<WizardMemory::Slot>> WizardMemory::listed() const {
    const FileResult<std::string> file = m_files.readFile(pathOf(kListName), kMaxBytes);
    if (!file.isOk() && file.error().code != FileError::Code::NotFound)
        return file.error();
    const std::vector<std::string> fields = fieldsOf(file.isOk() ? file.value() : "");
    std::vector<Slot> list;
    for (std::size_t i = 0; i + 1 < fields.size() && list.size() < kMaxDefinitions; i += 2)
        list.push_back({fields[i], fields[i + 1]});
    return list;
}

std::optional<WizardEntries> WizardMemory::recall(const std::string& definition) const {
    if (m_folder.empty())
        return {};
    const FileResult<std::vector<Slot>> all = listed();
    if (!all.isOk())
        return {};
    for (const Slot& slot : all.value()) {
        if (slot.definition != definition)
            continue;
        const FileResult<std::string> file = m_files.readFile(pathOf(slot.name), kMaxBytes);
        if (!file.isOk())
            return {};
        const std::vector<std::string> fields = fieldsOf(file.value());
        // Two editors may have written at the same time: the file says itself whose it is.
        if (fields.size() < kEntryFields || fields[0] != kFormat || fields[1] != definition)
            return {};
        return entriesFrom(fields);
    }
    return {};
}

FileOutcome WizardMemory::remember(const std::string& definition, const WizardEntries& entries) {
    if (m_folder.empty())
        return {};
    if (FileOutcome error = m_files.makeFolder(m_folder))
        return error;
    // Without the list, another definition's file would be written over.
    FileResult<std::vector<Slot>> list = listed();
    if (!list.isOk())
        return list.error();
    std::vector<Slot> all = list.take();
    const auto known = std::find_if(
        all.begin(), all.end(), [&](const Slot& slot) { return slot.definition == definition; });
    Slot slot{"entries" + std::to_string(all.size() + 1), definition};
    if (known != all.end()) {
        slot.name = known->name;
        all.erase(known);
    } else if (all.size() == kMaxDefinitions) {
        slot.name = all.back().name;
        all.pop_back();
    }
    all.insert(all.begin(), slot);
    if (FileOutcome error =
            m_files.writeFile(pathOf(slot.name), bytesOf(definition, entries), Links::Replaced))
        return error;
    std::string bytes;
    for (const Slot& each : all) {
        addField(bytes, each.name);
        addField(bytes, each.definition);
    }
    return m_files.writeFile(pathOf(kListName), bytes, Links::Replaced);
}

}  // namespace zev
