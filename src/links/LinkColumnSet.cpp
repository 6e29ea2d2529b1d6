#include "links/LinkColumnSet.h"

#include "contract/ColumnPattern.h"
#include "sites/SiteColumnSet.h"
#include "tables/ResolvedConnection.h"

#include <QHash>
#include <QRegularExpression>

#include <functional>
#include <vector>

namespace vlt::links {

namespace {

struct Column
{
    contract::ColumnPattern pattern;
    std::function<QString &(LinkColumnSet &)> member;
};

/// The marks of one end of a link in column names.
struct EndMarks
{
    QString number; ///< in the layout with numbers
    QString words;  ///< in the layouts with names
    LinkEndColumns LinkColumnSet::*end;
};

/// Pattern for a quantity of one end: `numbered` in the layout with numbers; else `name` after or
/// before the end's mark, followed by nothing or by a blank and any text, such as the unit.
QString quantity(const QString &numbered, const QString &name)
{
    return QLatin1Char('(') + numbered + QStringLiteral(R"()|(((Site\s+)?(%2)(\s+|\.))") + name +
           QStringLiteral(")|(") + name + QStringLiteral(R"(\s+\((%2)\))|()") + name +
           QStringLiteral(R"(\s+(%2)))(\s+.*)?)");
}

/// Member of the set and pattern of the names for one quantity; "%1" stands for the end's number,
/// "%2" for its words.
struct EndPattern
{
    QString LinkEndColumns::*member;
    QString pattern;
};

const std::vector<EndPattern> &endPatterns()
{
    static const std::vector<EndPattern> patterns = {
        {&LinkEndColumns::identifier,
         QStringLiteral(R"((Call\s+sign\s+%1)|((Site\s+)?(%2)((\s+|\.)(Name|ID))?))"
                        R"(|((Name|ID)\s+\((%2)\))|((Name|ID|Antenna)\s+(%2)))")},
        {&LinkEndColumns::longitude,
         quantity(QStringLiteral(R"(Longitude\s+%1)"), QStringLiteral("(X|Longitude)"))},
        {&LinkEndColumns::latitude,
         quantity(QStringLiteral(R"(Latitude\s+%1)"), QStringLiteral("(Y|Latitude)"))},
        {&LinkEndColumns::height,
         quantity(QStringLiteral(R"(Antenna\s+height\s+\(m\)\s+%1)"), QStringLiteral("Height"))},
        {&LinkEndColumns::frequency,
         quantity(QStringLiteral(R"(TX1\s+\(MHz\)\s+%1)"), QStringLiteral("Frequency"))},
        {&LinkEndColumns::azimuth,
         quantity(QStringLiteral(R"(Azimuth\s+\(.*\)\s+%1)"), QStringLiteral("Azimuth"))},
        {&LinkEndColumns::tilt,
         quantity(QStringLiteral(R"(Tilt\s+\(.*\)\s+%1)"), QStringLiteral("Tilt"))},
        {&LinkEndColumns::dx,
         quantity(QStringLiteral(R"(DX\s+\(%1\)\s+\(m\))"), QStringLiteral("DX"))},
        {&LinkEndColumns::dy,
         quantity(QStringLiteral(R"(DY\s+\(%1\)\s+\(m\))"), QStringLiteral("DY"))},
    };
    return patterns;
}

std::vector<Column> makeColumns()
{
    const auto whole = [](const QString &pattern, QString LinkColumnSet::*member) {
        return Column{contract::ColumnPattern(pattern.toStdString()),
                      [member](LinkColumnSet &set) -> QString & { return set.*member; }};
    };
    std::vector<Column> columns = {
        whole(QStringLiteral("Name"), &LinkColumnSet::name),
        whole(QStringLiteral(R"(Frequency Band(\s+\(\w+\))?)"), &LinkColumnSet::band),
        whole(QStringLiteral(R"((Path\s+)?Length(\s+\(\w+\))?)"), &LinkColumnSet::length)};
    for (const EndMarks &marks :
         {EndMarks{QStringLiteral("1"), QStringLiteral("A|TX"), &LinkColumnSet::tx},
          EndMarks{QStringLiteral("2"), QStringLiteral("B|RX"), &LinkColumnSet::rx}}) {
        for (const EndPattern &pattern : endPatterns()) {
            columns.push_back({contract::ColumnPattern(
                                   pattern.pattern.arg(marks.number, marks.words).toStdString()),
                               [end = marks.end, member = pattern.member](
                                   LinkColumnSet &set) -> QString & { return set.*end.*member; }});
        }
    }
    return columns;
}

/// The first unit in a name; if two start at the same character, the longer one.
QString unitIn(const QString &name, const QString &unitsLongestFirst)
{
    return QRegularExpression(unitsLongestFirst).match(name).captured();
}

/// The first unit that is a word of a name, in any case.
QString unitAsWord(const QString &name, const QString &units)
{
    const QRegularExpression word(QStringLiteral("(?<!\\pL)(?:") + units +
                                      QStringLiteral(")(?!\\pL)"),
                                  QRegularExpression::CaseInsensitiveOption);
    return word.match(name).captured();
}

/// Fills the members that are still empty with the columns that have their roles.
class RoleColumns
{
public:
    explicit RoleColumns(const QList<geodata::ColumnRole> &roles)
    {
        for (const geodata::ColumnRole &role : roles)
            m_columns[role.role] << role.column;
    }

