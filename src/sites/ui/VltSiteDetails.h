#pragma once

#include "geodata/LayerProblems.h"
#include "sites/SiteColumnSet.h"
#include "sites/SiteFileInfo.h"
#include "sites/ui/SiteCheckRunner.h"

#include <QWidget>

class QLabel;
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

    /// Shows what is known of a table without reading its rows.
    void showFile(const vlt::sites::SiteFileInfo &file);

    /// Starts to check the rows of the table shown, unless that was done already.
    ///
    /// @param connection  the table with its coordinate systems and an absolute path
    void check(const QString &connection);

    /// Shows nothing and hides; a running check ends.
    void clear();

private:
    void buildHeading();
    void buildTables();
    void fold(bool open);
    void showColumns(const vlt::sites::SiteColumnSet &columns);
    void showProblems(const QList<vlt::Problem> &listed, qint64 count);
    void showSummary(const QString &rows, bool warns);
    void endCheck();
    void stopChecking();
    void checkEnded(const vlt::geodata::SiteCheck &check);
    void checkFailed(const QString &reason);

    vlt::sites::SiteCheckRunner m_runner;
    QToolButton *m_pwTbFold;
    QLabel *m_pwLblWarning;
    QProgressBar *m_pwPrChecking;
    QPushButton *m_pwPbCancel;
    QTabWidget *m_pwTwDetails;
    QStandardItemModel *m_columnModel;
    QStandardItemModel *m_problemModel;
    QList<vlt::Problem> m_fileProblems; ///< those known without reading the rows
    int m_recognised = 0;
    QString m_checked; ///< connection of the last check
};
