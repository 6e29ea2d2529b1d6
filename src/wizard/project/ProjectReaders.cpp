#include "wizard/project/ProjectReaders.h"

#include "language/VltLanguageManager.h"
#include "platform/TextDecoding.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace vlt::project {

namespace {

/// Maximum size in bytes; a larger file is not a project.
constexpr qint64 MaxProjectSize = 16 << 20;
constexpr QLatin1String TerrainSection("DEM Layers");
constexpr QLatin1String TerrainFiles("Files :");
constexpr QLatin1String Projection("Reference Projection :");
constexpr QLatin1String VectorLayer("Vector layer");
constexpr QLatin1String LayerFile("File :");
constexpr QLatin1String LayerName("Layer name :");

Result<QString> readProject(const QString &path)
{
    if (path.isEmpty())
        return Error{
            QStringLiteral("MESS_ERR_NOM_FICHIER"), QStringLiteral("Invalid file name"), {}};

    QFile file(path);
    // only regular files, because reading a pipe or a device may never end
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return Error{QStringLiteral("MESS_OUV_PRJ_IMP"), QStringLiteral("Cannot open project"),
                     path};
    const QByteArray bytes = file.read(MaxProjectSize);
    // some editors save texts in UTF-16 with a byte order mark
    const auto encoding = QStringConverter::encodingForData(bytes);
    return encoding && *encoding != QStringConverter::Utf8
               ? QString(QStringDecoder(*encoding).decode(bytes))
               : platform::decodeText(bytes);
}

QString restOfLine(const QString &text, qsizetype from)
{
    const qsizetype end = text.indexOf(QLatin1Char('\n'), from);
    return text.mid(from, end < 0 ? -1 : end - from).trimmed();
}

/// Absolute path of a file in a project. A project may come from a system that writes "a\b", where
/// both separators are equivalent.
QString absoluteBesideProject(const QString &file, const QString &projectPath)
{
    if (file.isEmpty())
        return file;
    const QDir directory = QFileInfo(projectPath).absoluteDir();
    const QString path = directory.absoluteFilePath(file);
    const QString slashed =
        directory.absoluteFilePath(QString(file).replace(QLatin1Char('\\'), QLatin1Char('/')));
    return !QFileInfo::exists(path) && QFileInfo::exists(slashed) ? slashed : path;
}

/// Position after the label of the first terrain file, or -1.
qsizetype afterTerrainLabel(const QString &text)
{
    const qsizetype section = text.indexOf(TerrainSection);
    const qsizetype label = section < 0 ? -1 : text.indexOf(TerrainFiles, section);
    return label < 0 ? -1 : label + TerrainFiles.size();
}

/// Position after the first `label` at or after `from`, in upper or lower case, that is at the
/// start of a line apart from white space; or -1.
qsizetype afterLineLabel(const QString &text, QLatin1String label, qsizetype from)
{
    for (qsizetype at = text.indexOf(label, from, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(label, at + 1, Qt::CaseInsensitive)) {
        for (qsizetype before = at - 1; before >= from && text.at(before).isSpace(); --before) {
            if (text.at(before) == QLatin1Char('\n'))
                return at + label.size();
        }
    }
    return -1;
}

bool looksLikeBuildings(const QString &layerName)
{
    static const std::array words = {QStringLiteral("build"), QStringLiteral("bldg"),
                                     QStringLiteral("bat"), QStringLiteral("b\u00E2t")};
    return std::any_of(words.begin(), words.end(), [&layerName](const QString &word) {
        return layerName.contains(word, Qt::CaseInsensitive);
    });
}

QString firstBuildingFile(const QString &text)
{
    qsizetype from = std::max<qsizetype>(afterTerrainLabel(text), 0);
    while (true) {
        const qsizetype layer = text.indexOf(VectorLayer, from);
        const qsizetype fileAt = layer < 0 ? -1 : afterLineLabel(text, LayerFile, layer);
        if (fileAt < 0) // otherwise this layer would be found again endlessly
            return {};
        QString file = restOfLine(text, fileAt);
        const qsizetype nameAt = afterLineLabel(text, LayerName, fileAt);
        if (nameAt < 0) // no later layer has a name either
            return {};
        if (!file.isEmpty() && looksLikeBuildings(restOfLine(text, nameAt)))
            return file;
        from = nameAt;
    }
}

} // namespace

Result<QString> terrainFile(const QString &projectPath)
{
    const Result<QString> text = readProject(projectPath);
    if (!text)
        return text.error();
    const qsizetype from = afterTerrainLabel(text.value());
    return absoluteBesideProject(from < 0 ? QString() : restOfLine(text.value(), from),
                                 projectPath);
}

Result<QString> buildingVectorFile(const QString &projectPath)
{
    const Result<QString> text = readProject(projectPath);
    if (!text)
        return text.error();
    return absoluteBesideProject(firstBuildingFile(text.value()), projectPath);
}

QString referenceProjection(const QString &projectPath)
{
    const Result<QString> project = readProject(projectPath);
    if (!project)
        return {};
    const QString &text = project.value();
    const qsizetype section = text.indexOf(TerrainSection);
    const qsizetype label = section < 0 ? -1 : text.indexOf(Projection, section);
    if (label < 0)
        return {};
    // the value also ends at a second label on the same line
    return restOfLine(text, label + Projection.size()).section(Projection, 0, 0).trimmed();
}

bool namesNothing(const QString &projectPath)
{
    const Result<QString> terrain = terrainFile(projectPath);
    return terrain && terrain.value().isEmpty() && referenceProjection(projectPath).isEmpty() &&
           buildingVectorFile(projectPath).value().isEmpty();
}

QString namesNothingText()
{
    return dico_label("MESS_PROJECT_NAMES_NOTHING", "the project names neither a reference system "
                                                    "nor a terrain nor buildings");
}

} // namespace vlt::project
