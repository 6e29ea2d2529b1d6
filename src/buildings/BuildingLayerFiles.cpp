#include "buildings/BuildingLayerFiles.h"

#include "buildings/CountsText.h"
#include "buildings/DocumentWriter.h"
#include "buildings/TexturedInfoText.h"
#include "colormaps/ColorMapText.h"
#include "colormaps/ColoredInfoText.h"
#include "language/VltLanguageManager.h"
#include "platform/ConfigurationFile.h"
#include "platform/LayerFile.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <vector>

namespace vlt::buildings {

namespace {

/// Pixels of the legend per unit of the screen, so that it is sharp on screens of high density.
constexpr int LegendScale = 2;

const QLatin1String DocumentSuffix(contract::BuildingDocumentSuffix);

/// Name of a legend that starts with the document's name, which no other layer has.
QString ownLegendName(const QString &document, const QString &colorMapName)
{
    return QFileInfo(document).completeBaseName() + QLatin1Char('_') + colorMapName;
}

/// The content of a file before it is written.
class FormerFile
{
public:
    FormerFile(const QString &path, platform::Access access) : m_access(access)
    {
        const Result<QString> written = platform::writtenFile(path, access);
        m_path = written ? written.value() : path;
        QFile file(m_path);
        m_isThere = QFileInfo(m_path).isFile() && file.open(QIODevice::ReadOnly);
        if (m_isThere)
            m_bytes = file.readAll();
    }

    /// Restores the content if possible. A failure is only logged: the user sees the error that
    /// made this necessary.
    void restore() const
    {
        if (!m_isThere)
            QFile::remove(m_path);
        else if (!platform::writeWhole(m_path, m_bytes, m_access))
            qWarning().noquote() << "not restored:" << m_path;
    }

private:
    QString m_path;
    platform::Access m_access;
    bool m_isThere = false;
    QByteArray m_bytes;
};

/// Writes the files of one layer; the file that names the others is the last.
class FilesWriter
{
public:
    FilesWriter(const QString &layerPath, const BuildingLayerInput &input, platform::Access access)
        : m_input(input)
        , m_access(access)
        , m_files(filesOf(layerPath, input))
    {}

    /// @param description  called after the legend is written
    template<typename Description>
    Result<BuildingLayerFiles> write(const QString &document, TexbSubtype subtype,
                                     const Description &description)
    {
        const QString templatePath = texbTemplatePath(m_input.installDir);
        if (const auto found = platform::readConfigurationFile(templatePath); !found)
            return found.error();
        Result<Done> written = Done{};
        if (!m_files.colorMap.isEmpty())
            written =
                writePart(m_files.colorMap,
                          QByteArray::fromStdString(colormaps::colorMapText(m_input.legend->map)));
        if (written)
            written = writePart(m_files.document, document.toUtf8());
        if (written && m_input.legend)
            written = writeLegend(*m_input.legend);
        if (written)
            written = createTexbLayerFile(m_files.layer, templatePath,
                                          layerOf(subtype, description(legendText())), m_access);
        if (written)
            return m_files;
        for (const FormerFile &file : m_former)
            file.restore();
        return written.error();
    }

private:
    Result<Done> writePart(const QString &path, const QByteArray &bytes)
    {
        const FormerFile former(path, m_access);
        Result<Done> written = platform::writeWhole(path, bytes, m_access);
        if (!written)
            return platform::cannotCreateLayer(path, written.error().detail);
        m_former.push_back(former);
        return written;
    }

    /// Writes the legend. If its name is used already, by the legend of another layer with other
    /// values or by another user's file, the name starts with the layer's name.
    Result<Done> writeLegend(const LegendInput &legend)
    {
        const QImage image =
            legend.kinds.isEmpty()
                ? colormaps::drawLegend(legend.map, legend.interpretation, LegendScale)
                : colormaps::drawLegend(legend.kinds, LegendScale);
        m_legendSize = image.size() / LegendScale;
        if (isOther(image, m_files.legend))
            return writeLegendAs(ownLegendName(m_files.document, legend.name), image);
        Result<Done> written = writeLegendAs(legend.name, image);
        if (written || m_access != platform::Access::UserOnly)
            return written;
        return writeLegendAs(ownLegendName(m_files.document, legend.name), image);
    }

    static bool isOther(const QImage &image, const QString &path)
    {
        return QFileInfo(path).isFile() && QImage(path).convertToFormat(image.format()) != image;
    }

    Result<Done> writeLegendAs(const QString &name, const QImage &image)
    {
        const QString directory = QFileInfo(m_files.document).path();
        m_files.legend = colormaps::legendPath(directory, name);
        const FormerFile former(m_files.legend, m_access);
        const Result<QString> written = colormaps::writeLegend(image, directory, name, m_access);
        if (!written)
            return platform::cannotCreateLayer(m_files.legend, written.error().detail);
        m_former.push_back(former);
        return Done{};
    }

    /// The name of the colour map above its legend; empty if there is no legend.
    QString legendText() const
    {
        return m_input.legend
                   ? colormaps::coloredInfoText(m_input.legend->name, m_files.legend, m_legendSize)
                   : QString();
    }

    TexbLayer layerOf(TexbSubtype subtype, const QString &description) const
    {
        const BuildingsSource &source = m_input.source;
        const QString title =
            QStringLiteral("%1 (%2)").arg(dico_label("MESS_BUILDINGS", "Buildings"), source.layer);
        const QString document = m_files.document.chopped(DocumentSuffix.size());
        return {title,          texbUrl(document), source.xCenter,
                source.yCenter, subtype,           description + countsInfoText(m_input.counted)};
    }

