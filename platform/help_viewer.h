// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zev {

/// Shows the user's manual in a window of its own.
class HelpViewer {
  public:
    virtual ~HelpViewer() = default;
    /// Opens a local HTML file, given by full path. A missing file is no error.
    virtual void show(const std::string& path) = 0;
};

}  // namespace zev
