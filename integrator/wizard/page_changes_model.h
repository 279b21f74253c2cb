// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <string>
#include <vector>

#include "integrator/survey.h"

namespace zev {

/// What is known of the chosen pages, a row each: those that cannot be integrated first, then those
/// that would lose scripts.
class PageChangesModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    enum Column { Page, FoundBefore, Scripts, ToKnow, ColumnCount };

    /// `survey` may tell of less than all pages; its rows are those of the first of `names`.
    PageChangesModel(const std::vector<std::string>& names, const std::vector<SurveyedPage>& survey,
                     QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    QString cellText(std::size_t page, int column) const;

    const std::vector<std::string>& m_names;
    const std::vector<SurveyedPage>& m_survey;
    std::vector<std::size_t> m_order;  ///< of the pages, row by row
};

}  // namespace zev
