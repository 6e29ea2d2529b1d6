#pragma once

#include <chrono>
#include <cstdint>

namespace vlt::benchmarks {

/// Results of one timed task.
struct Measurement
{
    double milliseconds = 0; ///< from the start of the task to its result
    std::int64_t rows = 0;   ///< features, or Row elements
    int fields = 0;          ///< attribute fields of the layer; 0 if the task does not count them
    double checksum = 0;     ///< equal for two readers that found the same values in the same order
};

/// Wall clock that starts when the object is created.
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
