#include "app/script_view.h"

#include <QFontDatabase>

namespace zev {

namespace {

/// Longest line, in UTF-16 units, that is shown in full. Laying out megabytes of text in one line
/// would stall the window for minutes.
constexpr qsizetype kMaxShownLine = 10'000;

QString withoutOverlongLines(const QString& whole) {
    QString shown;
    shown.reserve(whole.size());
    for (qsizetype start = 0; start < whole.size();) {
        const qsizetype newline = whole.indexOf(u'\n', start);
        const qsizetype end = newline < 0 ? whole.size() : newline + 1;
        const bool isOverlong = end - start > kMaxShownLine;
        shown += QStringView(whole).sliced(start, isOverlong ? kMaxShownLine : end - start);
        if (isOverlong)
            shown += u"\u2026\n"_qs;
        start = end;
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
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
}

void ScriptView::showScript(const std::string& script) {
    if (script == m_script)
        return;
    m_script = script;
    setPlainText(withoutOverlongLines(QString::fromStdString(script)));
}

}  // namespace zev
