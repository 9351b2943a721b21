// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// One call as a line of the trace.
#pragma once

#include "calls/objects.h"
#include "calls/parameter.h"
#include "operations/missing.h"
#include "units/allowed.h"
#include "veltrix_simulator/simulator.h"

#include <chrono>
#include <string>
#include <string_view>

namespace veltrix_simulator
{

/// When a call began: the time of day, and a clock that never jumps for what it took.
struct CallTime
{
    std::chrono::system_clock::time_point timeOfDay;
    std::chrono::steady_clock::time_point steady;

    static CallTime now() { return {std::chrono::system_clock::now(), std::chrono::steady_clock::now()}; }
};

/// What a call was made on.
struct CallOrigin
{
    Interface interface;
    std::string_view operation;
    int target; ///< The unit that was addressed: 0 the Blend Unit, 1 the camera.
    Missing missing;
};

/// Appends a JSON string. What is no UTF-8 becomes the replacement character.
void appendJsonText(std::string &line, std::string_view text);

/// Makes the line of one call: an object of JSON, with a line feed. To be called when the call has ended: it
/// settles how long the call took. Numbers that JSON does not have are the strings "nan", "inf" and "-inf".
/// Where words of the configuration are given, they are told as an output of the call.
void writeTraceLine(std::string &line, const CallTime &begun, const CallOrigin &origin,
                    const Objects &objects, Parameters parameters, const ResultPlace &result,
                    const Words *words = nullptr);

/// Makes the line of words that the program has written in place, which are those that differ from before.
void writeWordsLine(std::string &line, const Words &words, const Words &before);

} // namespace veltrix_simulator
