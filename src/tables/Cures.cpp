#include "tables/Cures.h"

#include "language/Numbers.h"
#include "language/ReaderText.h"
#include "language/VltLanguageManager.h"

#include <QLocale>

namespace vlt::tables {

namespace {

using contract::PositionChange;
using contract::PositionCorrection;

const QLatin1String SwapAxes("swapAxes");
const QLatin1String SourceSrs("sourceSrs=");
const QLatin1String Undeclared("undeclared");

QString fromUtf8(const std::string &text)
{
    return QString::fromStdString(text);
}

QString rowsText(std::size_t count)
{
    return count == 1 ? dico_label("MESS_ONE_ROW", "1 row")
                      : dico_label("MESS_N_ROWS", "%1 rows")
                            .arg(language::wholeNumber(static_cast<qint64>(count)));
}

/// The coordinates that a correction changes.
QString coordinatesOf(PositionChange change, CoordinateKind kind)
{
    const bool isGeographic = kind == CoordinateKind::Geographic;
    switch (change) {
    case PositionChange::NegateX:
    case PositionChange::ScaleX:
        return isGeographic ? dico_label("MESS_THE_LONGITUDE", "the longitude")
                            : dico_label("MESS_THE_EASTING", "the easting");
    case PositionChange::NegateY:
    case PositionChange::ScaleY:
        return isGeographic ? dico_label("MESS_THE_LATITUDE", "the latitude")
                            : dico_label("MESS_THE_NORTHING", "the northing");
    case PositionChange::Negate:
    case PositionChange::Scale:
        break;
    case PositionChange::Swap:
        return dico_label("MESS_THE_COORDINATES", "the coordinates");
    }
    return dico_label("MESS_BOTH_COORDINATES", "both coordinates");
}

/// The coordinates, and the number of rows if it is not the whole table.
QString targetOf(const PositionCorrection &correction, CoordinateKind kind)
{
    const QString coordinates = coordinatesOf(correction.change, kind);
    return correction.rows.empty() ? coordinates
                                   : dico_label("MESS_OF_ROWS", "%1 of %2")
                                         .arg(coordinates, rowsText(correction.rows.size()));
}

QString factorOf(const PositionCorrection &correction)
{
    return QLocale::c().toString(correction.factor, 'g', QLocale::FloatingPointShortest);
}

/// The text of the button that makes corrections.
QString actionOf(const std::vector<PositionCorrection> &corrections, CoordinateKind kind)
{
    if (corrections.size() > 1) {
        std::size_t rows = 0;
        for (const PositionCorrection &correction : corrections)
            rows += correction.rows.size();
        return dico_label("MESS_CORRECT_ROWS", "Correct the positions of %1").arg(rowsText(rows));
    }
    const PositionCorrection &correction = corrections.front();
    const QString target = targetOf(correction, kind);
    if (correction.change == PositionChange::Swap)
        return dico_label("MESS_EXCHANGE", "Exchange %1").arg(target);
    if (correction.change < PositionChange::ScaleX)
        return dico_label("MESS_TURN_SIGN", "Turn the sign of %1").arg(target);
    return dico_label("MESS_MULTIPLY", "Multiply %1 by %2").arg(target, factorOf(correction));
}

/// What a correction in a mapping does.
QString statementOf(const PositionCorrection &correction, CoordinateKind kind)
{
    const QString target = targetOf(correction, kind);
    if (correction.change == PositionChange::Swap)
        return dico_label("MESS_EXCHANGED", "Exchanged: %1").arg(target);
    if (correction.change < PositionChange::ScaleX)
        return dico_label("MESS_SIGN_TURNED", "Sign turned: %1").arg(target);
    return dico_label("MESS_MULTIPLIED", "Multiplied by %2: %1").arg(target, factorOf(correction));
}

/// Adds the cure of a mistake to a mapping. False if there is none.
bool applyCure(const geodata::PositionFinding &finding, contract::ColumnMapping &mapping)
{
    if (!finding.corrections.empty())
        return contract::addCorrections(mapping.corrections, finding.corrections);
    const contract::ColumnMapping before = mapping;
    if (finding.cure == SwapAxes)
        mapping.swapsAxes = !mapping.swapsAxes;
    else if (finding.cure.startsWith(SourceSrs))
        mapping.sourceSrs = finding.cure.mid(SourceSrs.size()).toStdString();
    return mapping != before;
}

QString actionOf(const geodata::PositionFinding &finding, CoordinateKind kind)
{
    if (!finding.corrections.empty())
        return actionOf(finding.corrections, kind);
    return finding.cure == SwapAxes
               ? dico_label("MESS_SWAP_AXES", "Exchange the coordinates")
               : dico_label("MESS_USE_SYSTEM", "Use %1").arg(finding.cure.mid(SourceSrs.size()));
}

} // namespace

QList<Cure> appliedCures(const contract::ColumnMapping &mapping, CoordinateKind kind)
{
    QList<Cure> cures;
    const auto add = [&](const QString &text, auto change) {
        Cure cure = {text, dico_label("MESS_UNDO", "Undo"), mapping};
        change(cure.mapping);
        cures << cure;
    };
    if (mapping.swapsAxes)
        add(dico_label("MESS_AXES_SWAPPED", "The coordinates are exchanged."),
            [](contract::ColumnMapping &of) { of.swapsAxes = false; });
    if (!mapping.sourceSrs.empty())
        add(dico_label("MESS_SYSTEM_STATED", "The coordinate system of the table is set to %1.")
                .arg(fromUtf8(mapping.sourceSrs)),
            [](contract::ColumnMapping &of) { of.sourceSrs.clear(); });
    for (std::size_t i = 0; i < mapping.corrections.size(); ++i)
        add(statementOf(mapping.corrections[i], kind), [i](contract::ColumnMapping &of) {
            of.corrections.erase(of.corrections.begin() + static_cast<std::ptrdiff_t>(i));
        });
    if (!mapping.sectors.empty())
        add(dico_label("MESS_SECTORS_FROM", "The transmitters come from %1.")
                .arg(fromUtf8(mapping.sectors)),
            [](contract::ColumnMapping &of) { of.sectors.clear(); });
    if (!mapping.sites.empty())
        add(dico_label("MESS_END_SITES_FROM", "The sites at the ends come from %1.")
                .arg(fromUtf8(mapping.sites)),
            [](contract::ColumnMapping &of) { of.sites.clear(); });
    return cures;
}

QList<Cure> proposedCures(const contract::ColumnMapping &mapping,
                          const QList<geodata::PositionFinding> &findings, CoordinateKind kind)
{
    QList<Cure> cures;
    for (const geodata::PositionFinding &finding : findings) {
        Cure cure = {language::readerText(finding.text), {}, mapping};
        if (applyCure(finding, cure.mapping))
            cure.action = actionOf(finding, kind);
        const bool isStatement = finding.cure.isEmpty() && finding.kind == Undeclared;
        if (isStatement || !cure.action.isEmpty())
            cures << cure;
    }
    return cures;
}

contract::ColumnMapping withCures(contract::ColumnMapping mapping,
                                  const QList<geodata::PositionFinding> &findings)
{
    for (const geodata::PositionFinding &finding : findings)
        applyCure(finding, mapping);
    return mapping;
}

} // namespace vlt::tables
