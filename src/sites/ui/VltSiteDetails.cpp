#include "sites/ui/VltSiteDetails.h"

#include "sites/ColumnDescription.h"
#include "sites/TableTexts.h"
#include "text/RichText.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int ColumnsTab = 0;
constexpr int ProblemsTab = 1;
constexpr int VisibleRows = 6;
constexpr int RowMargin = 6;
const QString Separator = QStringLiteral("  \u2022  ");

QTableView *makeTable(QStandardItemModel *model, const QString &objectName, const QString &name,
                      QWidget *parent)
{
    auto *table = new QTableView(parent);
    table->setObjectName(objectName);
    table->setModel(model);
    table->setAccessibleName(name);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setWordWrap(false);
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + RowMargin);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setHighlightSections(false);
    table->setMinimumHeight((VisibleRows + 1) * table->verticalHeader()->defaultSectionSize());
    return table;
}

QStandardItem *item(const QVariant &value)
{
    auto *made = new QStandardItem;
    made->setData(value, Qt::DisplayRole);
    made->setToolTip(vlt::text::asRichText(value.toString()));
    return made;
}

} // namespace

VltSiteDetails::VltSiteDetails(QWidget *parent)
    : QWidget(parent)
    , m_pwTbFold(new QToolButton(this))
    , m_pwLblWarning(new QLabel(this))
    , m_pwPrChecking(new QProgressBar(this))
    , m_pwPbCancel(new QPushButton(tr("Cancel", "MESS_CANCEL"), this))
    , m_pwTwDetails(new QTabWidget(this))
    , m_columnModel(new QStandardItemModel(this))
    , m_problemModel(new QStandardItemModel(this))
{
    buildHeading();
    buildTables();
    connect(m_pwTbFold, &QToolButton::toggled, this, &VltSiteDetails::fold);
    connect(m_pwPbCancel, &QPushButton::clicked, this, &VltSiteDetails::stopChecking);
    connect(&m_runner, &vlt::sites::SiteCheckRunner::progressed, this,
            [this](double share) { m_pwPrChecking->setValue(qRound(share * 100)); });
    connect(&m_runner, &vlt::sites::SiteCheckRunner::finished, this, &VltSiteDetails::checkEnded);
    connect(&m_runner, &vlt::sites::SiteCheckRunner::failed, this, &VltSiteDetails::checkFailed);
    clear();
}

void VltSiteDetails::buildHeading()
{
    m_pwTbFold->setObjectName(QStringLiteral("m_pwTbFold"));
    m_pwTbFold->setCheckable(true);
    m_pwTbFold->setAutoRaise(true);
    m_pwTbFold->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_pwTbFold->setFocusPolicy(Qt::StrongFocus);
    m_pwTbFold->setToolTip(
        tr("Show the recognised columns and the rows with problems", "MESS_TIP_DETAILS"));
    m_pwLblWarning->setPixmap(QPixmap(QStringLiteral(":/icons/warning.png")));
    m_pwLblWarning->setAccessibleName(tr("Problems", "MESS_PROBLEMS"));
    m_pwPrChecking->setRange(0, 100);
    m_pwPrChecking->setFormat(tr("Checking the rows: %p%", "MESS_CHECKING_ROWS"));
    m_pwPrChecking->setMinimumWidth(fontMetrics().horizontalAdvance(m_pwPrChecking->format()) +
                                    4 * fontMetrics().averageCharWidth());
    m_pwPrChecking->setAccessibleName(tr("Progress of the check", "MESS_CHECK_PROGRESS"));
    m_pwPbCancel->setAutoDefault(false);
    m_pwPbCancel->setToolTip(tr("Stop checking the rows", "MESS_TIP_STOP_CHECK"));

    auto *heading = new QHBoxLayout;
    heading->addWidget(m_pwLblWarning);
    heading->addWidget(m_pwTbFold);
    heading->addStretch(1);
    heading->addWidget(m_pwPrChecking);
    heading->addWidget(m_pwPbCancel);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(heading);
    layout->addWidget(m_pwTwDetails);
}

void VltSiteDetails::buildTables()
{
    m_columnModel->setHorizontalHeaderLabels(
        {tr("Meaning", "MESS_MEANING"), tr("Columns of the table", "MESS_TABLE_COLUMNS")});
    m_problemModel->setHorizontalHeaderLabels(
        {tr("Row", "MESS_ROW"), tr("Column", "MESS_COLUMN"), tr("Problem", "MESS_PROBLEM")});
    const QString columns = tr("Columns", "MESS_COLUMNS");
    const QString problems = tr("Problems", "MESS_PROBLEMS");
    m_pwTwDetails->addTab(
        makeTable(m_columnModel, QStringLiteral("m_pwTvColumns"), columns, m_pwTwDetails), columns);
    auto *problemTable =
        makeTable(m_problemModel, QStringLiteral("m_pwTvProblems"), problems, m_pwTwDetails);
    problemTable->setSortingEnabled(true);
    problemTable->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
    m_pwTwDetails->addTab(problemTable, problems);
}

