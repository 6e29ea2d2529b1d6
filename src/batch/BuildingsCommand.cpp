#include "batch/BuildingsCommand.h"

#include "batch/BuildingsInputs.h"
#include "batch/BuildingsOptions.h"
#include "batch/BuildingsValues.h"
#include "batch/Console.h"
#include "batch/Help.h"
#include "batch/OutputFiles.h"
#include "batch/ProgressLine.h"
#include "buildings/CountsText.h"
#include "buildings/HeightAdvice.h"
#include "buildings/ValuedBuildings.h"
#include "language/Numbers.h"
#include "language/VltLanguageManager.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace vlt::batch {

namespace {

using buildings::BuildingLayerFiles;
using buildings::TexbSubtype;
using buildings::ValuedBuildings;

CommandSyntax syntax()
{
    CommandSyntax syntax;
    syntax.name = QStringLiteral("buildings");
    syntax.usage = QStringLiteral("[VECTOR] -o OUT.lay");
    syntax.summary = dico_label("MESS_HELP_BUILDINGS_SUMMARY", "make a layer of buildings");
    syntax.description = dico_label(
        "MESS_HELP_BUILDINGS",
        "Makes a layer of 3D buildings, like the wizard: colored from a raster (--image), with "
        "images on roofs, walls or storeys (--texture, --textures), or plain.");
    syntax.inputs = {0, 1, QStringLiteral("VECTOR"),
                     dico_label("MESS_HELP_BUILDINGS_VECTOR",
                                "Vector file with the outlines of the buildings (default: the "
                                "project's)."),
                     dico_label("MESS_USE_NO_VECTOR", "no vector file given")};
    syntax.options = buildingsOptions();
    syntax.repeatable = {QStringLiteral("texture"), QStringLiteral("stretch")};
    syntax.examples =
        QStringLiteral("  vltlayers buildings town.shp --dtm hills.tif -o town.lay\n"
                       "  vltlayers buildings town.shp --dtm hills.tif --image level.tif \\\n"
                       "      --colormap signal_level_dBm --absolute --mode average -o town.lay\n"
                       "  vltlayers buildings --project city.gvw --textures coverage_6m.tif \\\n"
                       "      --texture-on walls -o town.lay\n"
                       "  vltlayers buildings --project city.gvw --texture low.tif=1.5 \\\n"
                       "      --texture high.tif=12 --texture-on storeys -o town.lay\n"
                       "  vltlayers snapshot town.lay --project city.gvw -o town.png\n");
    return syntax;
}

Result<BuildingLayerFiles> writeFiles(const BuildingsRequest &request,
                                      const BuildingsInputs &inputs)
{
    constexpr auto access = platform::Access::Shared;
    return request.texturing ? buildings::writeTexturedLayer(request.output, inputs.layer,
                                                             inputs.texturing, access)
                             : buildings::writeColoredLayer(request.output, inputs.layer,
                                                            inputs.coloring, access);
}

/// Reads what would be drawn, counts it, and adds a warning if other options for the heights are
/// better. Nothing to draw is an error, to which the warning belongs.
Result<ValuedBuildings> readDrawn(const BuildingsRequest &request, BuildingsInputs &inputs,
                                  bool quiet)
{
    ProgressLine line(dico_label("MESS_CLI_COUNTING_BUILDINGS", "Counting the buildings"), !quiet);
    const contract::BuildingDocument document =
        request.texturing ? buildings::texturedDocument(inputs.layer, inputs.texturing)
                          : buildings::coloredDocument(inputs.layer, inputs.coloring);
    // The progress line never stops the work, so there is a value.
    Result<ValuedBuildings> read = *ValuedBuildings::read(document, line.progress());
    if (!read)
        return read;
    inputs.layer.counted = read.value().counted();
    const buildings::CountedBuildings &counted = inputs.layer.counted;
    QString advised;
    const auto advice = buildings::adviseHeights(document, counted, inputs.vector, line.progress());
    if (advice && !advice->elseField.isEmpty())
        advised = QStringLiteral("%1 (--else-field \"%2\")").arg(advice->text, advice->elseField);
    else if (advice && !request.heights.hasReference)
        advised = QStringLiteral("%1 (--height-reference sea)").arg(advice->text);
    if (const auto nothing = buildings::nothingDrawnText(counted))
        return Error::asIs(advised.isEmpty() ? *nothing : *nothing + QStringLiteral("; ") + advised,
                           inputs.layer.source.file);
    if (!advised.isEmpty())
        inputs.warnings << advised;
    return read;
}

/// Writes the list of the buildings if it is wanted.
Result<Done> writeValues(const BuildingsRequest &request, const BuildingsInputs &inputs,
                         const ValuedBuildings &read, bool quiet)
{
    if (!request.values)
        return Done{};
    ProgressLine line(dico_label("MESS_WRITING_VALUES", "Writing the values of the buildings..."),
                      !quiet);
    return *read.write(*request.values, inputs.layer.legend, line.progress());
}

template<typename Counts, std::size_t N>
QJsonObject countsJson(const Counts &counts, const contract::NamedCount<Counts> (&names)[N])
{
    QJsonObject object;
    for (const contract::NamedCount<Counts> &name : names) {
        if (const std::size_t count = counts.*name.count; count > 0)
            object.insert(QLatin1String(name.key), static_cast<qint64>(count));
    }
    return object;
}

void warnOfImages(const BuildingsInputs &inputs)
{
    if (!inputs.texturing.textures) {
        if (inputs.coloring.rasterFile.isEmpty())
            printError(dico_label(
                "MESS_CLI_PLAIN",
                "the buildings have no images: neither --texture nor --textures is given"));
        return;
    }
    const QList<buildings::FileEntry> &images = inputs.texturing.images;
    const auto count =
        std::count_if(images.begin(), images.end(),
                      [](const buildings::FileEntry &image) { return image.height == 0; });
    if (count > 0)
        printError(
            dico_label("MESS_CLI_NO_HEIGHTS", "images without a stated height, 0 m is used: %1")
                .arg(language::wholeNumber(count)));
}

/// The summary of the values that colour the buildings; nothing without such values.
std::optional<buildings::ValueSummary> summaryOf(const BuildingsInputs &inputs)
{
    const buildings::CountedBuildings &counted = inputs.layer.counted;
    if (!inputs.layer.legend || inputs.coloring.rasterFile.isEmpty())
        return std::nullopt;
    return buildings::summarize(counted.values, *inputs.layer.legend,
                                buildings::unitOf(counted.unit, inputs.coloring));
}

QString layerJson(const BuildingsRequest &request, const BuildingsInputs &inputs,
                  const BuildingLayerFiles &files)
{
    const buildings::BuildingsSource &source = inputs.layer.source;
    const contract::CityCounts &counts = inputs.layer.counted.counts;
    const auto textOrNull = [](const QString &text) {
        return text.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
    };
    const TexbSubtype subtype =
        request.texturing ? buildings::subtypeOf(inputs.texturing.mode) : TexbSubtype::Colored;
    QJsonObject object{
        {QStringLiteral("layer"), QFileInfo(files.layer).absoluteFilePath()},
        {QStringLiteral("document"), files.document},
        {QStringLiteral("legend"), textOrNull(files.legend)},
        {QStringLiteral("values"),
         textOrNull(request.values ? QFileInfo(request.values->path).absoluteFilePath()
                                   : QString())},
        {QStringLiteral("subtype"), buildings::subtypeName(subtype)},
        {QStringLiteral("vector"), source.file},
        {QStringLiteral("vectorLayer"), source.layer},
        {QStringLiteral("heightField"), source.heightField},
        {QStringLiteral("features"), static_cast<qint64>(counts.features)},
        {QStringLiteral("buildings"), static_cast<qint64>(counts.drawn)},
        {QStringLiteral("leftOut"), countsJson(counts.leftOut, contract::LeftOutCounts)},
        {QStringLiteral("substitutes"), countsJson(counts.substitutes, contract::SubstituteCounts)},
        {QStringLiteral("terrain"), source.terrainFile},
        {QStringLiteral("terrainNoData"), textOrNull(source.terrainNoData)},
        {QStringLiteral("image"), textOrNull(inputs.coloring.rasterFile)},
        {QStringLiteral("colorField"), textOrNull(inputs.coloring.field)},
        {QStringLiteral("colormap"), textOrNull(inputs.coloring.colorMap)},
        {QStringLiteral("xCenter"), source.xCenter},
        {QStringLiteral("yCenter"), source.yCenter},
        {QStringLiteral("warnings"),
         QJsonArray::fromStringList(inputs.warnings + inputs.layer.counted.notices)}};
    if (const auto summary = summaryOf(inputs))
        object.insert(QStringLiteral("summary"), summaryJson(*summary));
    if (request.texturing)
        object.insert(QStringLiteral("textures"), inputs.texturing.images.size());
    return QString::fromUtf8(QJsonDocument(object).toJson());
}

ExitStatus runParsed(const BuildingsRequest &request, const GlobalOptions &options,
                     const Surroundings &surroundings)
{
    const Result<BuildingsInputs> accepted =
        readBuildingsInputs(request, surroundings, options.quiet);
    if (!accepted)
        return refuse(accepted.error());
    BuildingsInputs inputs = accepted.value();
    QStringList outputs = buildings::possibleFilesOf(request.output, inputs.layer);
    if (request.values)
        outputs << request.values->path;
    for (const QString &output : outputs) {
        if (isOneOf(output, inputs.files))
            return refuse(outputIsInput(output));
    }
    const Result<ValuedBuildings> read = readDrawn(request, inputs, options.quiet);
    if (!read)
        return refuse(read.error());
    if (const auto done = writeValues(request, inputs, read.value(), options.quiet); !done)
        return refuse(done.error());
    const Result<BuildingLayerFiles> written = writeFiles(request, inputs);
    if (!written)
        return refuse(written.error());
    if (!options.quiet) {
        for (const QString &warning : inputs.warnings + inputs.layer.counted.notices)
            printError(warning);
    }
    if (request.texturing && !options.quiet)
        warnOfImages(inputs);
    QString report;
    if (options.json)
        report = layerJson(request, inputs, written.value());
    else if (const auto summary = summaryOf(inputs); summary && !options.quiet)
        report = buildings::summaryText(*summary) + QLatin1Char('\n');
    if (!report.isEmpty() && !printOut(report))
        return refuse({QStringLiteral("MESS_CLI_OUTPUT_FAILED"),
                       QStringLiteral("the output cannot be written"),
                       {}});
    return ExitStatus::Done;
}

ExitStatus run(const QCommandLineParser &parser, const GlobalOptions &options)
{
    const Result<BuildingsRequest> request = readBuildingsRequest(parser);
    if (!request)
        return refuseUsage(request.error());
    if (options.projectPath.isEmpty()) {
        if (request.value().vector.isEmpty())
            return refuseUsage(wrongUsage(dico_label("MESS_USE_NO_VECTOR_NOR_PROJECT",
                                                     "no vector file given, and no --project")));
        if (request.value().terrain.isEmpty())
            return refuseUsage(wrongUsage(dico_label(
                "MESS_USE_NO_DTM_NOR_PROJECT", "no terrain given (--dtm), and no --project")));
    }

    const Result<Surroundings> surroundings = startUp(options);
    if (!surroundings)
        return refuse(surroundings.error());
    return runParsed(request.value(), options, surroundings.value());
}

} // namespace

Command buildingsCommand()
{
    return {syntax, run};
}

} // namespace vlt::batch
