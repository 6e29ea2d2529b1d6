#include "coverage/ValueReducer.h"

#include <algorithm>
#include <cmath>

namespace vlt::coverage {

namespace {

constexpr std::size_t MaxWaiting = 1 << 18;

// Above this number of different values, those that occurred only once are discarded, to bound the
// memory.
constexpr std::size_t MaxCounts = 1 << 22;

} // namespace

void ValueReducer::add(std::span<const double> values)
{
    for (const double value : values) {
        if (std::isfinite(value))
            count(value);
    }
}

void ValueReducer::count(double value)
{
    m_least = m_number == 0 ? value : std::min(m_least, value);
    m_most = m_number == 0 ? value : std::max(m_most, value);
    m_sum += value;
    ++m_number;
    if (!m_keepsCounts)
        return;
    m_waiting.push_back(value);
    if (m_waiting.size() >= MaxWaiting)
        gather();
}

void ValueReducer::gather()
{
    std::sort(m_waiting.begin(), m_waiting.end());
    std::vector<ValueCount> counts;
    auto known = m_counts.begin();
    const auto add = [&](double value, std::uint64_t number) {
        if (!counts.empty() && counts.back().value == value)
            counts.back().pixels += number;
        else
            counts.push_back({value, number});
    };
    for (const double value : m_waiting) {
        for (; known != m_counts.end() && known->value <= value; ++known)
            add(known->value, known->pixels);
        add(value, 1);
    }
    for (; known != m_counts.end(); ++known)
        add(known->value, known->pixels);
    m_waiting.clear();
    if (counts.size() > MaxCounts)
        std::erase_if(counts, [](const auto &one) { return one.pixels == 1; });
    m_counts = std::move(counts);
}

const std::vector<ValueCount> &ValueReducer::counts()
{
    gather();
    return m_counts;
}

double ValueReducer::mostRepresented()
{
    gather();
    const auto most =
        std::max_element(m_counts.begin(), m_counts.end(),
                         [](const auto &a, const auto &b) { return a.pixels < b.pixels; });
    return most == m_counts.end() ? m_least : most->value;
}

std::optional<double> ValueReducer::result()
{
    if (m_number == 0)
        return std::nullopt;
    switch (m_reduction) {
    case Reduction::Minimum:
        return m_least;
    case Reduction::Maximum:
        return m_most;
    case Reduction::Average: // rounding may exceed the range slightly
        return std::clamp(m_sum / static_cast<double>(m_number), m_least, m_most);
    case Reduction::MostRepresented:
        break;
    }
    return mostRepresented();
}

} // namespace vlt::coverage
