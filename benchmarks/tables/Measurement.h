#pragma once

#include <chrono>
#include <cstdint>

namespace vlt::benchmarks {

/// What one timed task found and how long it took.
struct Measurement
{
    double milliseconds = 0; ///< from the start of the task until its answer was known
    std::int64_t rows = 0;   ///< features, or Row elements
    int fields = 0;          ///< attribute fields of the layer; 0 where the task does not look
    double checksum = 0;     ///< equal for two readers that saw the same values in the same order
};

/// Wall clock that starts when it is made.
class Stopwatch
{
public:
    double milliseconds() const
    {
        const std::chrono::duration<double, std::milli> spent = Clock::now() - m_start;
        return spent.count();
    }

private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point m_start = Clock::now();
};

} // namespace vlt::benchmarks
