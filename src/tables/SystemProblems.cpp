#include "tables/SystemProblems.h"

#include "contract/TableMetadata.h"
#include "geodata/SrsDefinition.h"
#include "language/ErrorText.h"
#include "language/VltLanguageManager.h"

#include <algorithm>

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

QString assumptionReason(AssumedFrom from)
{
    switch (from) {
    case AssumedFrom::Terrain:
        return dico_label("MESS_SRS_FROM_TERRAIN", "it is that of the project's terrain");
    case AssumedFrom::Name:
        return dico_label("MESS_SRS_FROM_NAME", "the table names it in words");
    case AssumedFrom::Project:
        return dico_label("MESS_SRS_FROM_PROJECT", "it is that of the project");
    case AssumedFrom::Positions:
        return dico_label("MESS_SRS_FROM_POSITIONS",
                          "the positions lie in the area of use of no other system that was tried");
    case AssumedFrom::Nothing:
        break;
    }
    return dico_label("MESS_SRS_FROM_CHOICE", "it is the one chosen now");
}

/// A candidate with the place of the sites.
QString candidateText(const geodata::SystemCandidate &candidate)
{
    constexpr int Decimals = 4;
    QString text = dico_label("MESS_SRS_CANDIDATE_PLACE", "%1 (%2): the sites lie near %3, %4")
                       .arg(candidate.code, candidate.name,
                            QString::number(candidate.longitude, 'f', Decimals),
                            QString::number(candidate.latitude, 'f', Decimals));
    return candidate.area.isEmpty() ? text : text + QStringLiteral(" (%1)").arg(candidate.area);
}

/// What is assumed about a table without a system, and which systems are possible.
QList<Problem> assumptions(const TableFileInfo &file, const QString &source, const SrsFacts &facts)
{
    constexpr int MaxCandidates = 3;
    QList<Problem> problems;
    if (!file.isUndeclared)
        return problems;
    const bool isSuggested =
        geodata::listedCode(source) == geodata::listedCode(file.systems.source);
    if (!source.isEmpty())
        problems << warning(
            dico_label("MESS_SRS_ASSUMED",
                       "the table declares no coordinate system: %1 is assumed, because %2")
                .arg(label(geodata::listedCode(source), facts),
                     assumptionReason(isSuggested ? file.assumedFrom : AssumedFrom::Nothing)));
    if (isSuggested && file.assumedFrom != AssumedFrom::Nothing)
        return problems;
    QStringList candidates;
    for (const geodata::SystemCandidate &candidate : file.candidates.mid(0, MaxCandidates))
        candidates << candidateText(candidate);
    if (!candidates.isEmpty())
        problems << warning(dico_label("MESS_SRS_CANDIDATES", "possible coordinate systems: %1")
                                .arg(candidates.join(QStringLiteral("; "))));
    return problems;
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

QList<Problem> systemProblems(const TableFileInfo &file, const geodata::SystemPair &systems,
                              const geodata::SystemCheck &check)
{
    const QList<Problem> assumed = assumptions(file, systems.source, check.source);
    QList<Problem> problems = refusals(systems, check);
    if (const QString text = unitProblem(file.unit, systems.source, check.source); !text.isEmpty())
        problems << warning(text);
    if (!problems.isEmpty()) // positions outside the area would only follow from these problems
        return assumed + problems;
    problems = assumed;

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

geodata::LayerProblems otherProblems(const TableFileInfo &file, const geodata::SystemPair &systems,
                                     const geodata::SystemCheck &check,
                                     geodata::LayerProblems ofRows)
{
    if (unitProblem(file.unit, systems.source, check.source).isEmpty())
        return ofRows;
    QStringList repeated;
    for (const geodata::PositionFinding &finding : std::as_const(ofRows.findings)) {
        if (finding.kind == QLatin1String("unitSystem"))
            repeated << finding.text;
    }
    ofRows.count -= ofRows.listed.removeIf([&repeated](const Problem &problem) {
        return problem.row == 0 && repeated.contains(problem.text);
    });
    ofRows.findings.removeIf([&repeated](const geodata::PositionFinding &finding) {
        return repeated.contains(finding.text);
    });
    return ofRows;
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
