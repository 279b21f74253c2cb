// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace zev {

/// Where people find those who built the program. All are empty when the build names no site.
struct VendorAddresses {
    std::string webSite;  ///< "https://menus.example.org/"
    std::string mail;     ///< "support@menus.example.org"
    std::string support;  ///< "https://menus.example.org/support"

    bool isEmpty() const { return webSite.empty(); }
};

/// The host name that this program was built with, "menus.example.org"; empty when it was built
/// without one.
std::string_view vendorSite();

VendorAddresses vendorAddresses(std::string_view site = vendorSite());

}  // namespace zev
