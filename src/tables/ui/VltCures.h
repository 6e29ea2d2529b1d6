#pragma once

#include "contract/TableKind.h"
#include "tables/Cures.h"

#include <QWidget>

#include <functional>

class QVBoxLayout;

/// The cures of a table, each with a button: mistakes that were found, what was stated before and
/// can be undone, and the choice of a table that completes it. Hidden while there is none.
class VltCures : public QWidget
{
    Q_OBJECT

public:
    explicit VltCures(vlt::contract::TableKind kind, QWidget *parent = nullptr);

    /// Shows the cures of a table; mistakes are added after its rows were read.
    ///
    /// @param path      of the table
    /// @param mapping   what is stated about it
    /// @param isLacking whether its transmitters, or the positions of its ends, are missing
    void showTable(const QString &path, const vlt::contract::ColumnMapping &mapping,
                   vlt::tables::CoordinateKind coordinates, bool isLacking);
    void showFindings(const QList<vlt::geodata::PositionFinding> &findings);
    void clear();

    /// Sets the widget that Tab leaves for the first button.
    void followInTabOrder(QWidget *widget);

Q_SIGNALS:
    /// The user states something about the table.
    void mappingChosen(const vlt::contract::ColumnMapping &mapping);

private:
    void rebuild();
    void addLine(const QString &text, const QString &action, const QString &objectName,
                 const std::function<void()> &pressed);
    void chooseSecond();
    void orderFocus();

    vlt::contract::TableKind m_kind;
    QVBoxLayout *m_ptVbLines;
    QString m_path;
    vlt::contract::ColumnMapping m_mapping;
    vlt::tables::CoordinateKind m_coordinates = vlt::tables::CoordinateKind::Geographic;
    bool m_isLacking = false;
    QList<vlt::geodata::PositionFinding> m_findings;
    QWidget *m_before = nullptr; ///< in the focus order
};
