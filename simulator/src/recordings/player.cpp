// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Plays a recording: each call is answered as it was then.
#include "recordings/player.h"

#include "output/process.h"
#include "output/wording.h"
#include "time/link.h"
#include "veltrix_sdk/logger.h"

#include <algorithm>

namespace veltrix_simulator
{
namespace
{

/// Bytes of a call that a message shows.
constexpr std::size_t longestName{200};
/// A program that asks for something else each time must not fill the disk.
constexpr std::size_t mostReports{1000};

} // namespace

void Player::start(const Play &itsPlay)
{
    play = itsPlay;
    latest = 0;
    missed.clear();
    played.assign(isOn() ? play.recording->answers.size() : 0, 0);
    if (isOn() && play.recording->cut) {
        tell(*play.recording->cut);
    }
}

const RecordedAnswer *Player::answerTo(const Operation &operation, std::int32_t target,
                                       const std::string &callText)
{
    const std::string name{recordedName(operation, target, callText)};
    const auto found = play.recording->answers.find(name);
    const bool isKnown{found != play.recording->answers.end()};
    if (isKnown && played[found->second.place] < found->second.list.size()) {
        const RecordedAnswer &answer = found->second.list[played[found->second.place]++];
        latest = answer.line;
        return &answer;
    }
    // Each program asks for the library itself as often as it likes.
    if (operation.id != OperationId::get_instance) {
        tellMissing(operation, name, isKnown);
    }
    return nullptr;
}

bool Player::refuses(const Operation &operation) const
{
    return play.missingCalls == MissingCalls::Refuse && operation.result.shape != Passed::Shape::Nothing &&
           operation.id != OperationId::get_instance;
}

void Player::passTime(const RecordedAnswer &answer) const
{
    if (play.takesRecordedTime) {
        pause(answer.took);
    }
}

void Player::tellMissing(const Operation &operation, const std::string &name, bool hadSome)
{
    if (missed.size() > mostReports || !missed.insert(name).second) {
        return;
    }
    const auto &order = play.recording->order;
    const auto instead =
        std::upper_bound(order.begin(), order.end(), latest,
                         [](std::size_t line, const auto &each) { return line < each.first; });
    const bool isAtEnd{instead == order.end()};
    const std::string place{
        play.recording->file + ':' +
        std::to_string(isAtEnd ? std::max<std::size_t>(play.recording->lines, 1) : instead->first)};
    if (missed.size() > mostReports) {
        tell(place + ": more than " + std::to_string(mostReports) +
             " different calls are missing; no further ones are told");
        return;
    }
    std::string next{" and ends here"};
    if (!isAtEnd) {
        next = " here, but " + oneLine(*instead->second, longestName);
    }
    tell(place + ": the recording has no " + (hadSome ? "further " : "") + oneLine(name, longestName) + next +
         (refuses(operation) ? "; the call is refused" : "; the call is simulated"));
}

void Player::tell(const std::string &report)
{
    log.write(veltrix_sdk::severity_warning, report);
    writeToStandardError("veltrix.sdk: " + report + '\n');
}

} // namespace veltrix_simulator
