// SPDX-License-Identifier: MIT
#include "app/script_view.h"

#include <QFontDatabase>
#include <QWindow>
#include <algorithm>
#include <string_view>
#include <utility>

namespace zev {

namespace {

/// Longest line, in UTF-16 units, that is shown in full. Laying out megabytes of text in one line
/// would stall the window for minutes.
constexpr qsizetype kMaxShownLine = 10'000;

/// Line by line: of a script of hundreds of megabytes a second whole text would be too many.
QString withoutOverlongLines(std::string_view script) {
    constexpr std::size_t kMaxBytesOfUnit = 4;
    QString shown;
    while (!script.empty()) {
        const std::size_t newline = script.find('\n');
        const std::string_view line =
            script.substr(0, newline == std::string_view::npos ? newline : newline + 1);
        const std::size_t begun =
            std::min<std::size_t>(line.size(), kMaxBytesOfUnit * kMaxShownLine);
        const QString text = QString::fromUtf8(line.data(), static_cast<qsizetype>(begun));
        if (text.size() > kMaxShownLine)
            shown += text.first(kMaxShownLine) + u"\u2026\n"_qs;
        else
            shown += text;
        script.remove_prefix(line.size());
    }
    return shown;
}

}  // namespace

ScriptView::ScriptView(QWidget* parent) : QPlainTextEdit(parent) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setLineWrapMode(NoWrap);
}

void ScriptView::showScript(const std::string& script) {
    if (script == m_script)
        return;
    m_script = script;
    m_isBehind = true;
    // The window that is only just coming up need not wait for a text behind another tab.
    const QWindow* const handle = window()->windowHandle();
    if (isVisible() || (handle != nullptr && handle->isExposed()))
        catchUp();
}

void ScriptView::showEvent(QShowEvent* event) {
    // Not before, as the start of the program need not wait for a font behind another tab.
    if (!testAttribute(Qt::WA_SetFont))
        setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    catchUp();
    QPlainTextEdit::showEvent(event);
}

void ScriptView::catchUp() {
    if (std::exchange(m_isBehind, false))
        setPlainText(withoutOverlongLines(m_script));
}

}  // namespace zev
