#include "links/ui/LinkReportModel.h"

#include "language/Numbers.h"
#include "links/ClearanceText.h"
#include "text/RichText.h"

#include <QHash>
#include <QIcon>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vlt::links {

namespace {

constexpr double MetresPerKm = 1000;
constexpr int HzDecimals = 6; ///< of megahertz: 6.0292 GHz are 6029.2 MHz, not 6029.200000000001

QIcon clearanceIcon(linkpath::ClearanceStatus status)
{
    constexpr int Size = 12;
    constexpr int Density = 2; // pixels per unit, for screens of high density
    QPixmap picture(Size * Density, Size * Density);
    picture.setDevicePixelRatio(Density);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colorOfClearance(status));
    painter.drawEllipse(0, 0, Size, Size);
    return picture;
}

/// The number by which a column is sorted; unknown values come after all others.
double number(const geodata::LinkReport &link, int column)
{
    constexpr double Unknown = std::numeric_limits<double>::infinity();
    switch (column) {
    case LinkReportModel::Row:
        return static_cast<double>(link.row);
    case LinkReportModel::Length:
        return link.lengthM.value_or(Unknown);
    case LinkReportModel::Frequency:
        return link.frequencyMHz.value_or(Unknown);
    case LinkReportModel::ClearanceStatus:
        return -static_cast<double>(link.clearance.status); // the worst class first
    default:
        return link.clearance.worst ? link.clearance.worst->freeShare() : Unknown;
    }
}

QString name(const geodata::LinkReport &link, int column)
{
    if (column == LinkReportModel::Name)
        return link.name;
    return column == LinkReportModel::EndA ? link.endA : link.endB;
}

bool isName(int column)
{
    return column == LinkReportModel::Name || column == LinkReportModel::EndA ||
           column == LinkReportModel::EndB;
}

} // namespace

void LinkReportModel::setLinks(const QList<geodata::LinkReport> &links)
{
    if (links.size() == m_links.size()) {
        arrange(links);
        return;
    }
    beginResetModel();
    m_links = links;
    sortLinks();
    endResetModel();
}

int LinkReportModel::firstOf(linkpath::ClearanceStatus status) const
{
    const auto found =
        std::find_if(m_links.cbegin(), m_links.cend(), [status](const geodata::LinkReport &link) {
            return link.clearance.status == status;
        });
    return found == m_links.cend() ? -1 : static_cast<int>(found - m_links.cbegin());
}

int LinkReportModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_links.size());
}

int LinkReportModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant LinkReportModel::data(const QModelIndex &index, int role) const
{
    const geodata::LinkReport &link = m_links[index.row()];
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return text(link, column);
    case Qt::ToolTipRole:
        return toolTip(link, column);
    case Qt::DecorationRole:
        return column == ClearanceStatus ? QVariant(clearanceIcon(link.clearance.status))
                                         : QVariant();
    case Qt::TextAlignmentRole:
        return QVariant(
            Qt::AlignVCenter |
            (column == Length || column == Frequency ? Qt::AlignRight : Qt::AlignLeading));
    default:
        return {};
    }
}

QVariant LinkReportModel::text(const geodata::LinkReport &link, int column) const
{
    constexpr int KmDecimals = 3;
    switch (column) {
    case Row:
        return link.row;
    case Length:
        return link.lengthM ? language::fixedNumber(*link.lengthM / MetresPerKm, KmDecimals)
                            : QString();
    case Frequency:
        return link.frequencyMHz ? language::shortNumber(*link.frequencyMHz, HzDecimals)
                                 : QString();
    case ClearanceStatus:
        return clearanceText(link.clearance.status);
    case Worst:
        return link.clearance.worst ? worstText(*link.clearance.worst)
                                    : lackText(link.clearance.lack);
    default:
        return name(link, column);
    }
}

QVariant LinkReportModel::toolTip(const geodata::LinkReport &link, int column) const
{
    QString tip = text(link, column).toString();
    const bool isUnchecked = link.clearance.status == linkpath::ClearanceStatus::Unknown;
    if (isUnchecked && (column == ClearanceStatus || column == Worst))
        tip = lackText(link.clearance.lack) + QLatin1Char('\n') +
              tr("The clearance of a link needs the positions and antenna heights of both ends, a "
                 "frequency and the terrain under the whole path",
                 "MESS_TIP_UNJUDGED");
    return vlt::text::asRichText(tip);
}

QVariant LinkReportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const bool isWhole = role == Qt::ToolTipRole; // short headers leave space for the worst points
    switch (section) {
    case Row:
        return tr("Row", "MESS_ROW");
    case Name:
        return tr("Link", "MESS_LINK");
    case EndA:
        return isWhole ? tr("End A", "MESS_END_A") : QStringLiteral("A");
    case EndB:
        return isWhole ? tr("End B", "MESS_END_B") : QStringLiteral("B");
    case Length:
        return isWhole ? tr("Length (km)", "MESS_LENGTH_KM") : QStringLiteral("km");
    case Frequency:
        return isWhole ? tr("Frequency (MHz)", "MESS_FREQUENCY_MHZ") : QStringLiteral("MHz");
    case ClearanceStatus:
        return tr("Clearance", "MESS_VERDICT");
    default:
        return tr("Worst point", "MESS_WORST_POINT");
    }
}

void LinkReportModel::sort(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    arrange(m_links);
}

/// Replaces the links with the same links in another order or with another clearance; the selection
/// stays.
void LinkReportModel::arrange(const QList<geodata::LinkReport> &links)
{
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList kept = persistentIndexList();
    QList<qint64> keptRows;
    for (const QModelIndex &index : kept)
        keptRows << m_links[index.row()].row;

    m_links = links;
    sortLinks();
    QHash<qint64, int> places;
    for (int place = 0; place < m_links.size(); ++place)
        places.insert(m_links[place].row, place);
    for (int i = 0; i < kept.size(); ++i)
        changePersistentIndex(kept[i], index(places.value(keptRows[i], -1), kept[i].column()));
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void LinkReportModel::sortLinks()
{
    using geodata::LinkReport;
    const int column = m_sortColumn;
    const bool isDescending = m_sortOrder == Qt::DescendingOrder;
    const auto isBefore = [column](const LinkReport &a, const LinkReport &b) {
        return isName(column) ? name(a, column).localeAwareCompare(name(b, column)) < 0
                              : number(a, column) < number(b, column);
    };
    std::stable_sort(m_links.begin(), m_links.end(), [&](const LinkReport &a, const LinkReport &b) {
        return isDescending ? isBefore(b, a) : isBefore(a, b);
    });
}

} // namespace vlt::links
