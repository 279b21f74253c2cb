#pragma once

#include <string>

namespace zev {

/// The embedded web browser of the Preview tab. It starts with the first page it is asked to load.
class BrowserView {
  public:
    virtual ~BrowserView() = default;
    /// Loads a local HTML file, given by full path; the page is read afresh, never from a cache.
    virtual void load(const std::string& path) = 0;
};

}  // namespace zev
