#pragma once

#include <ctime>

/// The time of the processor that this program uses from here on. Other programs of a busy machine
/// do not count, as they would on the clock.
class ProcessorTime
{
public:
    double seconds() const { return double(std::clock() - m_start) / CLOCKS_PER_SEC; }

private:
    std::clock_t m_start = std::clock();
};
