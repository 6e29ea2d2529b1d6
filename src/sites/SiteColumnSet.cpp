#include "sites/SiteColumnSet.h"

#include "contract/ConnectionString.h"
#include "contract/LinkEnds.h"
#include "geodata/LayerInfo.h"
#include "tables/ColumnPatterns.h"

#include <QFile>

#include <array>

namespace vlt::sites {

namespace {

const QString Degree = QStringLiteral("\u00b0");

/// One list pattern out of those of the four table layouts.
QRegularExpression anyLayout(const QString &asset, const QString &atoll, const QString &mentum,
                             const QString &generic)
{
    // Filled in one pass: a "%1" inside one of the patterns stays as it is.
    return tables::wholeName(QStringLiteral("%1|%2|%3|%4").arg(asset, atoll, mentum, generic));
}

QRegularExpression sectorIdPattern()
{
    return anyLayout(QStringLiteral(R"(Transmitter-\d+ ANT-INDEX)"),
                     QStringLiteral(R"(Transmitter-\d+ Transmitter)"),
                     QStringLiteral(R"(Transmitter-\d+ Antenna ID)"),
                     QStringLiteral(R"(Transmitter-\d+ Sector ID)"));
}

QRegularExpression heightPattern()
{
    const QString height = QStringLiteral(R"(Transmitter-\d+ Height(\s)?(\(m\))?)");
    return anyLayout(QStringLiteral(R"(Transmitter-\d+ HEIGHT)"), height, height,
                     QStringLiteral(R"(Transmitter-\d+ height(\s)?(\(m\))?)"));
}

QRegularExpression azimuthPattern()
{
    // The last two layouts keep the slot unfilled: only a header that holds "(%1" itself matches
    // them.
    const QString raw = QStringLiteral(R"(Transmitter-\d+ Azimuth(\s)?\(%1\)?)");
    return anyLayout(QStringLiteral(R"(Transmitter-\d+ AZIMUTH)"), raw.arg(Degree), raw, raw);
}

QRegularExpression tiltPattern()
{
    const QString tilt =
        QStringLiteral(
            R"(Transmitter-\d+ (mech(\S+)?(\s)?(\S+)?tilt(\s+)?(\(%1\))?|tilt(\s+)?(\(°\))?))")
            .arg(Degree);
    return anyLayout(QStringLiteral(R"(Transmitter-\d+ DOWN-TILT)"), tilt,
                     QStringLiteral(R"(Transmitter-\d+ Mechanical tilt)"), tilt);
}

struct SingleColumn
{
    QRegularExpression pattern;
    QString SiteColumnSet::*member;
};

struct ColumnList
{
    QRegularExpression pattern;
    QStringList SiteColumnSet::*member;
};

const std::array<SingleColumn, 4> &singleColumns()
{
    static const std::array<SingleColumn, 4> columns = {{
        {tables::wholeName(QStringLiteral(R"(Site(\s*)ID|Name|Site(\s*)name|Site)")),
         &SiteColumnSet::name},
        {tables::wholeName(QStringLiteral(R"(X|Longitude|Site(\s*|.)longitude|Site.X)")),
         &SiteColumnSet::x},
        {tables::wholeName(QStringLiteral(R"(Y|Latitude|Site(\s*|.)latitude|Site.Y)")),
         &SiteColumnSet::y},
        {tables::wholeName(QStringLiteral(R"(Transmitter-1(\s*)Terrain(\s*)Height(\s*)(\(m\))?)")),
         &SiteColumnSet::terrainHeight},
    }};
    return columns;
}

const std::array<ColumnList, 4> &columnLists()
{
    static const std::array<ColumnList, 4> lists = {{
        {sectorIdPattern(), &SiteColumnSet::sectorIds},
        {heightPattern(), &SiteColumnSet::heights},
        {azimuthPattern(), &SiteColumnSet::azimuths},
        {tiltPattern(), &SiteColumnSet::tilts},
    }};
    return lists;
}

} // namespace

SiteColumnSet recogniseSiteColumns(const QStringList &fieldNames)
{
    SiteColumnSet found;
    for (const QString &field : fieldNames) {
        for (const SingleColumn &column : singleColumns()) {
            QString &member = found.*column.member;
            if (member.isEmpty() && column.pattern.match(field).hasMatch())
                member = field;
        }
        for (const ColumnList &list : columnLists()) {
            if (list.pattern.match(field).hasMatch())
                (found.*list.member) << field;
        }
    }
    return found;
}

SiteColumnSet recogniseSiteColumns(const QString &connection, const QString &projectDirectory)
{
    const int layer = connection.startsWith(QLatin1String("link"), Qt::CaseInsensitive)
                          ? contract::LinkEndLayerIndex
                          : 0;
    const Result<QStringList> fields =
        geodata::readFieldNames(resolvedConnection(connection, projectDirectory), layer);
    return fields ? recogniseSiteColumns(fields.value()) : SiteColumnSet();
}

QString resolvedConnection(const QString &connection, const QString &projectDirectory)
{
    if (projectDirectory.isEmpty())
        return connection;
    return QFile::decodeName(QByteArray::fromStdString(
        contract::resolvedConnection(QFile::encodeName(connection).toStdString(),
                                     QFile::encodeName(projectDirectory).toStdString())));
}

} // namespace vlt::sites
