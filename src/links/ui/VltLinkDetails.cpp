#include "links/ui/VltLinkDetails.h"

#include "language/ErrorText.h"
#include "language/Numbers.h"
#include "links/ClearanceText.h"
#include "links/ui/LinkReportModel.h"

#include <QHeaderView>
#include <QTableView>

#include <array>

using vlt::geodata::LinkCheck;
using vlt::geodata::LinkReport;
using vlt::linkpath::ClearanceStatus;

namespace {

/// Maximum width of the column of names, so that a long name does not move the clearance out of
/// view.
constexpr int MaxNameCharacters = 24;

/// The number of links of a class, after a dot of the color of the class; a link to the first one.
QString countText(ClearanceStatus status, int number)
{
    return QStringLiteral("<span style=\"color:%1\">\u25cf</span>&nbsp;<a href=\"%2\">%3</a>")
        .arg(vlt::links::colorOfClearance(status).name())
        .arg(static_cast<int>(status))
        .arg(vlt::language::wholeNumber(number));
}

} // namespace

VltLinkDetails::VltLinkDetails(QWidget *parent)
    : VltTableDetails(parent)
    , m_linkModel(new vlt::links::LinkReportModel(this))
    , m_pwTvLinks(addTable(m_linkModel, QStringLiteral("m_pwTvLinks"), tr("Links", "MESS_LINKS")))
{
    setContentsTip(tr("Show the recognised columns, the rows with problems and the clearance of "
                      "every link",
                      "MESS_TIP_LINK_DETAILS"));
    // The texts of the worst points are long; the user scrolls to them, so they need not be cut.
    m_pwTvLinks->horizontalHeader()->setStretchLastSection(false);
    m_pwTvLinks->setSortingEnabled(true);
    sortWorstFirst();
    connect(m_pwTvLinks->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &VltLinkDetails::announceLink);
    connect(m_pwTvLinks->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &VltLinkDetails::announceLink);
}

void VltLinkDetails::showFile(const vlt::links::LinkFileInfo &file)
{
    showTable(file, {});
}

void VltLinkDetails::check(const QString &connection, const vlt::geodata::SystemPair &systems,
                           const vlt::geodata::LinkCheckInput &input)
{
    const QString what = QStringLiteral("%1 %2\n")
                             .arg(input.rule.share)
                             .arg(input.rule.kFactor, 0, 'g', QLocale::FloatingPointShortest) +
                         input.terrainFile + QLatin1Char('\n') + connection;
    checkOnce<LinkCheck>(
        what, connection,
        [connection, systems, input](const vlt::Progress &progress) {
            return vlt::geodata::readLinkCheck(connection, input, progress, systems);
        },
        [this, systems, input](const LinkCheck &check) {
            m_endSystem = check.endSystem;
            m_checkInput = input;
            showLinks(check.links);
            showOutcome(check, systems);
            showClearance(check, !input.terrainFile.isEmpty());
        });
}

void VltLinkDetails::showLinks(const QList<LinkReport> &links)
{
    m_linkModel->setLinks(links);
    setTableCount(m_pwTvLinks, tr("Links", "MESS_LINKS"), links.size());
    const int longName = MaxNameCharacters * m_pwTvLinks->fontMetrics().averageCharWidth();
    constexpr int Name = vlt::links::LinkReportModel::Name;
    m_pwTvLinks->setColumnWidth(Name, qMin(longName, m_pwTvLinks->columnWidth(Name)));
    announceLink();
}

/// Announces the selected link; of several, the current one.
void VltLinkDetails::announceLink()
{
    const QItemSelectionModel *selection = m_pwTvLinks->selectionModel();
    QModelIndex row = selection->currentIndex();
    if (!row.isValid() || !selection->isSelected(row))
        row = selection->selectedRows().value(0);
    if (row.isValid())
        Q_EMIT linkChosen(
            vlt::links::ChosenLink{m_linkModel->link(row.row()), m_endSystem, m_checkInput});
    else
        Q_EMIT linkChosen(std::nullopt);
}

void VltLinkDetails::forgetRows()
{
    showLinks({});
    showRemark({});
}

void VltLinkDetails::sortWorstFirst()
{
    m_pwTvLinks->sortByColumn(vlt::links::LinkReportModel::ClearanceStatus, Qt::AscendingOrder);
}

/// Selects the first link of a class of clearance, which the link names by its number.
void VltLinkDetails::followRemark(const QString &link)
{
    unfold(m_pwTvLinks);
    sortWorstFirst();
    const int row = m_linkModel->firstOf(static_cast<ClearanceStatus>(link.toInt()));
    m_pwTvLinks->selectRow(row);
    m_pwTvLinks->scrollTo(m_linkModel->index(row, 0));
    m_pwTvLinks->setFocus();
}

void VltLinkDetails::showClearance(const LinkCheck &check, bool hasTerrain)
{
    if (!hasTerrain || check.terrainProblem) {
        const QString reason =
            hasTerrain ? vlt::language::explained(*check.terrainProblem)
                       : tr("the project has no terrain", "MESS_PROJECT_WITHOUT_TERRAIN");
        showRemark(
            tr("The clearance of the links is not known: %1", "MESS_LINKS_NOT_JUDGED").arg(reason));
        return;
    }
    std::array<int, 4> counts = {};
    for (const LinkReport &link : check.links)
        ++counts[static_cast<std::size_t>(link.clearance.status)];
    const auto count = [&counts](ClearanceStatus status) {
        const int number = counts[static_cast<std::size_t>(status)];
        return number == 0 ? QStringLiteral("0") : countText(status, number);
    };
    QString text = tr("%1 clear, %2 marginal, %3 obstructed", "MESS_VERDICT_COUNTS")
                       .arg(count(ClearanceStatus::Clear))
                       .arg(count(ClearanceStatus::Marginal))
                       .arg(count(ClearanceStatus::Obstructed));
    if (counts[static_cast<std::size_t>(ClearanceStatus::Unknown)] > 0)
        text += tr(", %1 unknown", "MESS_UNJUDGED_COUNT").arg(count(ClearanceStatus::Unknown));
    showRemark(text, Qt::RichText);
}

QString VltLinkDetails::nonePlacedText() const
{
    return tr("no link can be placed", "MESS_NO_LINK_PLACED");
}

QString VltLinkDetails::placedText() const
{
    return tr("links placed: %1 of %2", "MESS_LINKS_PLACED");
}
