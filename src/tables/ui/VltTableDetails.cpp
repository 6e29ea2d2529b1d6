#include "tables/ui/VltTableDetails.h"

#include "language/ErrorText.h"
#include "language/Numbers.h"
#include "language/ReaderText.h"
#include "tables/ui/CopyRows.h"
#include "tables/ui/RowSelection.h"
#include "tables/ui/VltMappingPanel.h"
#include "tables/ui/VltRowAccounts.h"
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

using vlt::language::wholeNumber;

namespace {

constexpr int VisibleRows = 6;
constexpr int RowMargin = 6;
constexpr int PatienceMs = 250;
const QString Separator = QStringLiteral("  \u2022  ");

QStandardItem *item(const QVariant &value)
{
    auto *made = new QStandardItem;
    made->setData(value, Qt::DisplayRole);
    made->setToolTip(vlt::text::asRichText(value.toString()));
    return made;
}

QModelIndex longestText(const QAbstractItemModel &model, int column)
{
    int longest = 0;
    qsizetype most = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
        const qsizetype length = model.index(row, column).data().toString().size();
        if (length > most) {
            most = length;
            longest = row;
        }
    }
    return model.index(longest, column);
}

/// The view measures only a limited number of rows, so the longest texts of longer tables are
/// measured separately.
void fitColumns(QTableView *table)
{
    table->resizeColumnsToContents();
    const QAbstractItemModel &model = *table->model();
    if (model.rowCount() <= table->horizontalHeader()->resizeContentsPrecision())
        return;
    for (int column = 0; column < model.columnCount(); ++column) {
        const int width = table->sizeHintForIndex(longestText(model, column)).width() + 1;
        table->setColumnWidth(column, qMax(width, table->columnWidth(column)));
    }
}

} // namespace

VltTableDetails::VltTableDetails(QWidget *parent)
    : QWidget(parent)
    , m_pwTbFold(new QToolButton(this))
    , m_pwLblWarning(new QLabel(this))
    , m_pwPrChecking(new QProgressBar(this))
    , m_pwPbCancel(new QPushButton(tr("Cancel", "MESS_CANCEL"), this))
    , m_pwLblRemark(new QLabel(this))
    , m_rows(new VltRowAccounts(this))
    , m_pwTwDetails(new QTabWidget(this))
    , m_mapping(new VltMappingPanel(this))
    , m_problemModel(new QStandardItemModel(this))
{
    buildHeading();
    buildTables();
    connect(m_pwTbFold, &QToolButton::toggled, this, &VltTableDetails::fold);
    connect(m_pwTwDetails, &QTabWidget::currentChanged, this, &VltTableDetails::fitHeight);
    connect(m_pwPbCancel, &QPushButton::clicked, this, &VltTableDetails::stopChecking);
    connect(&m_runner, &vlt::tables::CheckRunner::progressed, this,
            [this](double share) { m_pwPrChecking->setValue(qRound(share * 100)); });
    connect(&m_patience, &QTimer::timeout, this, [this] { showProgress(true); });
    m_patience.setSingleShot(true);
    m_patience.setInterval(PatienceMs);
    endCheck();
    showRemark({});
    fold(false);
    hide();
}

void VltTableDetails::buildHeading()
{
    m_pwTbFold->setObjectName(QStringLiteral("m_pwTbFold"));
    m_pwTbFold->setCheckable(true);
    m_pwTbFold->setAutoRaise(true);
    m_pwTbFold->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_pwTbFold->setFocusPolicy(Qt::StrongFocus);
    setContentsTip(
        tr("Show the recognised columns and the rows with problems", "MESS_TIP_DETAILS"));
    m_pwLblWarning->setObjectName(QStringLiteral("m_pwLblWarning"));
    m_pwLblWarning->setPixmap(QPixmap(QStringLiteral(":/icons/warning.png")));
    m_pwLblWarning->setAccessibleName(tr("Problems", "MESS_PROBLEMS"));
    m_pwPrChecking->setRange(0, 100);
    m_pwPrChecking->setFormat(tr("Checking the rows: %p%", "MESS_CHECKING_ROWS"));
    m_pwPrChecking->setMinimumWidth(fontMetrics().horizontalAdvance(m_pwPrChecking->format()) +
                                    4 * fontMetrics().averageCharWidth());
    m_pwPrChecking->setAccessibleName(tr("Progress of the check", "MESS_CHECK_PROGRESS"));
    m_pwPbCancel->setAutoDefault(false);
    m_pwPbCancel->setToolTip(tr("Stop checking the rows", "MESS_TIP_STOP_CHECK"));
    m_pwLblRemark->setObjectName(QStringLiteral("m_pwLblRemark"));
    m_pwLblRemark->setWordWrap(true);
    connect(m_pwLblRemark, &QLabel::linkActivated, this, &VltTableDetails::followRemark);

    auto *heading = new QHBoxLayout;
    heading->addWidget(m_pwLblWarning);
    heading->addWidget(m_pwTbFold);
    heading->addStretch(1);
    heading->addWidget(m_pwPrChecking);
    heading->addWidget(m_pwPbCancel);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(heading);
    layout->addWidget(m_pwLblRemark);
    layout->addWidget(m_rows);
    layout->addWidget(m_pwTwDetails);
}

