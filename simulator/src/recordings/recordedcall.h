// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the lines of a recording say.
#pragma once

#include "operations/missing.h"
#include "operations/operations.h"
#include "units/configurationfields.h"
#include "veltrix_simulator/simulator.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace veltrix_simulator
{

/// The beginning of a run: the first line, and that of each later power cycle.
struct RecordedHeader
{
    std::string origin;             ///< Such as "pilotel 1.0.0" or "the scenario default".
    std::chrono::microseconds time; ///< Since 1970, in UTC.
};

/// A plain word of the configuration with its number.
using RecordedWord = std::pair<const WordRow *, std::int32_t>;

/// Plain words that the program wrote in place.
struct RecordedWrite
{
    std::chrono::microseconds time; ///< Since 1970, in UTC.
    std::vector<RecordedWord> words;
};

/// What a call brought: null, a number, a text or the name of an object. The members of a record stand one
/// behind the other.
using RecordedArgument = std::variant<std::nullptr_t, double, std::string>;

/// One call.
struct RecordedCall
{
    std::chrono::microseconds time{0}; ///< When it began, since 1970, in UTC.
    std::chrono::microseconds took{0};
    const Operation *operation{nullptr};
    /// The unit that was addressed: 0 the Blend Unit, 1 the camera; any other when a library acknowledged it.
    std::int32_t target{0};
    Missing missing{Missing::Nothing};
    std::vector<RecordedArgument> arguments;
    /// The result, if the operation has one, then what was filled in, as Operation::answer lists them. A null
    /// text is empty.
    std::vector<Value> answer;
    bool hasOutputs{false};          ///< What it fills in is in the answer.
    std::string name;                ///< Of the object that it answered, or of the number that it filled in.
    std::vector<RecordedWord> words; ///< With the configuration: its plain words, if they are known.
};

/// Such as "camera"; "unit 2" for one that does not exist.
std::string addressedName(std::int32_t target);

/// Whether the result says that the operation did its work: 1, true or an object; true where there is none or
/// where it is the value that was asked for.
bool succeeded(const RecordedCall &call);

/// The values that a call read, from its answer: without a result that only acknowledges.
std::vector<Value> readingsOf(const Operation &operation, const std::vector<Value> &answer);

/// The call as the journal has it, `setGamma(144179)` and behind it ` -> true`.
std::string callText(const RecordedCall &call);
std::string answerText(const RecordedCall &call);
/// Such as `{gskMinimum=1, gskMaximum=3}`.
std::string wordsText(const std::vector<RecordedWord> &words);

} // namespace veltrix_simulator
