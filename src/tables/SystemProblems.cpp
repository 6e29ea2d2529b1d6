#include "tables/SystemProblems.h"

#include "contract/TableMetadata.h"
#include "geodata/SrsDefinition.h"
#include "language/ErrorText.h"
#include "language/Numbers.h"
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

/// The beginning of an area's name, which may list all countries in it.
QString shortArea(const QString &area)
{
    constexpr qsizetype MaxLetters = 60;
    if (area.size() <= MaxLetters)
        return area;
    const qsizetype blank = area.lastIndexOf(QLatin1Char(' '), MaxLetters);
    return area.left(blank > 0 ? blank : MaxLetters) + QStringLiteral(" \u2026");
}

/// A candidate with the place of the sites.
QString candidateText(const geodata::SystemCandidate &candidate)
{
    constexpr int Decimals = 4;
    QString text = dico_label("MESS_SRS_CANDIDATE_PLACE", "%1 (%2): the sites lie near %3, %4")
                       .arg(candidate.code, candidate.name,
                            language::fixedNumber(candidate.longitude, Decimals),
                            language::fixedNumber(candidate.latitude, Decimals));
    return candidate.area.isEmpty() ? text
                                    : text + QStringLiteral(" (%1)").arg(shortArea(candidate.area));
}

/// Where the system of a table without one comes from.
AssumedFrom assumedFrom(const TableFileInfo &file, const QString &source)
{
    const bool isSuggested =
        geodata::listedCode(source) == geodata::listedCode(file.systems.source);
    return isSuggested ? file.assumedFrom : AssumedFrom::Nothing;
}

/// What is assumed about a table without a system; empty if nothing is.
QString assumption(const TableFileInfo &file, const QString &source, const SrsFacts &facts)
{
    return source.isEmpty()
               ? QString()
               : dico_label("MESS_SRS_ASSUMED",
                            "the table declares no coordinate system: %1 is assumed, because %2")
                     .arg(label(geodata::listedCode(source), facts),
                          assumptionReason(assumedFrom(file, source)));
}

/// The systems that a table without one may have instead of the assumed one, best first. There are
/// none if nothing is against that one.
QList<geodata::SystemCandidate> otherSystems(const TableFileInfo &file, const QString &source,
                                             const geodata::SystemCheck &check)
{
    constexpr int MaxCandidates = 3;
    if (assumedFrom(file, source) != AssumedFrom::Nothing && check.outsideSource == 0)
        return {};
    QList<geodata::SystemCandidate> others;
    for (const geodata::SystemCandidate &candidate : file.candidates) {
        if (geodata::listedCode(candidate.code) != geodata::listedCode(source))
            others << candidate;
    }
    return others.mid(0, MaxCandidates);
}

/// What is assumed about a table without a system, and which systems are possible.
QList<Problem> assumptions(const TableFileInfo &file, const QString &source,
                           const geodata::SystemCheck &check)
{
    QList<Problem> problems;
    if (!file.isUndeclared)
        return problems;
    if (const QString text = assumption(file, source, check.source); !text.isEmpty())
        problems << warning(text);
    QStringList candidates;
    for (const geodata::SystemCandidate &candidate : otherSystems(file, source, check))
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
    const QList<Problem> assumed = assumptions(file, systems.source, check);
    QList<Problem> problems = refusals(systems, check);
    if (const QString text = unitProblem(file.unit, systems.source, check.source); !text.isEmpty())
        problems << warning(text);
    if (!problems.isEmpty()) // positions outside the area would only follow from these problems
        return assumed + problems;
    problems = assumed;

    const auto addOutside = [&](qint64 outside, const QString &system, const SrsFacts &facts) {
        if (outside > 0)
            problems << warning(dico_label("MESS_SRS_OUTSIDE_AREA",
                                           "outside the area of use of %3: %1 of %2 positions")
                                    .arg(language::wholeNumber(outside),
                                         language::wholeNumber(check.positions),
                                         label(system, facts)));
    };
    addOutside(check.outsideSource, systems.source, check.source);
    if (geodata::listedCode(systems.target) != geodata::listedCode(systems.source))
        addOutside(check.outsideTarget, systems.target, check.target);
    return problems;
}

QList<geodata::PositionFinding> systemFindings(const TableFileInfo &file,
                                               const geodata::SystemPair &systems,
                                               const geodata::SystemCheck &check)
{
    const QString kind = QStringLiteral("undeclared");
    QList<geodata::PositionFinding> findings;
    if (!file.isUndeclared)
        return findings;
    if (const QString text = assumption(file, systems.source, check.source); !text.isEmpty())
        findings << geodata::PositionFinding{kind, {}, text};
    for (const geodata::SystemCandidate &candidate : otherSystems(file, systems.source, check))
        findings << geodata::PositionFinding{kind, QStringLiteral("sourceSrs=") + candidate.code,
                                             candidateText(candidate)};
    return findings;
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
