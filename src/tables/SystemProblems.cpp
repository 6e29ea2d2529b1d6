#include "tables/SystemProblems.h"

#include "contract/TableMetadata.h"
#include "geodata/SrsDefinition.h"
#include "language/ErrorText.h"
#include "language/VltLanguageManager.h"

namespace vlt::tables {

using geodata::SrsFacts;
using geodata::SrsUse;

namespace {

QString label(const QString &system, const SrsFacts &facts)
{
    return facts.name.isEmpty() || facts.name == system
               ? system
               : facts.name + QStringLiteral(" (%1)").arg(system);
}

Problem warning(const QString &text)
{
    Problem problem;
    problem.severity = Problem::Severity::Warning;
    problem.text = text;
    return problem;
}

/// The warning for a table in metres with a system in degrees, or vice versa; empty if they agree.
QString unitProblem(const QString &unit, const QString &source, const SrsFacts &facts)
{
    const bool inMeters = unit == QLatin1String(contract::metadata::Meters);
    if (inMeters && facts.use == SrsUse::Geographic)
        return dico_label(
                   "MESS_SRS_UNIT_METERS",
                   "the coordinates of the table are in meters, but its system %1 uses degrees")
            .arg(label(source, facts));
    if (!inMeters && facts.use == SrsUse::Projected)
        return dico_label("MESS_SRS_UNIT_DEGREES", "the coordinates of the table are in degrees, "
                                                   "but its system %1 uses meters or feet")
            .arg(label(source, facts));
    return {};
}

QList<Problem> refusals(const geodata::SystemPair &systems, const geodata::SystemCheck &check)
{
    QList<Problem> problems;
    const auto add = [&problems](const QString &system, const SrsFacts &facts) {
        if (const auto refusal = geodata::srsRefusal(facts))
            problems << warning(label(system, facts) + QStringLiteral(": ") +
                                language::reasonOf(*refusal));
    };
    add(systems.source, check.source);
    if (geodata::listedCode(systems.target) != geodata::listedCode(systems.source))
        add(systems.target, check.target);
    return problems;
}

} // namespace

QList<Problem> systemProblems(const QString &unit, const geodata::SystemPair &systems,
                              const geodata::SystemCheck &check)
{
    QList<Problem> problems = refusals(systems, check);
    if (const QString text = unitProblem(unit, systems.source, check.source); !text.isEmpty())
        problems << warning(text);
    if (!problems.isEmpty()) // positions outside the area would only follow from these problems
        return problems;

    const auto addOutside = [&](qint64 outside, const QString &system, const SrsFacts &facts) {
        if (outside > 0)
            problems << warning(dico_label("MESS_SRS_OUTSIDE_AREA",
                                           "%1 of %2 positions lie outside the area of use of %3")
                                    .arg(QString::number(outside), QString::number(check.positions),
                                         label(system, facts)));
    };
    addOutside(check.outsideSource, systems.source, check.source);
    if (geodata::listedCode(systems.target) != geodata::listedCode(systems.source))
        addOutside(check.outsideTarget, systems.target, check.target);
    return problems;
}

std::optional<Error> systemRefusal(const geodata::SystemPair &systems)
{
    for (const QString &system : {systems.source, systems.target}) {
        if (std::optional<Error> refusal = geodata::srsRefusal(geodata::srsFacts(system))) {
            refusal->path = system;
            return refusal;
        }
    }
    return std::nullopt;
}

} // namespace vlt::tables
