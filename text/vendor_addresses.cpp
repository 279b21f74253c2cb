// SPDX-License-Identifier: MIT
#include "text/vendor_addresses.h"

namespace zev {

std::string_view vendorSite() {
    return ZEV_VENDOR_SITE;
}

VendorAddresses vendorAddresses(std::string_view site) {
    if (site.empty())
        return {};
    const std::string name(site);
    return {"https://" + name + "/", "support@" + name, "https://" + name + "/support"};
}

}  // namespace zev
