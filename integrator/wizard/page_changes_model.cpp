// SPDX-License-Identifier: MIT
#include "integrator/wizard/page_changes_model.h"

#include <algorithm>
#include <numeric>

namespace zev {

namespace {

QString text(const std::string& bytes) {
    return QString::fromStdString(bytes);
}

/// Why a page cannot be integrated, and what might keep its menu from being seen.
QStringList thingsToKnow(const SurveyedPage& page) {
    if (page.error)
        return {PageChangesModel::tr("cannot be read: %1").arg(text(page.error->reason))};
    const PageFindings& findings = page.findings;
    QStringList things;
    const auto add = [&](bool isSo, const QString& what) {
        if (isSo)
            things.append(what);
    };
    add(findings.hasFrameSet, PageChangesModel::tr("a page of frames"));
    add(findings.isUtf16, PageChangesModel::tr("in UTF-16"));
    add(!findings.hasHead, PageChangesModel::tr("no <head>"));
    add(!findings.hasBody, PageChangesModel::tr("no <body>"));
    add(!findings.hasBodyEnd, PageChangesModel::tr("no </body>"));
    add(!findings.isWritable, PageChangesModel::tr("cannot be written"));
    add(!findings.base.empty(),
        PageChangesModel::tr("<base> leads elsewhere: relative addresses count from %1")
            .arg(text(findings.base)));
    add(findings.isXhtml, PageChangesModel::tr("XHTML"));
    return things;
}

/// What is seen first.
int weightOf(const SurveyedPage& page) {
    if (!page.canBeIntegrated())
        return 0;
    return page.findings.removedScripts.empty() ? 2 : 1;
}

}  // namespace

PageChangesModel::PageChangesModel(const std::vector<std::string>& names,
                                   const std::vector<SurveyedPage>& survey, QObject* parent)
    : QAbstractTableModel(parent), m_names(names), m_survey(survey), m_order(names.size()) {
    std::iota(m_order.begin(), m_order.end(), std::size_t{0});
    const auto known = m_order.begin() + static_cast<std::ptrdiff_t>(survey.size());
    std::stable_sort(m_order.begin(), known, [&](std::size_t left, std::size_t right) {
        return weightOf(survey[left]) < weightOf(survey[right]);
    });
}

int PageChangesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_order.size());
}

int PageChangesModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PageChangesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    return cellText(m_order[static_cast<std::size_t>(index.row())], index.column());
}

QString PageChangesModel::cellText(std::size_t page, int column) const {
    if (column == Page)
        return text(m_names[page]);
    if (page >= m_survey.size())
        return column == ToKnow ? tr("not looked at") : QString();
    const SurveyedPage& known = m_survey[page];
    if (column == ToKnow)
        return thingsToKnow(known).join(u"; ");
    if (column == FoundBefore)
        return known.findings.isIntegrated ? tr("yes") : QString();
    QStringList scripts;
    for (const std::string& name : known.findings.removedScripts)
        scripts.append(text(name));
    return scripts.join(u"; ");
}

QVariant PageChangesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
        case Page:
            return tr("Page");
        case FoundBefore:
            return tr("Found before");
        case Scripts:
            return tr("Scripts that would go");
        default:
            return tr("To know");
    }
}

}  // namespace zev
