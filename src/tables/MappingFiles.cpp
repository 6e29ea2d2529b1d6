#include "tables/MappingFiles.h"

#include "contract/Installation.h"
#include "contract/TableTexts.h"
#include "platform/AtomicFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace vlt::tables {

namespace {

constexpr int HashCharacters = 12;
constexpr int NameCharacters = 80;

QString besideTable(const QString &tablePath)
{
    return QString::fromStdString(contract::mappingFileOf(tablePath.toStdString()));
}

/// The user's file for a table: its name shows that of the table, and differs for every path.
QString fileOfUser(const QString &tablePath)
{
    const QFileInfo table(tablePath);
    const QByteArray hash =
        QCryptographicHash::hash(table.absoluteFilePath().toUtf8(), QCryptographicHash::Sha256);
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                           QLatin1Char('/') + QLatin1String(contract::UserTableFolder) +
                           QStringLiteral("/mappings/");
    return besideTable(folder + QString::fromLatin1(hash.toHex().left(HashCharacters)) +
                       QLatin1Char('-') + table.fileName().left(NameCharacters));
}

Result<Done> removeFile(const QString &path)
{
    QFile file(path);
    if (file.exists() && !file.remove())
        return Error::fromLibrary(file.errorString(), path);
    return Done();
}

Result<Done> write(const QString &path, const contract::ColumnMapping &mapping)
{
    return platform::writeWhole(path, QByteArray::fromStdString(contract::writeMapping(mapping)),
                                platform::Access::Shared);
}

} // namespace

MappingFile findMapping(const QString &tablePath)
{
    MappingFile found;
    if (const QString own = mappingOption(tablePath); !own.isEmpty())
        found = {MappingFile::Place::OfUser, own, {}, {}};
    else if (const QString beside = besideTable(tablePath); QFileInfo(beside).isFile())
        found = {MappingFile::Place::BesideTable, beside, {}, {}};
    else
        return found;
    QFile file(found.path);
    const std::string text = file.open(QFile::ReadOnly)
                                 ? file.read(contract::MaxMappingBytes + 1).toStdString()
                                 : std::string();
    const contract::ReadMapping read = contract::readMapping(text);
    found.mapping = read.mapping.value_or(contract::ColumnMapping());
    if (!read.mapping)
        found.refusal = QString::fromStdString(contract::formatted(
            "MESS_TAB_MAPPING_UNUSED", {found.path.toStdString(), read.reason}));
    return found;
}

QString mappingOption(const QString &tablePath)
{
    const QString own = fileOfUser(tablePath);
    return QFileInfo(own).isFile() ? own : QString();
}

Result<Done> keepMapping(const QString &tablePath, const contract::ColumnMapping &mapping)
{
    const QString own = fileOfUser(tablePath);
    if (statesNothing(mapping) && !QFileInfo::exists(besideTable(tablePath)))
        return removeFile(own);
    QDir().mkpath(QFileInfo(own).path());
    return write(own, mapping);
}

Result<Done> saveBesideTable(const QString &tablePath, const contract::ColumnMapping &mapping)
{
    const QString beside = besideTable(tablePath);
    const Result<Done> saved = statesNothing(mapping) ? removeFile(beside) : write(beside, mapping);
    return saved ? removeFile(fileOfUser(tablePath)) : saved;
}

bool statesNothing(const contract::ColumnMapping &mapping)
{
    contract::ColumnMapping kindOnly;
    kindOnly.kind = mapping.kind;
    return mapping == kindOnly;
}

} // namespace vlt::tables
