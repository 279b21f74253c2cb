// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace zev {

/// The embedded web browser of the Preview tab. It starts with the first page it is asked to load.
class BrowserView {
  public:
    virtual ~BrowserView() = default;
    /// Loads a local HTML file, given by full path; the page is read afresh, never from a cache.
    /// It may run the files in `scripts`, given by full path, and no others.
    virtual void load(const std::string& path, const std::vector<std::string>& scripts) = 0;
    /// Another menu is at hand: what the person allowed the last one to load is forgotten.
    virtual void forgetAllowedPictures() = 0;
};

}  // namespace zev
