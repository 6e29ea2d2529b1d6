#pragma once

#include "linkpath/Clearance.h"

#include <QColor>
#include <QString>

namespace vlt::links {

/// A verdict in a word or two, in the chosen language.
QString verdictText(linkpath::Verdict verdict);

/// What a link lacks to be judged, in the chosen language; empty for Lack::Nothing.
QString lackText(linkpath::Lack lack);

/// The colour that stands for a verdict.
QColor colorOfVerdict(linkpath::Verdict verdict);

/// LinkCheck::terrainProblem as a sentence in the chosen language; what a library says of the file
/// stays in its words, behind it.
QString terrainProblemText(const QString &problem);

} // namespace vlt::links
