#pragma once

#include <ctime>

/// Measures the processor time of this program from its construction. Unlike the time of the clock,
/// it does not include other programs of a busy machine.
class ProcessorTime
{
public:
    double seconds() const { return double(std::clock() - m_start) / CLOCKS_PER_SEC; }

private:
    std::clock_t m_start = std::clock();
};
