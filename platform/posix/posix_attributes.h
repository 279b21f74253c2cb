// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include <string>
#include <vector>

namespace zev {

/// How much of a file's owner, rights and attributes another file has.
enum class Carried {
    All,
    AllButOwner,  ///< nor the rights tied to the owner, to run with his or the group's
    Less,         ///< unknown: some of it, with an access that may be wider than that of the file
    Failed  ///< the same, for even the mode of a file of one's own cannot be set; errno tells why
};

/// Owner, group, mode and extended attributes (access control lists among them) of a file.
class FileAttributes {
  public:
    /// Of the file `path`, whose lstat() is `status`.
    FileAttributes(const std::string& path, const struct stat& status);

    /// The mode to make a file with that is then given them, so that nobody can open it meanwhile
    /// who may not open the one they are of.
    unsigned modeToBeginWith() const;
    /// Gives them to the open file `descriptor`, whose fstat() is `own`, as far as this user may.
    Carried giveTo(int descriptor, struct stat own) const;

  private:
    bool giveExtendedAttributes(int descriptor, bool& isChanged) const;

    std::string m_path;
    struct stat m_status;
    bool m_areKnown = false;           // false: the extended ones could not be listed
    std::vector<std::string> m_names;  // of the extended ones
};

}  // namespace zev
