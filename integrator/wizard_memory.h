// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "integrator/wizard_flow.h"

namespace zev {

/// What a person has entered in the wizard.
struct WizardEntries {
    ChosenFiles pages;
    WizardAnswers answers;
    bool operator==(const WizardEntries&) const = default;
};

/// What was last entered for each of the last definitions, in a folder of the user's: a file for
/// each, so that a long list of pages is read and written for its own definition alone, and a list
/// of the definitions, newest first.
class WizardMemory {
  public:
    static constexpr std::size_t kMaxDefinitions = 20;

    /// `files` is not owned and outlives this object. An empty `folder` remembers nothing.
    WizardMemory(FileSystem& files, std::string folder);

    /// `definition`: full path of the definition file. Nothing when there is none in the memory, or
    /// it cannot be read.
    std::optional<WizardEntries> recall(const std::string& definition) const;
    /// Makes it the newest; the oldest is forgotten when there are too many. The folder is made
    /// when missing. After a failure other definitions are still remembered.
    FileOutcome remember(const std::string& definition, const WizardEntries& entries);

  private:
    struct Slot {
        std::string name;  ///< of the file
        std::string definition;
    };
    FileResult<std::vector<Slot>> listed() const;
    std::string pathOf(const std::string& name) const;

    FileSystem& m_files;
    std::string m_folder;
};

}  // namespace zev
