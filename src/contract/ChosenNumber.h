#pragma once

namespace vlt::contract {

/// An inclusive range of numbers.
struct Range
{
    double minimum = 0;
    double maximum = 0;

    constexpr bool contains(double number) const { return number >= minimum && number <= maximum; }
};

/// The range of a number that a user chooses, and its default in a first run.
template<typename Number>
struct ChosenNumber
{
    Number minimum;
    Number maximum;
    Number firstRun;

    constexpr operator Range() const
    {
        return {static_cast<double>(minimum), static_cast<double>(maximum)};
    }
};

} // namespace vlt::contract