    const BuildingLayerInput &m_input;
    platform::Access m_access;
    BuildingLayerFiles m_files;
    std::vector<FormerFile> m_former; ///< of the files written so far
    QSize m_legendSize;               ///< in the layer's description
};

std::vector<contract::BuildingImage> usedImages(const QList<FileEntry> &images)
{
    std::vector<contract::BuildingImage> used;
    for (const FileEntry &image : images) {
        if (image.used)
            used.push_back({image.file.filePath().toStdString(), image.height});
    }
    return used;
}

/// The colouring with the layer's own colour map, if it has one.
RasterColoring withOwnMap(RasterColoring coloring, const BuildingLayerFiles &files)
{
    if (!files.colorMap.isEmpty()) {
        coloring.colorMap = files.colorMap;
        coloring.stretched = false;
    }
    return coloring;
}

} // namespace

BuildingLayerFiles filesOf(const QString &layerPath, const BuildingLayerInput &input)
{
    const QString layerSuffix = QStringLiteral(".lay");
    QString name = QFileInfo(layerPath).absoluteFilePath();
    if (name.endsWith(layerSuffix, Qt::CaseInsensitive))
        name.chop(layerSuffix.size());
    BuildingLayerFiles files{layerPath, name + DocumentSuffix, {}, {}};
    if (!input.legend)
        return files;
    const QString folder = QFileInfo(name).path();
    files.legend = colormaps::legendPath(folder, input.legend->name);
    if (input.legend->isOwnMap)
        files.colorMap = QDir(folder).filePath(ownLegendName(files.document, input.legend->name)
                                                   .replace(QLatin1Char(';'), QLatin1Char('_')) +
                                               QStringLiteral(".cmap"));
    return files;
}

contract::BuildingDocument documentOf(const BuildingLayerInput &input)
{
    const BuildingsSource &source = input.source;
    contract::BuildingDocument document;
    document.footprints = input.footprints;
    document.footprints.file = source.file.toStdString();
    document.footprints.layer = source.layer.toStdString();
    document.footprints.heightField = source.heightField.toStdString();
    document.footprints.heights = source.heights;
    document.footprints.where = source.where.toStdString();
    document.terrain = {source.terrainFile.toStdString(), source.terrainNoData.toStdString()};
    return document;
}

QStringList possibleFilesOf(const QString &layerPath, const BuildingLayerInput &input)
{
    const BuildingLayerFiles files = filesOf(layerPath, input);
    QStringList paths{files.layer, files.document};
    if (!files.colorMap.isEmpty())
        paths << files.colorMap;
    if (input.legend)
        paths << files.legend
              << colormaps::legendPath(QFileInfo(files.document).path(),
                                       ownLegendName(files.document, input.legend->name));
    return paths;
}

contract::BuildingDocument coloredDocument(const BuildingLayerInput &input,
                                           const RasterColoring &walls)
{
    contract::BuildingDocument document = documentOf(input);
    document.colors = otherColors(walls);
    if (walls.field.isEmpty())
        document.footprints.wallColor = imageColor(walls).toStdString();
    else {
        document.footprints.wallColor = contract::FirstWallColor;
        document.footprints.roofColor = contract::FirstRoofColor;
    }
    return document;
}

contract::BuildingDocument texturedDocument(const BuildingLayerInput &input,
                                            const TexturingParameters &texturing)
{
    contract::BuildingDocument document = documentOf(input);
    document.cache = texturing.cache;
    document.footprints.texturedVisibilityM = texturing.texturedVisibilityM;
    const auto colorOf = [&](const QString &plain) {
        if (plain.isEmpty())
            document.colors = otherColors(texturing.coloring);
        return (plain.isEmpty() ? colorMapColor(texturing.coloring) : plain).toStdString();
    };
    document.footprints.wallColor = colorOf(texturing.wallColor);
    document.footprints.roofColor = colorOf(texturing.roofColor);
    document.textures = texturing.textures;
    if (document.textures) {
        document.textures->mode = texturing.mode;
        document.textures->images = usedImages(texturing.images);
    }
    return document;
}

Result<BuildingLayerFiles> writeColoredLayer(const QString &layerPath,
                                             const BuildingLayerInput &input,
                                             const RasterColoring &walls, platform::Access access)
{
    const RasterColoring written = withOwnMap(walls, filesOf(layerPath, input));
    const contract::BuildingDocument document = coloredDocument(input, written);
    return FilesWriter(layerPath, input, access)
        .write(walls.field.isEmpty() ? writeColoredTexbDocument(document)
                                     : writeTexbDocument(document),
               TexbSubtype::Colored, [](const QString &legend) { return legend; });
}

Result<BuildingLayerFiles> writeTexturedLayer(const QString &layerPath,
                                              const BuildingLayerInput &input,
                                              const TexturingParameters &texturing,
                                              platform::Access access)
{
    const QString images = texturedInfoText(texturing.mode, texturing.images);
    TexturingParameters written = texturing;
    written.coloring = withOwnMap(texturing.coloring, filesOf(layerPath, input));
    return FilesWriter(layerPath, input, access)
        .write(writeTexbDocument(texturedDocument(input, written)), subtypeOf(texturing.mode),
               [&images](const QString &legend) { return QString(images + legend); });
}

} // namespace vlt::buildings
