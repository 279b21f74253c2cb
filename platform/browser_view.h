// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace zev {

/// An error in a script that a page ran.
struct ScriptError {
    std::size_t line = 0;  ///< of the script, counted from 1
    std::string message;   ///< the browser's own words
};

/// The embedded web browser of the Preview tab. It starts with the first page it is asked to load.
class BrowserView {
  public:
    virtual ~BrowserView() = default;
    /// Loads a local HTML file, given by full path; the page is read afresh, never from a cache.
    /// It may run the files in `scripts`, given by full path, and no others.
    virtual void load(const std::string& path, const std::vector<std::string>& scripts) = 0;
    /// Another menu is at hand: what the person allowed the last one to load is forgotten.
    virtual void forgetAllowedPictures() = 0;

    /// Called for the first error in one of the page's scripts, if there is any.
    std::function<void(const ScriptError& error)> scriptFailed = [](const ScriptError&) {};
};

}  // namespace zev