void VltTableDetails::buildTables()
{
    m_pwTwDetails->addTab(m_mapping, tr("Columns", "MESS_COLUMNS"));
    m_problemModel->setHorizontalHeaderLabels(
        {tr("Row", "MESS_ROW"), tr("Column", "MESS_COLUMN"), tr("Problem", "MESS_PROBLEM")});
    m_pwTvProblems =
        addTable(m_problemModel, QStringLiteral("m_pwTvProblems"), tr("Problems", "MESS_PROBLEMS"));
    m_pwTvProblems->setSortingEnabled(true);
    m_pwTvProblems->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
}

QTableView *VltTableDetails::addTable(QAbstractItemModel *model, const QString &objectName,
                                      const QString &name)
{
    auto *table = new QTableView(m_pwTwDetails);
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
    vlt::tables::makeRowsCopyable(table);
    auto *rows = new vlt::tables::RowSelection(table);
    connect(rows, &vlt::tables::RowSelection::chosen, this, &VltTableDetails::rowChosen);
    connect(rows, &vlt::tables::RowSelection::opened, this, &VltTableDetails::rowOpened);
    m_rowLists << rows;
    m_pwTwDetails->addTab(table, name);
    fitHeight();
    return table;
}

void VltTableDetails::chooseRow(qint64 row)
{
    for (vlt::tables::RowSelection *list : std::as_const(m_rowLists))
        list->select(row);
}

void VltTableDetails::setTableCount(QTableView *table, const QString &name, qint64 count)
{
    m_pwTwDetails->setTabText(m_pwTwDetails->indexOf(table),
                              name + QStringLiteral(" (%1)").arg(wholeNumber(count)));
    fitColumns(table);
}

void VltTableDetails::setContentsTip(const QString &text)
{
    m_pwTbFold->setToolTip(text);
}

void VltTableDetails::showRemark(const QString &text, Qt::TextFormat format)
{
    m_pwLblRemark->setTextFormat(format);
    m_pwLblRemark->setTextInteractionFlags(format == Qt::RichText ? Qt::TextBrowserInteraction
                                                                  : Qt::TextSelectableByMouse);
    m_pwLblRemark->setText(text);
    m_pwLblRemark->setVisible(!text.isEmpty());
}

void VltTableDetails::unfoldProblems()
{
    if (m_mapping->isVisible()) // the user may be choosing columns
        return;
    unfold(m_pwTvProblems);
}

void VltTableDetails::unfold(QTableView *table)
{
    m_pwTwDetails->setCurrentWidget(table);
    m_pwTbFold->setChecked(true);
}

void VltTableDetails::fold(bool open)
{
    m_pwTbFold->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
    m_pwTwDetails->setVisible(open);
    m_rows->setVisible(open);
}

/// Makes the tabs as high as the current one needs.
void VltTableDetails::fitHeight()
{
    for (int tab = 0; tab < m_pwTwDetails->count(); ++tab) {
        const bool isCurrent = tab == m_pwTwDetails->currentIndex();
        m_pwTwDetails->widget(tab)->setSizePolicy(
            QSizePolicy::Preferred, isCurrent ? QSizePolicy::Preferred : QSizePolicy::Ignored);
    }
}

void VltTableDetails::clear()
{
    m_runner.cancel();
    m_checked.clear();
    m_isNonePlaced = false;
    m_pwTbFold->setChecked(false);
    hide();
}

std::optional<QString> VltTableDetails::emptyReason() const
{
    return m_isNonePlaced ? std::optional(nonePlacedText()) : std::nullopt;
}

void VltTableDetails::showTable(const vlt::tables::TableFileInfo &file,
                                const QList<vlt::Problem> &problems)
{
    m_file = file;
    m_isNonePlaced = false;
    m_checked.clear();
    m_fileProblems = problems;
    m_rows->clear();
    endCheck();
    forgetRows();
    showProblems(m_fileProblems, m_fileProblems.size());
    showSummary({}, !m_fileProblems.isEmpty());
    setVisible(true);
}

