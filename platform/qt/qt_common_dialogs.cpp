// SPDX-License-Identifier: MIT
#include "platform/qt/qt_common_dialogs.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFont>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QHeaderView>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTreeView>
#include <cstdlib>
#include <limits>
#include <utility>

#include "platform/qt/message_text.h"
#include "platform/qt/parent_window.h"
#include "platform/qt/qt_message_box.h"
#include "text/program_name.h"

namespace zev {

namespace {

/// In characters: names of 25 beside all that is told of a file.
constexpr int kFileDialogWidth = 110;

/// Qt's own file dialog cuts off kind and date of the files. A desktop's has no such list.
void showWholeColumns(QFileDialog& dialog) {
    const auto* list = dialog.findChild<QTreeView*>("treeView");
    if (list == nullptr)
        return;
    QHeaderView& columns = *list->header();
    columns.setStretchLastSection(false);
    columns.setSectionResizeMode(QHeaderView::ResizeToContents);
    columns.setSectionResizeMode(0, QHeaderView::Stretch);
    dialog.resize(kFileDialogWidth * dialog.fontMetrics().averageCharWidth(), dialog.height());
}

void prepare(QFileDialog& dialog, const FileDialogRequest& request, const QString& lastFolder) {
    dialog.setWindowTitle(QString::fromStdString(request.title));
    // The descriptions name the patterns themselves, and not in Qt's form.
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    const QStringList filters = nameFilters(request.filter);
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(request.filterIndex - 1));

    const QFileInfo preset(QString::fromStdString(request.fileName));
    if (preset.isAbsolute())
        dialog.setDirectory(preset.absolutePath());
    else if (!request.folder.empty())
        dialog.setDirectory(QString::fromStdString(request.folder));
    else if (!lastFolder.isEmpty())
        dialog.setDirectory(lastFolder);
    dialog.selectFile(preset.fileName());
    showWholeColumns(dialog);
}

/// Qt's own dialog tells a filter as it shows it, without the patterns; another tells all of it.
QString wholeFilter(const QFileDialog& dialog, const QString& told) {
    for (const QString& filter : dialog.nameFilters())
        if (filter.startsWith(told + " ("))
            return filter;
    return told;
}

std::string chosenFile(const QFileDialog& dialog, QString& lastFolder) {
    const QString path = dialog.selectedFiles().value(0);
    lastFolder = QFileInfo(path).absolutePath();
    return QDir::toNativeSeparators(path).toStdString();
}

/// Files chosen in an open dialog; no names when they lie in several folders, which is possible
/// where full paths are typed.
ChosenFiles filesOfOneFolder(const QStringList& paths) {
    const QString folder = QFileInfo(paths.value(0)).absolutePath();
    ChosenFiles files{QDir::toNativeSeparators(folder).toStdString(), {}};
    for (const QString& path : paths) {
        const QFileInfo info(path);
        if (info.absolutePath() != folder)
            return {};
        files.names.push_back(info.fileName().toStdString());
    }
    return files;
}

void showSeveralFolders() {
    MessageRequest notice;
    notice.text = "Please choose files of one folder only.";
    notice.icon = MessageRequest::Icon::Exclamation;
    QtMessageBox().show(notice);
}

bool mayReplace(QWidget* parent, const QString& path) {
    QMessageBox question(parent);
    question.setWindowTitle(kProgramName);
    question.setIcon(QMessageBox::Warning);
    question.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    question.setDefaultButton(QMessageBox::No);
    setMessageText(question,
                   QFileInfo(path).fileName() + " already exists.\nDo you want to replace it?");
    return question.exec() == QMessageBox::Yes;
}

/// The name that a family has for a style, such as "Book" or "Bold Oblique"; empty when it has no
/// such style. Of several, the one of the usual weight and width.
QString styleName(const QString& family, const FontChoice& choice) {
    const int usualWeight = choice.isBold ? QFont::Bold : QFont::Normal;
    std::pair<int, qsizetype> nearest(std::numeric_limits<int>::max(), 0);
    QString name;
    for (const QString& style : QFontDatabase::styles(family)) {
        // The database itself does not count oblique styles as italic ones.
        const QFont font = QFontDatabase::font(family, style, QFont().pointSize());
        // Names of other widths ("Condensed Bold") are longer.
        const std::pair distance(std::abs(font.weight() - usualWeight), style.size());
        if (font.italic() == choice.isItalic && font.bold() == choice.isBold &&
            distance < nearest) {
            nearest = distance;
            name = style;
        }
    }
    return name;
}

/// The installed font that is nearest to a choice.
QFont existingFont(const FontChoice& choice) {
    QFont font;
    if (!choice.name.empty())
        // A list as in a style sheet is taken apart; quotes within a script are escaped.
        font = QFont(QString::fromStdString(choice.name).remove(u'\\'));
    if (choice.points > 0)
        font.setPointSizeF(choice.points);
    font.setItalic(choice.isItalic);
    font.setBold(choice.isBold);
    if (!QFontDatabase::families().contains(font.family(), Qt::CaseInsensitive))
        font.setFamily(QFontInfo(font).family());
    // Qt's dialog looks for the style by its name, and without one takes the family's first style,
    // which may be an italic one.
    font.setStyleName(styleName(font.family(), choice));
    return font;
}

/// A choice as a person leaves it in a dialog that opened with the font `shown`. What was not
/// touched stays as it was, also where this system has no such font.
FontChoice changedChoice(FontChoice choice, const QFont& shown, const QFont& chosen) {
    if (chosen.family() != shown.family())
        choice.name = styleSheetFamily(chosen.family()).toStdString();
    if (chosen.pointSizeF() != shown.pointSizeF() || choice.points <= 0)
        choice.points = static_cast<float>(chosen.pointSizeF());
    if (chosen.italic() != shown.italic())
        choice.isItalic = chosen.italic();
    if (chosen.bold() != shown.bold())
        choice.isBold = chosen.bold();
    return choice;
}

/// Underlined and struck out, which a choice does not hold. Their place stays: the sample beside it
/// is as high.
void hideEffects(const QFontDialog& dialog) {
    for (const QCheckBox* effect : dialog.findChildren<QCheckBox*>()) {
        QWidget* const group = effect->parentWidget();
        QSizePolicy policy = group->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        group->setSizePolicy(policy);
        group->hide();
    }
}

}  // namespace

