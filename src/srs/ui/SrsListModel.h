#pragma once

#include "srs/SrsEntryList.h"
#include "srs/SrsSearch.h"
#include "srs/ui/SrsTableModel.h"

#include <QList>

namespace vlt::srs {

/// The entries of a list of systems as rows.
class SrsListModel final : public SrsTableModel
{
    Q_OBJECT

public:
    enum class Titles { NameAndCode, AliasAndDefinition };

    SrsListModel(Titles titles, QObject *parent);

    /// Sets the source of kinds and areas of use; without it, these are blank.
    void setSearch(SharedSrsSearch search);

    /// Shows a copy of the list.
    void setEntries(const SrsEntryList &list);

    SrsEntry entryAt(int row) const override;
    const geodata::SrsRecord *systemAt(int row) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    Titles m_titles;
    SharedSrsSearch m_search;
    QList<SrsEntry> m_entries;
};

} // namespace vlt::srs
