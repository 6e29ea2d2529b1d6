#pragma once

#include "geodata/LayerProblems.h"
#include "sites/SiteColumnSet.h"
#include "sites/SiteFileInfo.h"
#include "sites/ui/SiteCheckRunner.h"

#include <QWidget>

class QProgressBar;
class QPushButton;
class QStandardItemModel;
class QTabWidget;
class QToolButton;

/// What was understood of a table: the recognised columns and the rows with problems, folded away
/// until the user asks for them. The rows are checked in the background; the user may cancel that.
class VltSiteDetails : public QWidget
{
    Q_OBJECT

public:
    explicit VltSiteDetails(QWidget *parent = nullptr);

    /// Shows a table and starts to check its rows.
    ///
    /// @param connection  the table with its options and an absolute path
    void show(const vlt::sites::SiteFileInfo &file, const QString &connection);

    /// Shows nothing and hides; a running check ends.
    void clear();

private:
    void buildHeading();
    void buildTables();
    void fold(bool open);
    void showColumns(const vlt::sites::SiteColumnSet &columns);
    void showProblems(const QList<vlt::Problem> &listed, qint64 count);
    void showSummary(const QString &rows);
    void stopChecking();
    void checkEnded(const vlt::geodata::SiteCheck &check);
    void checkFailed(const QString &reason);

    vlt::sites::SiteCheckRunner m_runner;
    QToolButton *m_pwTbFold;
    QProgressBar *m_pwPrChecking;
    QPushButton *m_pwPbCancel;
    QTabWidget *m_pwTwDetails;
    QStandardItemModel *m_columnModel;
    QStandardItemModel *m_problemModel;
    QList<vlt::Problem> m_fileProblems; ///< those known without reading the rows
    int m_recognised = 0;
};
