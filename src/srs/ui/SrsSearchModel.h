#pragma once

#include "srs/SrsSearch.h"
#include "srs/ui/SrsTableModel.h"

#include <vector>

namespace vlt::srs {

/// The systems that a search has found.
class SrsSearchModel final : public SrsTableModel
{
    Q_OBJECT

public:
    using SrsTableModel::SrsTableModel;

    /// What is searched from now on (may be null); nothing is found yet.
    void setSearch(SharedSrsSearch search);

    /// Shows what a query finds; where that is nothing, what a text near to it finds.
    void find(const SrsQuery &query, const SrsPreferences &preferences);

    /// Shows nothing.
    void clear();

    /// The text that was looked for in place of one that finds nothing; empty otherwise.
    QString nearText() const { return m_nearText; }

    /// Row of a system that has been found; -1 for any other code.
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
