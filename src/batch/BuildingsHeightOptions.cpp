#include "batch/BuildingsHeightOptions.h"

#include "batch/BuildingsOptions.h"
#include "batch/InputNames.h"
#include "buildings/HeightGuess.h"
#include "language/VltLanguageManager.h"

#include <utility>

namespace vlt::batch {

namespace {

using contract::BaseRule;
using contract::BuildingHeights;
using contract::HeightUnit;

struct HeightMeasures
{
    double factor = contract::HeightFactor.firstRun;
    double levelHeightM = contract::LevelHeightM.firstRun;
    double defaultM = contract::DefaultHeightM.firstRun;
};

const std::vector<NumberOption<HeightMeasures>> &heightNumbers()
{
    static const std::vector<NumberOption<HeightMeasures>> options = {
        {QStringLiteral("height-factor"),
         dico_label("MESS_OPT_HEIGHT_FACTOR", "Factor of the numbers in the field of heights"),
         &HeightMeasures::factor, contract::HeightFactor},
        {QStringLiteral("level-height"),
         dico_label("MESS_OPT_LEVEL_HEIGHT", "Height of a level in metres"),
         &HeightMeasures::levelHeightM, contract::LevelHeightM},
        {QStringLiteral("default-height"),
         dico_label("MESS_OPT_DEFAULT_HEIGHT",
                    "Height in metres of buildings that have none in a field; without it they are "
                    "left out"),
         &HeightMeasures::defaultM, contract::DefaultHeightM, false},
    };
    return options;
}

constexpr std::pair<const char *, std::string BuildingHeights::*> FieldOptions[] = {
    {"else-field", &BuildingHeights::elseField},
    {"base-field", &BuildingHeights::baseField},
    {"bottom-field", &BuildingHeights::bottomField}};

/// Stores the words of the options that have a choice of words.
std::optional<Error> readWords(const QCommandLineParser &parser, BuildingHeights &heights)
{
    const auto unit =
        readWord(parser, QStringLiteral("height-unit"), wordsOf(contract::HeightUnitWords));
    const auto elseUnit =
        readWord(parser, QStringLiteral("else-unit"), wordsOf(contract::HeightUnitWords));
    const auto reference = readWord(parser, QStringLiteral("height-reference"),
                                    wordsOf(contract::HeightReferenceWords));
    const auto base = readWord(parser, QStringLiteral("base"), wordsOf(contract::BaseRuleWords));
    for (const auto *read : {&unit, &elseUnit, &reference, &base}) {
        if (!*read)
            return read->error();
    }
    heights.unit = static_cast<HeightUnit>(unit.value());
    heights.elseUnit = static_cast<HeightUnit>(elseUnit.value());
    heights.reference = static_cast<contract::HeightReference>(reference.value());
    heights.base = static_cast<BaseRule>(base.value());
    return std::nullopt;
}

std::optional<Error> checkCompanions(const QCommandLineParser &parser, BaseRule base)
{
    const auto needs = [](const char *option, const char *other) {
        return wrongUsage(dico_label("MESS_USE_NEEDS_OPTION", "--%1 needs --%2")
                              .arg(QLatin1String(option), QLatin1String(other)));
    };
    for (const char *option : {"else-field", "base-field", "bottom-field", "where"}) {
        if (parser.isSet(QLatin1String(option)) && parser.value(QLatin1String(option)).isEmpty())
            return wrongUsage(dico_label("MESS_USE_NO_VALUE", "%1 needs a value")
                                  .arg(QStringLiteral("--") + QLatin1String(option)));
    }
    if (parser.isSet(QStringLiteral("else-unit")) && !parser.isSet(QStringLiteral("else-field")))
        return needs("else-unit", "else-field");
    const bool hasBaseField = parser.isSet(QStringLiteral("base-field"));
    if (base == BaseRule::Field && !hasBaseField)
        return needs("base field", "base-field");
    if (base != BaseRule::Field && hasBaseField)
        return needs("base-field", "base field");
    return std::nullopt;
}

/// The unit that the name of a field suggests, with a warning if it is not metres.
HeightUnit suggestedUnit(const QString &field, double levelHeightM, const QString &option,
                         QStringList &warnings)
{
    const HeightUnit unit = buildings::unitFromName(field);
    if (unit == HeightUnit::Levels)
        warnings << dico_label("MESS_CLI_TAKEN_AS_LEVELS",
                               "The values of \"%1\" are taken as levels of %2 m; %3 states "
                               "another unit.")
                        .arg(field, plainNumber(levelHeightM), option);
    else if (unit == HeightUnit::Feet)
        warnings << dico_label("MESS_CLI_TAKEN_AS_FEET",
                               "The values of \"%1\" are taken as feet; %2 states another unit.")
                        .arg(field, option);
    return unit;
}

} // namespace

QList<QCommandLineOption> heightOptions()
{
    const QString name = QStringLiteral("NAME");
    return QList<QCommandLineOption>{
               {QStringLiteral("height-unit"),
                dico_label("MESS_OPT_HEIGHT_UNIT",
                           "Unit of the numbers in the field of heights (default: levels or feet "
                           "if its name says so, else metres). A unit in a text goes first."),
                choiceOf(contract::HeightUnitWords)},
               {QStringLiteral("else-field"),
                dico_label("MESS_OPT_ELSE_FIELD",
                           "Field with the height of buildings that have none in the field of "
                           "heights."),
                name},
               {QStringLiteral("else-unit"),
                dico_label("MESS_OPT_ELSE_UNIT",
                           "Unit of the numbers in that field (default as for --height-unit)."),
                choiceOf(contract::HeightUnitWords)}} +
           numberOptionList(heightNumbers()) +
           QList<QCommandLineOption>{
               {QStringLiteral("height-reference"),
                dico_label("MESS_OPT_HEIGHT_REFERENCE",
                           "Level from which the values of both fields are measured: the ground "
                           "(default) or the sea."),
                choiceOf(contract::HeightReferenceWords)},
               {QStringLiteral("base"),
                dico_label("MESS_OPT_BASE",
                           "Ground height of a building: mean (default), minimum or maximum of "
                           "the terrain under its vertices, a field (--base-field), or zero."),
                choiceOf(contract::BaseRuleWords)},
               {QStringLiteral("base-field"),
                dico_label("MESS_OPT_BASE_FIELD",
                           "Field with the ground height in metres above sea level."),
                name},
               {QStringLiteral("bottom-field"),
                dico_label("MESS_OPT_BOTTOM_FIELD",
                           "Field with the height in metres of the underside above the ground."),
                name},
               {QStringLiteral("where"),
                dico_label("MESS_OPT_WHERE",
                           "SQL condition for the features that are buildings, such as "
                           "\"USAGE = 'home'\" (default: all)."),
                QStringLiteral("SQL")}};
}

Result<HeightChoice> readHeightOptions(const QCommandLineParser &parser)
{
    HeightChoice choice;
    HeightMeasures measures;
    if (const auto error = readNumberOptions(parser, heightNumbers(), measures))
        return *error;
    if (const auto error = readWords(parser, choice.heights))
        return *error;
    if (const auto error = checkCompanions(parser, choice.heights.base))
        return *error;
    choice.heights.factor = measures.factor;
    choice.heights.levelHeightM = measures.levelHeightM;
    if (parser.isSet(QStringLiteral("default-height")))
        choice.heights.defaultM = measures.defaultM;
    for (const auto &[option, member] : FieldOptions)
        choice.heights.*member = parser.value(QLatin1String(option)).toStdString();
    choice.hasUnit = parser.isSet(QStringLiteral("height-unit"));
    choice.hasElseUnit = parser.isSet(QStringLiteral("else-unit"));
    choice.hasReference = parser.isSet(QStringLiteral("height-reference"));
    choice.where = parser.value(QStringLiteral("where"));
    return choice;
}

Result<QString> findHeightField(const geodata::PolygonLayer &layer, const QString &wanted,
                                const QString &path)
{
    const QStringList names = buildings::possibleHeightFields(layer);
    const qsizetype index = indexOfName(names, wanted);
    if (index >= 0)
        return names.at(index);
    return Error::asIs(dico_label("MESS_CLI_NO_SUCH_FIELD",
                                  "there is no field of heights \"%1\"; the fields are: %2")
                           .arg(wanted, names.join(QStringLiteral(", "))),
                       path);
}

Result<BuildingHeights> heightsOf(const HeightChoice &choice, const geodata::PolygonLayer &layer,
                                  const QString &heightField, const QString &path,
                                  QStringList &warnings)
{
    BuildingHeights heights = choice.heights;
    for (const auto &[option, member] : FieldOptions) {
        std::string &name = heights.*member;
        if (name.empty())
            continue;
        const Result<QString> found = findHeightField(layer, QString::fromStdString(name), path);
        if (!found)
            return found.error();
        name = found.value().toStdString();
    }
    if (!choice.hasUnit)
        heights.unit = suggestedUnit(heightField, heights.levelHeightM,
                                     QStringLiteral("--height-unit"), warnings);
    if (!heights.elseField.empty() && !choice.hasElseUnit)
        heights.elseUnit =
            suggestedUnit(QString::fromStdString(heights.elseField), heights.levelHeightM,
                          QStringLiteral("--else-unit"), warnings);
    return heights;
}

} // namespace vlt::batch
