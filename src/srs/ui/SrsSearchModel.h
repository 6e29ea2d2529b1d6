#pragma once

#include "srs/SrsSearch.h"
#include "srs/ui/SrsTableModel.h"

#include <vector>

namespace vlt::srs {

/// The results of a search as rows.
class SrsSearchModel final : public SrsTableModel
{
    Q_OBJECT

public:
    using SrsTableModel::SrsTableModel;

    /// Sets the search (may be null) and clears the results.
    void setSearch(SharedSrsSearch search);

    /// Shows the results of a query or, if there are none, those of a similar text.
    void find(const SrsQuery &query, const SrsPreferences &preferences);

    /// Clears the results.
    void clear();

    /// The similar text whose results are shown; empty if they are those of the query.
    QString nearText() const { return m_nearText; }

    /// Row of the system with a code; -1 if it is not among the results.
    int rowOfCode(const QString &code) const;

    SrsEntry entryAt(int row) const override;
    const geodata::SrsRecord *systemAt(int row) const override;
    int rowCount(const QModelIndex &parent = {}) const override;

private:
    SharedSrsSearch m_search;
    QString m_nearText;
    std::vector<int> m_found; ///< indices into the systems of m_search
};

} // namespace vlt::srs
