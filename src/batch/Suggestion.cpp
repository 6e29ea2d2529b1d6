#include "batch/Suggestion.h"

#include "language/VltLanguageManager.h"

#include <algorithm>
#include <vector>

namespace vlt::batch {

namespace {

/// One typing error is accepted per this many letters.
constexpr qsizetype LettersPerSlip = 4;

/// Number of letters to insert, remove, replace or swap with their neighbour.
qsizetype distance(const QString &from, const QString &to)
{
    std::vector<std::vector<qsizetype>> cost(
        static_cast<std::size_t>(from.size()) + 1,
        std::vector<qsizetype>(static_cast<std::size_t>(to.size()) + 1));
    for (std::size_t i = 0; i < cost.size(); ++i) {
        for (std::size_t j = 0; j < cost[i].size(); ++j) {
            if (i == 0 || j == 0) {
                cost[i][j] = static_cast<qsizetype>(i) + static_cast<qsizetype>(j);
                continue;
            }
            const auto letter = [](const QString &text, std::size_t at) {
                return text.at(static_cast<qsizetype>(at - 1));
            };
            const bool isSame = letter(from, i) == letter(to, j);
            cost[i][j] = std::min(
                {cost[i - 1][j] + 1, cost[i][j - 1] + 1, cost[i - 1][j - 1] + (isSame ? 0 : 1)});
            if (i > 1 && j > 1 && letter(from, i) == letter(to, j - 1) &&
                letter(from, i - 1) == letter(to, j))
                cost[i][j] = std::min(cost[i][j], cost[i - 2][j - 2] + 1);
        }
    }
    return cost.back().back();
}

} // namespace

QString didYouMean(const QString &wrong, const QStringList &names)
{
    const qsizetype mostSlips = std::max<qsizetype>(1, wrong.size() / LettersPerSlip);
    QString nearest;
    qsizetype fewest = mostSlips + 1;
    for (const QString &name : names) {
        const qsizetype slips = distance(wrong, name);
        if (name.size() > 2 && slips < fewest) {
            nearest = name;
            fewest = slips;
        }
    }
    if (nearest.isEmpty())
        return {};
    return dico_label("MESS_USE_DID_YOU_MEAN", "; did you mean '%1'?").arg(nearest);
}

} // namespace vlt::batch