QStringList nameFilters(const std::string& filter) {
    const QStringList parts = QString::fromStdString(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts[i + 1].split(';', Qt::SkipEmptyParts);
        patterns.replaceInStrings(QRegularExpression(R"(^\*\.\*$)"), "*");
        filters << parts[i] + " (" + patterns.join(' ') + ')';
    }
    return filters;
}

QString defaultSuffix(const QString& nameFilter) {
    static const QRegularExpression single(R"(\(\*\.([^*?;\s)]+)\)$)");
    return single.match(nameFilter).captured(1);
}

QString styleSheetFamily(const QString& listed) {
    constexpr std::pair<const char*, const char*> kGenericFamilies[] = {
        {"Sans Serif", "sans-serif"},
        {"Sans", "sans-serif"},
        {"Serif", "serif"},
        {"Monospace", "monospace"},
    };
    for (const auto& [toolkitName, name] : kGenericFamilies)
        if (listed == toolkitName)
            return name;
    static const QRegularExpression foundry(R"( \[[^\]]+\]$)");
    return QString(listed).remove(foundry);
}

std::string QtCommonDialogs::openFile(const FileDialogRequest& request) {
    QFileDialog dialog(parentWindow());
    dialog.setFileMode(QFileDialog::ExistingFile);
    prepare(dialog, request, m_lastFolder);
    return dialog.exec() == QDialog::Accepted ? chosenFile(dialog, m_lastFolder) : std::string();
}

ChosenFiles QtCommonDialogs::openFiles(const FileDialogRequest& request) {
    QFileDialog dialog(parentWindow());
    dialog.setFileMode(QFileDialog::ExistingFiles);
    prepare(dialog, request, m_lastFolder);
    while (dialog.exec() == QDialog::Accepted) {
        ChosenFiles files = filesOfOneFolder(dialog.selectedFiles());
        if (!files.names.empty()) {
            m_lastFolder = QString::fromStdString(files.folder);
            return files;
        }
        showSeveralFolders();
    }
    return {};
}

std::string QtCommonDialogs::openFolder(const FileDialogRequest& request) {
    QFileDialog dialog(parentWindow());
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    prepare(dialog, request, m_lastFolder);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    m_lastFolder = dialog.selectedFiles().value(0);
    return QDir::toNativeSeparators(m_lastFolder).toStdString();
}

std::string QtCommonDialogs::saveFile(const FileDialogRequest& request) {
    QFileDialog dialog(parentWindow());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    // Asked below instead: a desktop's own dialog would ask about the name as it was typed, before
    // the extension is added, and the file that is there would be replaced unasked.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    prepare(dialog, request, m_lastFolder);
    const auto setSuffix = [&](const QString& filter) {
        const QString suffix = defaultSuffix(wholeFilter(dialog, filter));
        dialog.setDefaultSuffix(suffix.isEmpty() ? QString::fromStdString(request.extension)
                                                 : suffix);
    };
    setSuffix(dialog.selectedNameFilter());
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, setSuffix);
    while (dialog.exec() == QDialog::Accepted) {
        const QString path = dialog.selectedFiles().value(0);
        if (!request.asksBeforeReplacing || !QFileInfo::exists(path) ||
            mayReplace(parentWindow(), path))
            return chosenFile(dialog, m_lastFolder);
    }
    return {};
}

std::optional<std::int32_t> QtCommonDialogs::chooseColor(std::int32_t initial) {
    QColorDialog dialog(colorAs<QColor>(initial), parentWindow());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    const QColor color = dialog.selectedColor();
    return color.blue() << 16 | color.green() << 8 | color.red();
}

std::optional<FontChoice> QtCommonDialogs::chooseFont(const FontChoice& initial) {
    QFontDialog dialog(existingFont(initial), parentWindow());
    hideEffects(dialog);
    const QFont shown = dialog.currentFont();
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return changedChoice(initial, shown, dialog.selectedFont());
}

}  // namespace zev
