// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <functional>
#include <string>

#include "text/vendor_addresses.h"

class QPushButton;

namespace zev {

/// The About box: the program's name and version, and links to its web site and e-mail address.
class frmAbout : public QDialog {
    Q_OBJECT
  public:
    /// `openAddress` is called with the address of a link that the person follows. Without
    /// addresses in `vendor` the links lead to the manual: the box closes and `openAddress` is
    /// called with an empty one.
    frmAbout(const VendorAddresses& vendor, std::function<void(const std::string&)> openAddress,
             QWidget* parent = nullptr);

  private:
    QPushButton* makeLink(const QString& name, const std::string& address, QString shownText);
    void follow(const std::string& address);

    std::function<void(const std::string&)> m_openAddress;
};

}  // namespace zev
