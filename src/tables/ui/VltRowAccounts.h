#pragma once

#include "geodata/TableReport.h"

#include <QWidget>

class QLabel;
class QPushButton;

/// How many rows of a table are used, merged and left out, with buttons that save what became of
/// each row, and the rows to be corrected.
class VltRowAccounts : public QWidget
{
    Q_OBJECT

public:
    explicit VltRowAccounts(QWidget *parent = nullptr);

    /// Shows the numbers of a table that was read.
    ///
    /// @param path        of the table
    /// @param connection  by which its rows were read
    void showRows(const vlt::geodata::TableRowCounts &counts, const QString &path,
                  const QString &connection);
    /// Shows nothing: the rows were not read.
    void clear();

private:
    using Write = vlt::Stoppable<vlt::Done> (*)(const QString &connection, const QString &path,
                                                const vlt::Progress &progress);

    void saveReport();
    void saveRejects();
    void save(const QString &title, const QString &suffix, Write write);

    QLabel *m_pwLblRows;
    QPushButton *m_pwPbReport;
    QPushButton *m_pwPbRejects;
    QString m_path;
    QString m_connection;
};
