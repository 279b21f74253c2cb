// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace zev {

// Addresses of links, as the run-time library takes them from a menu and a browser from the
// library.

/// The address without what browsers leave out: white space at its ends, and control characters.
std::string cleanURL(std::string_view url);

/// True for "javascript:" addresses, which run a script and lead nowhere.
bool isScriptURL(std::string_view cleanUrl);

/// A menu's link as seen from where `base`, the address of the definition file, is seen from:
/// relative to a page's folder, say, or absolute. The path has no "." and no ".." but those it
/// begins with. What does not count from the definition's folder stays as it is: addresses with a
/// scheme or host of their own, and those that begin with "#" or "?". What cannot stand in an
/// address or ends an attribute is percent-encoded, as UTF-8; the result is ASCII.
std::string resolveLink(std::string_view base, std::string_view url);

}  // namespace zev
