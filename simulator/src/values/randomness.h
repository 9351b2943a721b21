// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Numbers that look random and are the same for the same seed, on every machine.
#pragma once

#include <cstdint>
#include <string_view>

namespace veltrix_simulator
{

/// Random numbers for one purpose. Each purpose has its own, so that drawing for one does not change another.
/// The generator is SplitMix64, since the distributions of the standard library differ from one library to
/// the next.
class Random
{
public:
    Random(std::uint64_t seed, std::string_view purpose) : state{seed} { takeIn(purpose); }

    /// The numbers for a part of the purpose, if none was drawn yet: its name is what follows the purpose's.
    Random forPart(std::string_view name) const
    {
        Random part{*this};
        part.takeIn(name);
        return part;
    }

    std::uint64_t bits()
    {
        state += increment;
        return mix(state);
    }

    /// From 0 to less than 1.
    double share() { return static_cast<double>(bits() >> 11) / static_cast<double>(std::uint64_t{1} << 53); }

    /// From 0 to less than the bound; 0 for a bound of 0.
    std::uint64_t below(std::uint64_t bound) { return bound == 0 ? 0 : bits() % bound; }

    bool coin() { return bits() >> 63 != 0; }

private:
    static constexpr std::uint64_t increment{0x9E3779B97F4A7C15};

    static constexpr std::uint64_t mix(std::uint64_t number)
    {
        number = (number ^ (number >> 30)) * 0xBF58476D1CE4E5B9;
        number = (number ^ (number >> 27)) * 0x94D049BB133111EB;
        return number ^ (number >> 31);
    }

    void takeIn(std::string_view name)
    {
        for (const char character : name) {
            state = mix(state + static_cast<unsigned char>(character) + increment);
        }
    }

    std::uint64_t state;
};

} // namespace veltrix_simulator
