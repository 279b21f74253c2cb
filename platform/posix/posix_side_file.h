// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>
#include <vector>

#include "platform/posix/posix_descriptor.h"
#include "platform/posix/posix_write_target.h"

namespace zev {

/// A file that exists only while another one is being replaced. It is locked as long as this object
/// lives, which tells it from the leftover of a killed run. It is removed when the object goes,
/// unless it was handed over.
///
///     .menu.js.zev-k3Xw9a~      new content, on its way to be renamed to menu.js; where the caller
///                               gives it a name of its own, that
///     menu.js.zev-k3Xw9a~       old content, kept while menu.js is written in place; not hidden,
///                               for after a power failure it may be the only whole one
class SideFile {
  public:
    enum class Kind { NewContent, OldContent };

    SideFile() = default;
    SideFile(const SideFile&) = delete;
    SideFile& operator=(const SideFile&) = delete;
    ~SideFile();

    /// Makes the file beside the target, open for reading and writing. 0 or an errno. A temporary
    /// name that is in use is waited for.
    int makeBeside(const WriteTarget& target, Kind kind, unsigned mode);
    /// The same in the folder for temporary files, for old content.
    int makeInTemporaryFolder(const WriteTarget& target, unsigned mode);

    int descriptor() const { return m_file.get(); }
    /// The file's fstat() when it was made.
    const struct stat& status() const { return m_status; }
    const std::string& path() const { return m_path; }
    /// The folder it was made in.
    const std::string& folder() const { return m_folder; }
    /// From now on the file stays: it was renamed, or holds the only good copy.
    void handOver() { m_path.clear(); }

  private:
    int makeByPrefix(const std::string& folder, const std::string& prefix, unsigned mode);
    int makeByName(const std::string& folder, const std::string& name, unsigned mode);
    int make(const std::string& folder, const std::string& name, unsigned mode);

    std::string m_folder;
    std::string m_path;
    PosixDescriptor m_file;
    struct stat m_status = {};
};

/// The side files that lay in a folder when it was first asked for. It is not listed again until
/// another folder is asked for: whoever writes every file of a large folder would list it each
/// time. What is left there meanwhile waits for the next run.
class FolderLeftovers {
  public:
    /// File names, valid until the next call. None in a folder that cannot be listed.
    const std::vector<std::string>& namesIn(const std::string& folder);
    /// Whether files could be made in the folder of the last call of `namesIn` then.
    bool isWritable() const { return m_isWritable; }

  private:
    std::optional<std::string> m_folder;
    bool m_isWritable = false;
    std::vector<std::string> m_names;
};

/// Removes what killed runs left of new content for the target. Returns the paths of what they left
/// of old content, which must stay until the target is whole again.
std::vector<std::string> clearLeftovers(const WriteTarget& target, FolderLeftovers& beside);

/// Removes a leftover unless a live process still holds it.
void removeLeftover(const std::string& path);

}  // namespace zev
