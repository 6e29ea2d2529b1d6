#include "links/LinkColumnDescription.h"

#include "language/VltLanguageManager.h"

namespace vlt::links {

namespace {

tables::ColumnDescription described(const QString &meaning, const QString &column)
{
    return {meaning, column.isEmpty() ? QStringList() : QStringList(column)};
}

QList<tables::ColumnDescription> describeEnd(const LinkEndColumns &end, const QString &mark)
{
    return {
        described(dico_label("MESS_LINK_COLUMN_ID", "Identifier of end %1").arg(mark),
                  end.identifier),
        described(dico_label("MESS_LINK_COLUMN_X", "X of end %1").arg(mark), end.longitude),
        described(dico_label("MESS_LINK_COLUMN_Y", "Y of end %1").arg(mark), end.latitude),
        described(dico_label("MESS_LINK_COLUMN_HEIGHT", "Height of end %1").arg(mark), end.height),
        described(dico_label("MESS_LINK_COLUMN_FREQUENCY", "Frequency of end %1").arg(mark),
                  end.frequency),
        described(dico_label("MESS_LINK_COLUMN_AZIMUTH", "Azimuth of end %1").arg(mark),
                  end.azimuth),
        described(dico_label("MESS_LINK_COLUMN_TILT", "Tilt of end %1").arg(mark), end.tilt),
        described(dico_label("MESS_LINK_COLUMN_DX", "DX of end %1").arg(mark), end.dx),
        described(dico_label("MESS_LINK_COLUMN_DY", "DY of end %1").arg(mark), end.dy)};
}

} // namespace

QList<tables::ColumnDescription> describeColumns(const LinkColumnSet &columns)
{
    const QList<tables::ColumnDescription> link = {
        described(dico_label("MESS_LINK_COLUMN_NAME", "Link name"), columns.name),
        described(dico_label("MESS_LINK_COLUMN_BAND", "Frequency band"), columns.band),
        described(dico_label("MESS_LINK_COLUMN_LENGTH", "Path length"), columns.length)};
    return link + describeEnd(columns.tx, QStringLiteral("A")) +
           describeEnd(columns.rx, QStringLiteral("B"));
}

} // namespace vlt::links
