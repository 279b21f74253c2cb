// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <functional>
#include <string>

class QPushButton;

namespace zev {

/// The About box: the program's name and version, and links to its web site and e-mail address.
class frmAbout : public QDialog {
    Q_OBJECT
  public:
    /// `openAddress` is called with the address of a link that the person follows.
    explicit frmAbout(std::function<void(const std::string&)> openAddress,
                      QWidget* parent = nullptr);

  private:
    QPushButton* makeLink(const QString& name, const QString& address, const QString& shownText);

    std::function<void(const std::string&)> m_openAddress;
};

}  // namespace zev
