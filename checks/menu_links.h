// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "model/menu_content.h"

namespace zev {

// The menu as links that work without script. Captions become text, characters outside ASCII
// references, so that the result can stand in a page of any encoding.
//
// `base` is the address of the definition file as seen from where the links are to be followed; an
// empty one leaves them relative to the definition.

/// A nested list, a line each item. Empty for an empty menu.
std::string menuLinkList(const MenuContent& content, const std::string& base);

/// The same list on one line, for browsers without script and for crawlers: between <noscript><nav>
/// and their end tags. Empty for an empty menu.
std::string noScriptLinks(const MenuContent& content, const std::string& base);

/// A site map (sitemaps.org) of the pages at http: and https: addresses that the menu leads to,
/// each once, in its order.
std::string siteMap(const MenuContent& content, const std::string& base);

}  // namespace zev
