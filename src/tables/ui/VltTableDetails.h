#pragma once

#include "geodata/LayerProblems.h"
#include "tables/ColumnDescription.h"
#include "tables/SystemProblems.h"
#include "tables/TableSystems.h"
#include "tables/ui/CheckRunner.h"

#include <QTimer>
#include <QWidget>

class QAbstractItemModel;
class QLabel;
class QProgressBar;
class QPushButton;
class QStandardItemModel;
class QTabWidget;
class QTableView;
class QToolButton;

/// What was understood of a table: the recognised columns and the rows with problems, folded away
/// until the user asks for them. The rows are checked in the background; the user may cancel that.
class VltTableDetails : public QWidget
{
    Q_OBJECT

public:
    explicit VltTableDetails(QWidget *parent = nullptr);

    /// Shows nothing and hides; a running check ends.
    void clear();

Q_SIGNALS:
    /// The rows were checked; the positions lie so to the systems by which they were placed.
    void checked(const vlt::geodata::SystemCheck &systems);

protected:
    /// Shows what is known of a table without reading its rows.
    ///
    /// @param unit  of the table's coordinates, as TableFileInfo has it
    void showTable(const QString &unit, const QList<vlt::tables::ColumnDescription> &columns,
                   const QList<vlt::Problem> &problems);

    /// Starts to check the rows of the table shown, unless the same check was started already.
    ///
    /// @param what      tells one check from another
    /// @param read      runs on another thread and must own all that it uses
    /// @param finished  takes the outcome
    template<typename Check>
    void checkOnce(const QString &what,
                   std::function<vlt::Stoppable<Check>(const vlt::Progress &)> read,
                   std::function<void(const Check &)> finished)
    {
        if (beginsCheck(what))
            m_runner.start(vlt::tables::CheckRunner::reading<Check>(
                std::move(read), std::move(finished),
                [this](const vlt::Error &error) { checkFailed(error); }));
    }

    /// What all checks tell; ends the check.
    ///
    /// @param systems  with which systems the rows were placed
    template<typename Check>
    void showOutcome(const Check &check, const vlt::geodata::SystemPair &systems)
    {
        showOutcome(check.problems, check.placement,
                    vlt::tables::systemProblems(m_unit, systems, check.systems));
        Q_EMIT checked(check.systems);
    }

    /// A further tab with a table of its own.
    QTableView *addTable(QAbstractItemModel *model, const QString &objectName, const QString &name);
    /// Tells how many entries a table has, after a change of them.
    void setTableCount(QTableView *table, const QString &name, qint64 count);

    /// What is folded away, for the tool tip of the button that unfolds it.
    void setContentsTip(const QString &text);

    /// A line that stays visible while the tables are folded away; nothing for an empty text.
    void showRemark(const QString &text);

    /// Shows the tab of the problems and unfolds.
    void unfoldProblems();

private:
    /// Nothing is known of the rows any more.
    virtual void forgetRows() {}
    virtual QString nonePlacedText() const = 0;
    /// "sites placed: %1 of %2"
    virtual QString placedText() const = 0;

    void showOutcome(const vlt::geodata::LayerProblems &problems,
                     const vlt::geodata::LayerPlacement &placement,
                     const QList<vlt::Problem> &systemProblems);
    void buildHeading();
    void buildTables();
    void fold(bool open);
    void showColumns(const QList<vlt::tables::ColumnDescription> &columns);
    void showProblems(const QList<vlt::Problem> &listed, qint64 count);
    void showSummary(const QString &rows, bool warns);
    bool beginsCheck(const QString &what);
    void showProgress(bool shown);
    void endCheck();
    void stopChecking();
    void checkFailed(const vlt::Error &error);

    vlt::tables::CheckRunner m_runner;
    QTimer m_patience; ///< a check that ends within it shows no progress
    QToolButton *m_pwTbFold;
    QLabel *m_pwLblWarning;
    QProgressBar *m_pwPrChecking;
    QPushButton *m_pwPbCancel;
    QLabel *m_pwLblRemark;
    QTabWidget *m_pwTwDetails;
    QStandardItemModel *m_columnModel;
    QStandardItemModel *m_problemModel;
    QTableView *m_pwTvColumns = nullptr;
    QTableView *m_pwTvProblems = nullptr;
    QList<vlt::Problem> m_fileProblems; ///< those known without reading the rows
    QString m_unit;
    int m_recognised = 0;
    QString m_checked; ///< what the last check was of
};
