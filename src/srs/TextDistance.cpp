#include "srs/TextDistance.h"

#include <algorithm>

namespace vlt::srs {

bool differsByOneLetter(QStringView a, QStringView b)
{
    if (a.size() > b.size())
        std::swap(a, b);
    const auto at = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    const QStringView restA = a.mid(at.first - a.begin());
    const QStringView restB = b.mid(at.second - b.begin());
    if (restB.isEmpty())
        return false;
    if (a.size() < b.size())
        return restA == restB.mid(1);
    const bool isSwapped = restA.size() > 1 && restA[0] == restB[1] && restA[1] == restB[0];
    return restA.mid(1) == restB.mid(1) || (isSwapped && restA.mid(2) == restB.mid(2));
}

} // namespace vlt::srs
