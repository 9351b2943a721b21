// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Plays a recording: each call is answered as it was then.
#pragma once

#include "output/logoutput.h"
#include "recordings/recording.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

namespace veltrix_simulator
{

/// What becomes of a call that the recording does not have.
enum class MissingCalls
{
    Refuse,   ///< Nothing is done; the result and the out-parameters are zero.
    Simulate, ///< It works on the values that the recording has shown so far.
};

/// How a recording is played.
struct Play
{
    std::shared_ptr<const Recording> recording; ///< Null: none is.
    MissingCalls missingCalls{MissingCalls::Refuse};
    bool takesRecordedTime{false};
};

class Player
{
public:
    /// The log outlives the player.
    explicit Player(LogOutput &itsLog) : log{itsLog} {}

    /// Power-on: plays from the beginning. A last line that was cut is told.
    void start(const Play &itsPlay);

    bool isOn() const { return play.recording != nullptr; }
    /// Whether a call that the recording does not have is refused; what answers nothing cannot be.
    bool refuses(const Operation &operation) const;

    /// The next answer to a call on a unit, which writeCallText() wrote; null when the recording has none or
    /// no further one, which is told once for each call.
    const RecordedAnswer *answerTo(const Operation &operation, std::int32_t target,
                                   const std::string &callText);

    /// Lets the time pass that the call took then, if the link takes it.
    void passTime(const RecordedAnswer &answer) const;

private:
    void tellMissing(const Operation &operation, const std::string &name, bool hadSome);
    void tell(const std::string &report);

    LogOutput &log;
    Play play;
    std::vector<std::size_t> played;        ///< How many of each RecordedAnswers were, by their place.
    std::size_t latest{0};                  ///< The line that was played last.
    std::unordered_set<std::string> missed; ///< The names that were told.
};

} // namespace veltrix_simulator
