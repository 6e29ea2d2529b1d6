#pragma once

#include "coverage/CoverageRaster.h"

#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace vlt::coverage {

/// Computes one value from many, by a Reduction.
class ValueReducer
{
public:
    explicit ValueReducer(Reduction reduction) : m_reduction(reduction) {}

    /// Adds values; those that are not finite are ignored.
    void add(std::span<const double> values);

    /// The value of all that were added; nothing if there were none.
    std::optional<double> result();

private:
    void count(double value);
    void gather();
    double mostRepresented();

    Reduction m_reduction;
    std::uint64_t m_number = 0;
    double m_least = 0;
    double m_most = 0;
    double m_sum = 0;
    std::vector<double> m_waiting;                          ///< not counted yet
    std::vector<std::pair<double, std::uint64_t>> m_counts; ///< ascending
};

} // namespace vlt::coverage
