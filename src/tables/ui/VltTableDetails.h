#pragma once

#include "geodata/LayerProblems.h"
#include "geodata/TableReport.h"
#include "tables/SystemProblems.h"
#include "tables/TableSystems.h"
#include "tables/ui/CheckRunner.h"

#include <QTimer>
#include <QWidget>

#include <optional>

class QAbstractItemModel;
class VltMappingPanel;
class VltRowAccounts;
namespace vlt::tables {
class RowSelection;
}
class QLabel;
class QProgressBar;
class QPushButton;
class QStandardItemModel;
class QTabWidget;
class QTableView;
class QToolButton;

/// The recognised columns of a table and its rows with problems, folded until the user unfolds
/// them. The rows are checked in the background; the user may cancel the check.
class VltTableDetails : public QWidget
{
    Q_OBJECT

public:
    explicit VltTableDetails(QWidget *parent = nullptr);

    /// Removes all contents and hides; stops a running check.
    void clear();

    /// The panel with the roles of the columns; it gets its table before showTable() is called.
    VltMappingPanel *mapping() const { return m_mapping; }

    /// Shows that the table is refused, and its columns, of which the user may choose others.
    void showRefused();

    /// Selects the lines of a row of the file in all lists; 0: none.
    void chooseRow(qint64 row);

    /// Why the layer of the table would be empty; nothing if it is not, or not checked yet.
    std::optional<QString> emptyReason() const;

Q_SIGNALS:
    /// The user selected a row of the file in a list.
    void rowChosen(qint64 row);
    /// The user wants to see what a row of the file gives.
    void rowOpened(qint64 row);
    /// The rows were checked; `systems` has the areas and how many positions lie outside them.
    void checked(const vlt::geodata::SystemCheck &systems);
    /// The rows were checked, and mistakes in their positions were found, or none.
    void mistakesFound(const QList<vlt::geodata::PositionFinding> &findings);
    /// The rows were checked, and the layer would be empty.
    void nonePlaced();

protected:
    /// Shows the properties that are known without reading the table's rows.
    void showTable(const vlt::tables::TableFileInfo &file, const QList<vlt::Problem> &problems);

    /// Starts to check the rows of the shown table, unless the same check was started before.
    ///
    /// @param what        identifies the check
    /// @param connection  of the table, by which the rows are counted
    /// @param read        runs on another thread and must own all data that it uses
    /// @param finished    called with the result
    template<typename Check>
    void checkOnce(const QString &what, const QString &connection,
                   std::function<vlt::Stoppable<Check>(const vlt::Progress &)> read,
                   std::function<void(const Check &)> finished)
    {
        if (!beginsCheck(what))
            return;
        using Both = std::pair<Check, vlt::Result<vlt::geodata::TableRowCounts>>;
        m_runner.start(vlt::tables::CheckRunner::reading<Both>(
            [read, connection](const vlt::Progress &progress) -> vlt::Stoppable<Both> {
                const vlt::Stoppable<Check> check = read(progress);
                if (!check)
                    return std::nullopt;
                if (!*check)
                    return check->error();
                return Both{check->value(), vlt::geodata::readRowCounts(connection)};
            },
            [this, finished, connection](const Both &both) {
                showRows(both.second, connection);
                finished(both.first);
            },
            [this](const vlt::Error &error) { checkFailed(error); }));
    }

    /// Shows the results that all checks have; ends the check.
    ///
    /// @param systems  the systems of the rows and of the project
    template<typename Check>
    void showOutcome(const Check &check, const vlt::geodata::SystemPair &systems)
    {
        showOutcome(vlt::tables::otherProblems(m_file, systems, check.systems, check.problems),
                    check.placement, vlt::tables::systemProblems(m_file, systems, check.systems));
        Q_EMIT checked(check.systems);
        Q_EMIT mistakesFound(vlt::tables::systemFindings(m_file, systems, check.systems) +
                             check.problems.findings);
    }

    /// Adds a tab with a table, whose first column has numbers of rows of the file.
    QTableView *addTable(QAbstractItemModel *model, const QString &objectName, const QString &name);
    /// Shows the number of a table's entries after they changed.
    void setTableCount(QTableView *table, const QString &name, qint64 count);

    /// Sets the tool tip of the button that unfolds: the list of the contents.
    void setContentsTip(const QString &text);

    /// Shows a line that stays visible while the tables are folded; an empty text hides it.
    ///
    /// @param format  with Qt::RichText, its links call followRemark()
    void showRemark(const QString &text, Qt::TextFormat format = Qt::PlainText);

    /// Unfolds and shows the tab of a table.
    void unfold(QTableView *table);

    /// Shows the tab of the problems and unfolds, unless the user sees the columns.
    void unfoldProblems();

private:
    /// Removes all results of reading the rows.
    virtual void forgetRows() {}
    /// The user has activated a link of the remark.
    virtual void followRemark(const QString & /*link*/) {}
    virtual QString nonePlacedText() const = 0;
    /// "sites placed: %1 of %2"
    virtual QString placedText() const = 0;

    void showOutcome(const vlt::geodata::LayerProblems &problems,
                     const vlt::geodata::LayerPlacement &placement,
                     const QList<vlt::Problem> &systemProblems);
    void buildHeading();
    void buildTables();
    void fold(bool open);
    void fitHeight();
    void showProblems(const QList<vlt::Problem> &listed, qint64 count);
    void showRows(const vlt::Result<vlt::geodata::TableRowCounts> &rows, const QString &connection);
    void showSummary(const QString &rows, bool warns);
    bool beginsCheck(const QString &what);
    void showProgress(bool shown);
    void endCheck();
    void stopChecking();
    void checkFailed(const vlt::Error &error);

    vlt::tables::CheckRunner m_runner;
    QTimer m_patience; ///< a check that ends before it expires shows no progress
    QToolButton *m_pwTbFold;
    QLabel *m_pwLblWarning;
    QProgressBar *m_pwPrChecking;
    QPushButton *m_pwPbCancel;
    QLabel *m_pwLblRemark;
    VltRowAccounts *m_rows; ///< before the tabs, as Tab goes
    QTabWidget *m_pwTwDetails;
    VltMappingPanel *m_mapping;
    QList<vlt::tables::RowSelection *> m_rowLists;
    QStandardItemModel *m_problemModel;
    QTableView *m_pwTvProblems = nullptr;
    QList<vlt::Problem> m_fileProblems; ///< known without reading the rows
    vlt::tables::TableFileInfo m_file;  ///< the shown table
    bool m_isNonePlaced = false;        ///< by the last check
    QString m_checked;                  ///< identifies the last check
};
