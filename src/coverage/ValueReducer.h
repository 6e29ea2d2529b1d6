#pragma once

#include "coverage/CoverageRaster.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace vlt::coverage {

/// Computes one value from many, by a Reduction.
class ValueReducer
{
public:
    /// @param withCounts  whether counts() is used
    explicit ValueReducer(Reduction reduction, bool withCounts = false)
        : m_reduction(reduction)
        , m_keepsCounts(withCounts || reduction == Reduction::MostRepresented)
    {}

    /// Adds values; those that are not finite are ignored.
    void add(std::span<const double> values);

    /// The value of all that were added; nothing if there were none.
    std::optional<double> result();

    /// Number of values that were added.
    std::uint64_t number() const { return m_number; }

    /// How often each value was added, ascending.
    const std::vector<ValueCount> &counts();

private:
    void count(double value);
    void gather();
    double mostRepresented();

    Reduction m_reduction;
    bool m_keepsCounts;
    std::uint64_t m_number = 0;
    double m_least = 0;
    double m_most = 0;
    double m_sum = 0;
    std::vector<double> m_waiting;    ///< not counted yet
    std::vector<ValueCount> m_counts; ///< ascending
};

} // namespace vlt::coverage
