#include "batch/BuildingsColoring.h"

#include "batch/DatasetNames.h"
#include "batch/InputNames.h"
#include "batch/ProgressLine.h"
#include "buildings/ColoringLegend.h"
#include "buildings/FieldColors.h"
#include "buildings/RasterRanges.h"
#include "colormaps/ColorMapList.h"
#include "geodata/RasterSource.h"
#include "language/VltLanguageManager.h"

#include <QFileInfo>

#include <optional>

namespace vlt::batch {

namespace {

using buildings::RasterColoring;

/// The colour map with this name in the installation's list, or from the file of this name.
Result<colormaps::ColorMapEntry> chosenColorMap(const QString &wanted, const QString &installDir)
{
    const QList<colormaps::ColorMapEntry> maps = colormaps::listColorMaps(installDir, false);
    QStringList names;
    for (const colormaps::ColorMapEntry &map : maps)
        names << map.name;
    const qsizetype index = wanted.isEmpty() ? 0 : indexOfName(names, wanted);
    if (index >= 0 && index < maps.size())
        return maps.at(index);
    if (!wanted.isEmpty() && QFileInfo(wanted).isFile())
        return colormaps::colorMapEntry(absolutePath(wanted));
    return Error::asIs(
        dico_label("MESS_CLI_NO_SUCH_CMAP",
                   "there is no color map and no file with this name; the color maps are: %1")
            .arg(names.join(QStringLiteral(", "))),
        wanted);
}

/// The error for a picture, or a raster without bands, with the names of the images in its file.
Error notUsable(const geodata::RasterSummary &raster, const QString &path)
{
    QString text = raster.bandCount == 0
                       ? dico_label("MESS_ERR_NO_BANDS", "This image doesn't have any band")
                       : dico_label("MESS_ERR_ONLY_GRAY", "The image-based coloring mode works "
                                                          "only with one-band grey images");
    QStringList parts;
    for (const geodata::Subdataset &part : raster.subdatasets)
        parts << part.name;
    if (!parts.isEmpty())
        text += QStringLiteral("; ") +
                dico_label("MESS_CLI_SUBDATASETS",
                           "it holds several images; give the name of one of them: %1")
                    .arg(parts.join(QStringLiteral(", ")));
    return Error::asIs(text, path);
}

/// The warning about the band of a raster with several bands; empty if there is none.
QString bandWarning(const geodata::RasterSummary &raster, const RasterColoring &coloring)
{
    if (coloring.band != contract::RasterBand.firstRun)
        return dico_label("MESS_CLI_OTHER_BAND",
                          "band %1 of the raster colors the buildings; other programs that read "
                          "the layer may take band 1")
            .arg(coloring.band);
    if (coloring.hasBand || raster.bandCount == 1)
        return {};
    QStringList bands;
    for (int i = 0; i < raster.bandCount; ++i)
        bands << buildings::bandText(i + 1, raster.bands);
    return dico_label("MESS_CLI_BANDS",
                      "band 1 of the raster colors the buildings; --band chooses another one: %1")
        .arg(bands.join(QStringLiteral("; ")));
}

/// Stores the absolute name of the raster in `coloring` and checks that the raster can be used.
std::optional<Error> checkRaster(RasterColoring &coloring, QStringList &warnings)
{
    const QString given = coloring.rasterFile;
    const QString file = fileOfDataset(given);
    if (file.isEmpty())
        return Error{QStringLiteral("MESS_SNAP_NO_FILE"), QStringLiteral("no such file"), given};
    coloring.rasterFile = absoluteDatasetName(given);
    const QString path = absolutePath(file);
    const bool isPart = coloring.rasterFile != path;
    const auto summary = geodata::readRasterSummary(path, isPart ? coloring.rasterFile : QString());
    if (!summary)
        return summary.error().withPath(given);
    if (!buildings::isUsable(summary.value()))
        return notUsable(summary.value(), given);
    if (const QString warning = bandWarning(summary.value(), coloring); !warning.isEmpty())
        warnings << warning;
    const auto raster = buildings::openRaster(coloring);
    return raster ? std::nullopt : std::optional(raster.error().withPath(given));
}

/// Reads the range of a stretched raster and stores it for the document.
Result<std::optional<coverage::ValueRange>> readRange(RasterColoring &coloring,
                                                      const buildings::BuildingLayerInput &layer,
                                                      const QString &given, bool quiet)
{
    if (!coloring.stretched)
        return std::optional<coverage::ValueRange>();
    for (QString &other : coloring.stretch.others) {
        if (fileOfDataset(other).isEmpty())
            return Error{QStringLiteral("MESS_SNAP_NO_FILE"), QStringLiteral("no such file"),
                         other};
        other = absoluteDatasetName(other);
    }
    ProgressLine line(
        dico_label("MESS_READING_RANGE", "Computing the minimum and maximum value..."), !quiet);
    const auto range = buildings::readRange(coloring, buildings::coloredDocument(layer, coloring),
                                            line.progress());
    if (range && !*range)
        return range->error();
    if (!range || !range->value().values)
        return Error::asIs(dico_label("MESS_CLI_NO_VALUES", "none of its pixels has a value"),
                           given);
    coloring.range = range->value().known;
    return range->value().values;
}

/// The legend of the texts of a field.
Result<buildings::LegendInput> readTexts(const RasterColoring &coloring,
                                         const buildings::BuildingLayerInput &layer, bool quiet)
{
    ProgressLine line(dico_label("MESS_READING_FIELD", "Reading the values of the field..."),
                      !quiet);
    // The progress line never stops the work, so there is a value.
    return *buildings::legendOfTexts(coloring, buildings::coloredDocument(layer, coloring),
                                     line.progress());
}

} // namespace

Result<buildings::LegendInput> readColoring(RasterColoring &coloring,
                                            const buildings::BuildingLayerInput &layer, bool quiet,
                                            QStringList &warnings)
{
    const bool isOfField = !coloring.field.isEmpty();
    const QString source = isOfField ? layer.source.file : coloring.rasterFile;
    if (coloring.isText)
        return readTexts(coloring, layer, quiet);
    if (!isOfField) {
        if (const auto error = checkRaster(coloring, warnings))
            return *error;
    }
    const auto map = chosenColorMap(coloring.colorMap, layer.installDir);
    if (!map)
        return map.error();
    coloring.colorMap = map.value().path;
    const auto range = readRange(coloring, layer, source, quiet);
    if (!range)
        return range.error();
    auto legend = buildings::legendOf(coloring, range.value());
    if (!legend)
        return legend.error().withPath(coloring.colorMap);
    return legend;
}

} // namespace vlt::batch
