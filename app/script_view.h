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
    /// that is shown already stays as it is, with the place where the person reads. Before the
    /// window is on the screen the text waits until the person comes to it or the next script.
    void showScript(const std::string& script);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void catchUp();

    std::string m_script;     ///< as `showScript` was told
    bool m_isBehind = false;  ///< the shown text is not yet that of `m_script`
};

}  // namespace zev
