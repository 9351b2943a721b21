// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Reads a recording line by line: a trace of the simulator, or of a program that recorded its calls.
#pragma once

#include "recordings/recordedcall.h"

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace veltrix_simulator
{

/// Bytes that a line of a recording may have.
inline constexpr std::size_t longestRecordedLine{std::size_t{1} << 20};

/// The first thing in a recording that is wrong.
struct RecordingError
{
    std::string file;
    std::size_t line; ///< Counted from 1.
    std::string text; ///< What is wrong and what helps, without a full stop.

    /// One line: `session.trace:12: there is no operation "setGama"; ...`
    std::string message() const;
};

using RecordedLine = std::variant<RecordedHeader, RecordedCall, RecordedWrite>;

/// Takes any bytes, and holds no more of them than one line. A last line that was cut, as by a crash, is left
/// out.
class RecordingReader
{
public:
    /// The input outlives the reader. The name of the file is for messages.
    RecordingReader(std::istream &itsInput, std::string itsFileName);

    /// What the next line says; nothing at the end. Throws a RecordingError.
    std::optional<RecordedLine> next();
    /// The line that next() came to, counted from 1.
    std::size_t line() const { return number; }
    /// At the end: one line that says that the last line was cut; nothing when it was not.
    std::optional<std::string> cut() const;

private:
    /// Puts the next line into `text`, without its line feed; false at the end.
    bool read();
    RecordedLine parse();
    [[noreturn]] void fail(const std::string &reason) const;

    std::istream &input;
    std::string fileName;
    std::string buffer; ///< What was read of the input and is not used yet.
    std::size_t used{0};
    std::string text;
    bool isEnded{false}; ///< The line has its line feed.
    bool isCut{false};
    std::size_t number{0};
};

} // namespace veltrix_simulator