    /// Fills a member with the column of the first of some roles that only one column has.
    ///
    /// @return  whether the member got a column
    bool fill(QString &member, const QStringList &roles) const
    {
        for (const QString &role : roles) {
            if (member.isEmpty() && m_columns.value(role).size() == 1) {
                member = m_columns.value(role).constFirst();
                return true;
            }
        }
        return false;
    }

    void fillEnd(LinkEndColumns &end, QLatin1Char letter) const
    {
        const auto role = [letter](const char *name) { return QLatin1String(name) + letter; };
        fill(end.identifier, {role("siteName"), role("siteId")});
        fill(end.longitude, {role("x")});
        fill(end.latitude, {role("y")});
        fill(end.height, {role("antennaHeight")});
        fill(end.frequency, {role("frequency"), QStringLiteral("frequency")});
        fill(end.azimuth, {role("azimuth")});
        fill(end.tilt, {role("tilt")});
        fill(end.dx, {role("offsetX")});
        fill(end.dy, {role("offsetY")});
    }

private:
    QHash<QString, QStringList> m_columns; ///< by role
};

} // namespace

LinkColumnSet recogniseLinkColumns(const QStringList &fieldNames,
                                   const QList<geodata::ColumnRole> &roles)
{
    static const std::vector<Column> columns = makeColumns();
    LinkColumnSet found;
    for (const QString &field : fieldNames) {
        const std::string name = contract::plainColumnName(field.toStdString());
        for (const Column &column : columns) {
            QString &member = column.member(found);
            if (member.isEmpty() && column.pattern.matches(name))
                member = field;
        }
    }
    found.frequencyUnit = unitIn(found.band, QStringLiteral("KHz|MHz|GHz|THz|Hz"));
    found.lengthUnit = unitIn(found.length, QStringLiteral("miles|feet|km|m"));

    const RoleColumns ofRoles(roles);
    ofRoles.fill(found.name, {QStringLiteral("linkName")});
    if (ofRoles.fill(found.band, {QStringLiteral("band")}))
        found.frequencyUnit = unitAsWord(found.band, QStringLiteral("[kMGT]?Hz"));
    if (ofRoles.fill(found.length, {QStringLiteral("lengthLink")}))
        found.lengthUnit =
            unitAsWord(found.length, QStringLiteral("miles|mi|feet|ft|km|m|met(?:er|re)s?"));
    ofRoles.fillEnd(found.tx, QLatin1Char('A'));
    ofRoles.fillEnd(found.rx, QLatin1Char('B'));
    return found;
}

LinkColumnSet recogniseLinkColumns(const QString &connection, const QString &projectDirectory)
{
    const Result<geodata::LayerInfo> layer =
        geodata::readLayerInfo(tables::resolvedConnection(connection, projectDirectory), 0);
    return layer ? recogniseLinkColumns(layer.value().fields, layer.value().roles)
                 : LinkColumnSet();
}

} // namespace vlt::links
