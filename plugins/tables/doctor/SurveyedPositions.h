#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace vlt::driver {

/// A position as it stands in the table, in the unit of its system. It need not lie on the globe.
struct SurveyedPosition
{
    double x = 0;
    double y = 0;
    int64_t row = 0;
    std::size_t idHash = 0; ///< of the site's id; 0 for none
};

/// The positions of a table in the order of its rows: of each site one, of each link two.
class SurveyedPositions
{
public:
    /// Further positions are not kept.
    static constexpr std::size_t Maximum = 1'000'000;

    /// @param id  of the site; empty if it has none
    void add(int64_t row, double x, double y, std::string_view id = {})
    {
        if (m_all.size() < Maximum)
            m_all.push_back({x, y, row, id.empty() ? 0 : std::hash<std::string_view>()(id)});
    }

    const std::vector<SurveyedPosition> &all() const { return m_all; }

private:
    std::vector<SurveyedPosition> m_all;
};

} // namespace vlt::driver