void VltTableDetails::showRefused()
{
    endCheck();
    m_checked.clear();
    m_isNonePlaced = false;
    m_rows->clear();
    forgetRows();
    m_fileProblems.clear();
    showProblems({}, 0);
    showSummary(nonePlacedText(), true);
    m_pwTwDetails->setCurrentWidget(m_mapping);
    m_pwTbFold->setChecked(true);
    setVisible(true);
}

bool VltTableDetails::beginsCheck(const QString &what)
{
    if (what == m_checked)
        return false;
    m_checked = what;
    m_isNonePlaced = false;
    m_rows->clear();
    m_pwPrChecking->setValue(0);
    if (!m_patience.isActive())
        m_patience.start();
    return true;
}

void VltTableDetails::showProgress(bool shown)
{
    m_pwPrChecking->setVisible(shown);
    m_pwPbCancel->setVisible(shown);
}

void VltTableDetails::showProblems(const QList<vlt::Problem> &listed, qint64 count)
{
    m_problemModel->removeRows(0, m_problemModel->rowCount());
    for (const vlt::Problem &problem : listed)
        m_problemModel->appendRow({item(problem.row > 0 ? QVariant(problem.row) : QVariant()),
                                   item(problem.column),
                                   item(vlt::language::readerText(problem.text))});
    if (count > listed.size()) {
        const qint64 rest = count - listed.size();
        const QString text = rest == 1
                                 ? tr("1 further problem is not listed", "MESS_ONE_MORE_PROBLEM")
                                 : tr("%1 further problems are not listed", "MESS_MORE_PROBLEMS")
                                       .arg(wholeNumber(rest));
        m_problemModel->appendRow({item({}), item({}), item(text)});
    }
    setTableCount(m_pwTvProblems, tr("Problems", "MESS_PROBLEMS"), count);
}

void VltTableDetails::showRows(const vlt::Result<vlt::geodata::TableRowCounts> &rows,
                               const QString &connection)
{
    if (rows)
        m_rows->showRows(rows.value(), m_file.filePath, connection);
}

void VltTableDetails::showSummary(const QString &rows, bool warns)
{
    QString text =
        tr("Recognised columns: %1", "MESS_RECOGNISED_COLUMNS").arg(m_mapping->columnsFound());
    if (!rows.isEmpty())
        text += Separator + rows;
    m_pwTbFold->setText(text);
    m_pwLblWarning->setVisible(warns);
}

/// Ends the check, whatever its result.
void VltTableDetails::endCheck()
{
    m_runner.cancel();
    m_patience.stop();
    showProgress(false);
}

void VltTableDetails::stopChecking()
{
    endCheck();
    forgetRows();
    showProblems(m_fileProblems, m_fileProblems.size());
    showSummary(tr("the rows were not checked", "MESS_ROWS_NOT_CHECKED"),
                !m_fileProblems.isEmpty());
}

void VltTableDetails::showOutcome(const vlt::geodata::LayerProblems &problems,
                                  const vlt::geodata::LayerPlacement &placement,
                                  const QList<vlt::Problem> &systemProblems)
{
    endCheck();
    const QList<vlt::Problem> general = m_fileProblems + systemProblems;
    const qint64 count = general.size() + problems.count;
    showProblems(general + problems.listed, count);
    const bool isNonePlaced = placement.placed == 0;
    const QString placed = isNonePlaced ? nonePlacedText()
                                        : placedText().arg(wholeNumber(placement.placed),
                                                           wholeNumber(placement.features));
    showSummary(placed + Separator +
                    tr("problems: %1", "MESS_PROBLEM_COUNT").arg(wholeNumber(count)),
                count > 0);
    if (count > 0 && !m_pwTwDetails->isVisible())
        m_pwTwDetails->setCurrentWidget(m_pwTvProblems);
    m_isNonePlaced = isNonePlaced;
    if (isNonePlaced) { // the reason must be visible
        unfoldProblems();
        Q_EMIT nonePlaced();
    }
}

void VltTableDetails::checkFailed(const vlt::Error &error)
{
    endCheck();
    forgetRows();
    vlt::Problem problem;
    problem.severity = vlt::Problem::Severity::Error;
    problem.text = vlt::language::reasonOf(error);
    const QList<vlt::Problem> all = m_fileProblems + QList<vlt::Problem>{problem};
    showProblems(all, all.size());
    showSummary(nonePlacedText(), true);
    unfoldProblems();
}
