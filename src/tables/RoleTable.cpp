#include "tables/RoleTable.h"

#include "language/VltLanguageManager.h"
#include "tables/ColumnRoles.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace vlt::tables {

namespace {

constexpr int MaxSamples = 3;
constexpr int HemispherePart = 3;

/// Up to three different values of a column, from the rows below the header.
QStringList samplesOf(const geodata::TableExcerpt &excerpt, const QString &column)
{
    const auto found =
        std::find_if(excerpt.columns.begin(), excerpt.columns.end(),
                     [&](const geodata::TableColumn &of) { return of.name == column; });
    QStringList samples;
    if (found == excerpt.columns.end())
        return samples;
    const qint64 lastOfHeader =
        (QList<qint64>{0} + excerpt.headerRows + excerpt.furtherRows).constLast();
    for (const geodata::ExcerptRow &row : excerpt.rows) {
        const QString value = row.cells.value(found->position);
        if (row.number > lastOfHeader && !value.isEmpty() && !samples.contains(value))
            samples << value;
        if (samples.size() == MaxSamples)
            break;
    }
    return samples;
}

/// The numbers of transmitters in the names of columns, ascending.
QStringList transmittersOf(const UnderstoodTable &table)
{
    QSet<int> numbers;
    for (const geodata::ColumnRole &role : table.roles) {
        if (!role.sector.isEmpty())
            numbers << role.sector.toInt();
    }
    QList<int> sorted = numbers.values();
    std::sort(sorted.begin(), sorted.end());
    QStringList texts;
    for (const int number : sorted)
        texts << QString::number(number);
    return texts;
}

bool isNumber(const QString &text)
{
    bool ok = false;
    QString(text).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&ok);
    return ok;
}

/// Moves the hemisphere, if it is the last one of some parts of a coordinate, to its place.
void placeHemisphere(QList<RoleColumn> &parts)
{
    const bool isLast = parts.size() > 1 && parts.size() <= HemispherePart &&
                        !parts.constLast().samples.isEmpty() &&
                        !isNumber(parts.constLast().samples.constFirst());
    while (isLast && parts.size() <= HemispherePart)
        parts.insert(parts.size() - 1, RoleColumn());
}

QStringList coordinateParts()
{
    return {dico_label("MESS_PART_DEGREES", "Degrees"), dico_label("MESS_PART_MINUTES", "Minutes"),
            dico_label("MESS_PART_SECONDS", "Seconds"),
            dico_label("MESS_PART_HEMISPHERE", "Hemisphere")};
}

/// The columns of an entry, one more than those that it has: the user can add a transmitter.
QStringList partNamesOf(const RoleEntry &entry, contract::TableKind kind)
{
    if (isCoordinate(entry.role))
        return coordinateParts();
    QStringList names;
    if (kind != contract::TableKind::Sites || !isOfTransmitter(entry.role) || !entry.isFound())
        return names;
    for (int number = 1; number <= entry.columns.size() + 1; ++number)
        names << dico_label("MESS_PART_TRANSMITTER", "Transmitter %1").arg(number);
    return names;
}

RoleEntry entryOf(const UnderstoodTable &table, const QString &role,
                  const QStringList &transmitters)
{
    RoleEntry entry;
    entry.role = role;
    entry.text = roleName(role);
    entry.isStated = table.mapping.roles.contains(role.toStdString());
    for (const geodata::ColumnRole &column : table.roles) {
        if (column.role != role)
            continue;
        const qsizetype place =
            column.sector.isEmpty() ? entry.columns.size() : transmitters.indexOf(column.sector);
        while (entry.columns.size() <= place)
            entry.columns.append(RoleColumn());
        entry.columns[place] = {column.column, column.evidence,
                                samplesOf(table.excerpt, column.column)};
    }
    if (isCoordinate(role))
        placeHemisphere(entry.columns);
    entry.partNames = partNamesOf(entry, table.kind);
    return entry;
}

/// Whether a name stands in a list of columns.
bool isNamed(const std::string &column)
{
    return !column.empty();
}

} // namespace

QList<RoleEntry> roleEntries(const UnderstoodTable &table)
{
    QStringList roles = rolesOf(table.kind);
    for (const geodata::ColumnRole &found : table.roles) {
        if (!roles.contains(found.role))
            roles << found.role;
    }
    const QStringList transmitters = transmittersOf(table);
    QList<RoleEntry> entries;
    for (const QString &role : std::as_const(roles))
        entries << entryOf(table, role, transmitters);
    std::stable_partition(entries.begin(), entries.end(),
                          [](const RoleEntry &entry) { return entry.isFound(); });
    return entries;
}

QHash<QString, QStringList> rolesByColumn(const UnderstoodTable &table)
{
    QHash<QString, QStringList> roles;
    for (const geodata::ColumnRole &role : table.roles)
        roles[role.column] << roleText(role);
    return roles;
}

contract::ColumnMapping withColumn(const contract::ColumnMapping &mapping, const RoleEntry &entry,
                                   int part, const QString &column)
{
    contract::StatedColumns columns;
    if (part >= 0) {
        for (const RoleColumn &of : entry.columns)
            columns.push_back(of.name.toStdString());
    }
    const auto place = static_cast<std::size_t>(qMax(part, 0));
    columns.resize(std::max(columns.size(), place + 1));
    columns[place] = column.toStdString();
    columns.erase(std::find_if(columns.rbegin(), columns.rend(), isNamed).base(), columns.end());
    if (part >= 0 && columns.size() == 1 && isOfTransmitter(entry.role))
        columns.emplace_back(); // of one transmitter, not of all
    contract::ColumnMapping changed = mapping;
    changed.roles[entry.role.toStdString()] = columns;
    return changed;
}

contract::ColumnMapping withRecognised(const contract::ColumnMapping &mapping,
                                       const RoleEntry &entry)
{
    contract::ColumnMapping changed = mapping;
    changed.roles.erase(entry.role.toStdString());
    return changed;
}

contract::ColumnMapping withSheet(const contract::ColumnMapping &mapping, const QString &sheet)
{
    contract::ColumnMapping changed = mapping;
    changed.sheet = sheet.toStdString();
    changed.headerRows.reset();
    changed.roles.clear();
    return changed;
}

contract::ColumnMapping withHeader(const contract::ColumnMapping &mapping, int firstRow,
                                   int rowCount)
{
    contract::ColumnMapping changed = mapping;
    changed.headerRows.emplace();
    for (int row = firstRow; row < firstRow + rowCount; ++row)
        changed.headerRows->push_back(row);
    changed.roles.clear();
    return changed;
}

} // namespace vlt::tables