void VltSiteDetails::fold(bool open)
{
    m_pwTbFold->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
    m_pwTwDetails->setVisible(open);
}

void VltSiteDetails::clear()
{
    m_runner.cancel();
    m_checked.clear();
    m_pwTbFold->setChecked(false);
    fold(false);
    hide();
}

void VltSiteDetails::showFile(const vlt::sites::SiteFileInfo &file)
{
    m_checked.clear();
    m_fileProblems.clear();
    if (const auto nameless = vlt::sites::missingNameField(file))
        m_fileProblems << *nameless;
    showColumns(file.columns);
    endCheck();
    showProblems(m_fileProblems, m_fileProblems.size());
    showSummary({}, !m_fileProblems.isEmpty());
    setVisible(true);
}

void VltSiteDetails::check(const QString &connection)
{
    if (connection == m_checked)
        return;
    m_checked = connection;
    m_pwPrChecking->setValue(0);
    m_pwPrChecking->show();
    m_pwPbCancel->show();
    m_runner.start(connection);
}

void VltSiteDetails::showColumns(const vlt::sites::SiteColumnSet &columns)
{
    m_columnModel->removeRows(0, m_columnModel->rowCount());
    m_recognised = 0;
    for (const vlt::sites::ColumnDescription &entry : vlt::sites::describeColumns(columns)) {
        const QString listed = entry.columns.isEmpty() ? tr("none", "MESS_NO_COLUMN")
                                                       : entry.columns.join(QStringLiteral(", "));
        m_columnModel->appendRow({item(entry.meaning), item(listed)});
        m_recognised += static_cast<int>(entry.columns.size());
    }
    for (auto *table : m_pwTwDetails->findChildren<QTableView *>())
        table->resizeColumnsToContents();
}

void VltSiteDetails::showProblems(const QList<vlt::Problem> &listed, qint64 count)
{
    m_problemModel->removeRows(0, m_problemModel->rowCount());
    for (const vlt::Problem &problem : listed)
        m_problemModel->appendRow({item(problem.row > 0 ? QVariant(problem.row) : QVariant()),
                                   item(problem.column),
                                   item(vlt::sites::tableText(problem.text))});
    if (count > listed.size()) {
        const QString rest = tr("%1 further problems are not listed", "MESS_MORE_PROBLEMS");
        m_problemModel->appendRow({item({}), item({}), item(rest.arg(count - listed.size()))});
    }
    m_pwTwDetails->setTabText(ProblemsTab,
                              tr("Problems", "MESS_PROBLEMS") + QStringLiteral(" (%1)").arg(count));
    m_pwTwDetails->setTabText(ColumnsTab, tr("Columns", "MESS_COLUMNS") +
                                              QStringLiteral(" (%1)").arg(m_recognised));
    for (auto *table : m_pwTwDetails->findChildren<QTableView *>())
        table->resizeColumnsToContents();
}

void VltSiteDetails::showSummary(const QString &rows, bool warns)
{
    QString text = tr("Recognised columns: %1", "MESS_RECOGNISED_COLUMNS").arg(m_recognised);
    if (!rows.isEmpty())
        text += Separator + rows;
    m_pwTbFold->setText(text);
    m_pwLblWarning->setVisible(warns);
}

/// Whatever the check came to: nothing of it goes on.
void VltSiteDetails::endCheck()
{
    m_runner.cancel();
    m_pwPrChecking->hide();
    m_pwPbCancel->hide();
}

void VltSiteDetails::stopChecking()
{
    endCheck();
    showSummary(tr("the rows were not checked", "MESS_ROWS_NOT_CHECKED"),
                !m_fileProblems.isEmpty());
}

void VltSiteDetails::checkEnded(const vlt::geodata::SiteCheck &check)
{
    endCheck();
    const qint64 count = m_fileProblems.size() + check.problems.count;
    showProblems(m_fileProblems + check.problems.listed, count);
    const bool isNonePlaced = check.placement.placed == 0;
    const QString placed = isNonePlaced ? tr("no site can be placed", "MESS_NO_SITE_PLACED")
                                        : tr("sites placed: %1 of %2", "MESS_SITES_PLACED")
                                              .arg(check.placement.placed)
                                              .arg(check.placement.features);
    showSummary(placed + Separator + tr("problems: %1", "MESS_PROBLEM_COUNT").arg(count),
                count > 0);
    if (count > 0)
        m_pwTwDetails->setCurrentIndex(ProblemsTab);
    if (isNonePlaced) // the layer would be empty: the reason must not stay folded away
        m_pwTbFold->setChecked(true);
}

void VltSiteDetails::checkFailed(const QString &reason)
{
    endCheck();
    vlt::Problem problem;
    problem.severity = vlt::Problem::Severity::Error;
    problem.text = reason;
    const QList<vlt::Problem> all = m_fileProblems + QList<vlt::Problem>{problem};
    showProblems(all, all.size());
    showSummary(tr("no site can be placed", "MESS_NO_SITE_PLACED"), true);
    m_pwTwDetails->setCurrentIndex(ProblemsTab);
    m_pwTbFold->setChecked(true);
}
