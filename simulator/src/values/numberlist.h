// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A short list of numbers, such as those that a call brings.
#pragma once

#include <array>
#include <cstddef>

namespace veltrix_simulator
{

/// At most as many numbers as a call can bring: those of setWarp, a stream and six coefficients.
class NumberList
{
public:
    static constexpr std::size_t capacity{7};

    /// What does not fit is left out.
    void append(double number)
    {
        if (count < capacity) {
            numbers[count++] = number;
        }
    }

    std::size_t size() const { return count; }
    double operator[](std::size_t place) const { return numbers[place]; }
    const double *begin() const { return numbers.data(); }
    const double *end() const { return begin() + count; }

private:
    // Not zeroed: one is made for each call.
    std::array<double, capacity> numbers;
    std::size_t count{0};
};

} // namespace veltrix_simulator
