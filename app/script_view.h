// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>
#include <string>

namespace zev {

/// The JavaScript tab: the definition script for the eye, to be read and copied. Never the source
/// of what is written to a file.
class ScriptView : public QPlainTextEdit {
    Q_OBJECT
  public:
    explicit ScriptView(QWidget* parent = nullptr);

    /// Shows `script` (UTF-8, CR LF); overlong lines are cut, which an ellipsis shows. A script
    /// that is shown already stays as it is, with the place where the person reads.
    void showScript(const std::string& script);

  private:
    std::string m_script;  ///< as `showScript` was told
};

}  // namespace zev
