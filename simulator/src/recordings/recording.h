// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A recording as it is played: what was answered to which call, one after the other.
#pragma once

#include "recordings/recordedcall.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <istream>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

namespace veltrix_simulator
{

/// Bytes that a recording may have which is played; nothing but the memory of the machine limits what is only
/// read line by line.
inline constexpr std::size_t largestRecording{std::size_t{512} << 20};

/// What a call was answered.
struct RecordedAnswer
{
    std::size_t line; ///< Of the recording, counted from 1.
    std::chrono::microseconds took;
    bool succeeded;
    bool hasOutputs;
    std::vector<Value> answer; ///< As RecordedCall has it.
    std::vector<RecordedWord> words;
};

/// The answers to all calls with the same arguments, on the same unit, in their order.
struct RecordedAnswers
{
    std::size_t place{0}; ///< Among those of the recording.
    const Operation *operation{nullptr};
    std::vector<RecordedAnswer> list;
};

/// What a recording has of a call: `camera.setGamma(144179)`, `openDevice("COM3")`.
std::string recordedName(const Operation &operation, std::int32_t target, const std::string &callText);

/// Calls that did not reach what they were made on, and log records, are left out: nobody answers them.
struct Recording
{
    std::string file;
    std::unordered_map<std::string, RecordedAnswers> answers;       ///< By their recordedName().
    std::vector<std::pair<std::size_t, const std::string *>> order; ///< The line and the name of each call.
    std::vector<std::string> ports;                                 ///< That were opened, or refused to open.
    std::size_t lines{0};
    std::optional<std::string> cut; ///< One line when the last line was cut.
};

/// Reads all lines. What is wrong with them is one line that begins with the name of the file.
std::variant<Recording, std::string> readRecording(std::istream &input, const std::string &fileName);
/// Reads a whole file. What is wrong with it is one line that begins with its name. File names are UTF-8.
std::variant<Recording, std::string> loadRecording(const std::string &fileName);

} // namespace veltrix_simulator
