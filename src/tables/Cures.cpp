#include "tables/Cures.h"

#include "language/ReaderText.h"
#include "language/VltLanguageManager.h"

namespace vlt::tables {

namespace {

const QLatin1String SwapAxes("swapAxes");
const QLatin1String SourceSrs("sourceSrs=");
const QLatin1String Undeclared("undeclared");

QString fromUtf8(const std::string &text)
{
    return QString::fromStdString(text);
}

} // namespace

QList<Cure> appliedCures(const contract::ColumnMapping &mapping)
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
                          const QList<geodata::PositionFinding> &findings)
{
    QList<Cure> cures;
    for (const geodata::PositionFinding &finding : findings) {
        Cure cure = {language::readerText(finding.text), {}, mapping};
        if (finding.cure == SwapAxes) {
            cure.action = dico_label("MESS_SWAP_AXES", "Exchange the coordinates");
            cure.mapping.swapsAxes = !mapping.swapsAxes;
        } else if (finding.cure.startsWith(SourceSrs)) {
            const QString system = finding.cure.mid(SourceSrs.size());
            cure.action = dico_label("MESS_USE_SYSTEM", "Use %1").arg(system);
            cure.mapping.sourceSrs = system.toStdString();
        }
        const bool isStatement = finding.cure.isEmpty() && finding.kind == Undeclared;
        if (isStatement || (!cure.action.isEmpty() && cure.mapping != mapping))
            cures << cure;
    }
    return cures;
}

} // namespace vlt::tables
