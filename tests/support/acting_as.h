// SPDX-License-Identifier: MIT
#pragma once

#include <grp.h>
#include <unistd.h>

#include <cstdlib>
#include <vector>

namespace zev::test {

/// While it lives, this process, which must be root's, acts for another user.
class ActingAs {
  public:
    /// `groups` are those beside the user's own.
    ActingAs(uid_t user, gid_t group, const std::vector<gid_t>& groups) {
        m_isDone = setgroups(groups.size(), groups.data()) == 0 && setegid(group) == 0 &&
                   seteuid(user) == 0;
    }
    ActingAs(const ActingAs&) = delete;
    ActingAs& operator=(const ActingAs&) = delete;
    ~ActingAs() {
        const gid_t root = 0;
        if (seteuid(0) != 0 || setegid(0) != 0 || setgroups(1, &root) != 0)
            std::abort();
    }
    bool isDone() const { return m_isDone; }

  private:
    bool m_isDone = false;
};

}  // namespace zev::test
