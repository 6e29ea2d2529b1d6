#include "coverage/RasterPercentiles.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <vector>

namespace vlt::coverage {

namespace {

constexpr std::uint32_t SignBit = 0x80000000U;
constexpr std::uint32_t HalfBits = 16;
constexpr std::size_t HalfCount = std::size_t(1) << HalfBits;

/// A number with the order of the values.
std::uint32_t keyOf(double value)
{
    constexpr double Most = std::numeric_limits<float>::max();
    const auto bits =
        std::bit_cast<std::uint32_t>(static_cast<float>(std::clamp(value, -Most, Most) + 0.0));
    return bits & SignBit ? ~bits : bits | SignBit;
}

double valueOf(std::uint32_t key)
{
    return std::bit_cast<float>(key & SignBit ? key ^ SignBit : ~key);
}

/// How many values have each number as one half of their key.
using Counts = std::vector<std::uint64_t>;

/// Finds the number at a rank, from 1; `rank` is the one among the values of that number then.
std::uint32_t numberAt(const Counts &counts, std::uint64_t &rank)
{
    std::uint32_t number = 0;
    while (number + 1 < counts.size() && rank > counts[number])
        rank -= counts[number++];
    return number;
}

/// The search for the value of one rank.
struct Search
{
    std::uint64_t rank = 1;
    std::uint32_t upper = 0; ///< half of its key
    Counts lower = Counts(HalfCount);
};

} // namespace

std::optional<ValueRange> percentilesOf(RasterBlocks &blocks, double low, double high,
                                        const Progress &progress)
{
    const auto forEachKey = [&](double before, const auto &use) {
        const auto half = [&](double share) { return !progress || progress(before + share / 2); };
        return blocks.forEachPiece(half, [&use](std::span<const double> values) {
            for (const double value : values) {
                if (!std::isnan(value))
                    use(keyOf(value));
            }
        });
    };
    Counts upper(HalfCount);
    std::uint64_t total = 0;
    const auto countUpper = [&](std::uint32_t key) {
        ++upper[key >> HalfBits];
        ++total;
    };
    if (!forEachKey(0, countUpper) || total == 0)
        return std::nullopt;

    std::array<Search, 2> searches;
    for (const bool isHigh : {false, true}) {
        Search &search = searches[isHigh];
        const double rank = std::ceil((isHigh ? high : low) / 100 * static_cast<double>(total));
        search.rank = std::clamp<std::uint64_t>(static_cast<std::uint64_t>(rank), 1, total);
        search.upper = numberAt(upper, search.rank);
    }
    const auto countLower = [&](std::uint32_t key) {
        for (Search &search : searches) {
            if (key >> HalfBits == search.upper)
                ++search.lower[key % HalfCount];
        }
    };
    if (!forEachKey(0.5, countLower))
        return std::nullopt;
    const auto found = [](Search &search) {
        return valueOf(search.upper << HalfBits | numberAt(search.lower, search.rank));
    };
    return ValueRange{found(searches[0]), found(searches[1])};
}

} // namespace vlt::coverage
