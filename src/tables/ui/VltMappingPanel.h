#pragma once

#include "tables/MappingFiles.h"
#include "tables/RoleTable.h"

#include <QTimer>
#include <QWidget>

#include <memory>

namespace Ui {
class MappingPanel;
}
namespace vlt::tables {
class ExcerptModel;
class RoleModel;
} // namespace vlt::tables

/// How a table was understood: its shape, the roles of its columns, its first rows; and what the
/// user may choose instead. The panel shows a choice after showTable() has the table that results.
class VltMappingPanel : public QWidget
{
    Q_OBJECT

public:
    explicit VltMappingPanel(QWidget *parent = nullptr);
    ~VltMappingPanel() override;

    /// @param file  the mapping file in use
    void showTable(const vlt::tables::UnderstoodTable &table, const vlt::tables::MappingFile &file);

    /// Shows a mapping with which the table cannot be read; all else stays.
    void showRefused(const vlt::tables::MappingFile &file);

    /// The number of columns that have a role.
    int columnsFound() const;

    /// No size while the panel is an ignored tab: the current one alone determines the height.
    QSize sizeHint() const override;

Q_SIGNALS:
    void mappingChosen(const vlt::contract::ColumnMapping &mapping);
    /// The mapping is to be saved beside the table.
    void savingWanted();

private:
    void buildRoles();
    void buildExcerpt();
    void connectChoices();
    void editRole(const QModelIndex &index);
    void showHeader();
    void showMappingFile(const vlt::tables::MappingFile &file);
    void chooseHeader();
    void chooseLater(const vlt::contract::ColumnMapping &mapping);

    std::unique_ptr<Ui::MappingPanel> m_ui;
    vlt::tables::RoleModel *m_roles;
    vlt::tables::ExcerptModel *m_excerpt;
    vlt::tables::UnderstoodTable m_table;
    QTimer m_headerTimer; ///< combines quick steps of the spin boxes into one choice
};
