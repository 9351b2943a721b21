// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Everything that a scenario settles before the first call.
#pragma once

#include "faults/faultrule.h"
#include "recordings/player.h"
#include "time/life.h"
#include "time/link.h"
#include "units/port.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace veltrix_simulator
{

/// A pixel of a unit's table.
struct PixelPlace
{
    int target{0};
    std::uint32_t column{0};
    std::uint32_t row{0};
};

struct Scenario
{
    std::string name{"default"}; ///< As it was asked for.
    std::uint64_t seed{0};
    std::vector<std::pair<std::string, Value>> values; ///< Keys of the state and what they hold.
    std::vector<Port> ports{{"SIM1"}};
    /// The bad pixels of the units that are listed as having some of their own; the others have the
    /// factory's.
    std::vector<int> unitsWithPixels;
    std::vector<PixelPlace> badPixels;
    Link link;
    std::vector<FaultRule> faults;
    Life life;
    std::string recordingFile; ///< As it is written, seen from the folder of the scenario; empty: none.
    Play play;                 ///< With what is in that file.
    std::string memoryFile;    ///< Where saved parameters are kept; empty: they are not kept.
};

} // namespace veltrix_simulator
