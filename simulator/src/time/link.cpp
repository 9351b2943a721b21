// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The time that the link takes.
#include "time/link.h"

#include <algorithm>
#include <thread>

namespace veltrix_simulator
{
namespace
{

using std::chrono::microseconds;

/// Start bit, eight bits, stop bit.
constexpr std::int64_t bitsPerByte{10};
constexpr std::int64_t microsecondsPerSecond{1'000'000};
/// Bits per second in the place of a rate that is 0 or below.
constexpr std::int32_t slowRate{9600};

microseconds transmission(std::uint32_t bytes, std::int32_t baudRate)
{
    const std::int64_t rate{baudRate > 0 ? baudRate : slowRate};
    return microseconds{std::int64_t{bytes} * bitsPerByte * microsecondsPerSecond / rate};
}

} // namespace

microseconds bounded(microseconds duration)
{
    return std::clamp(duration, microseconds{0}, longestCall);
}

void pause(microseconds duration)
{
    if (duration.count() > 0) {
        std::this_thread::sleep_for(bounded(duration));
    }
}

microseconds LinkTime::next(std::int32_t baudRate)
{
    microseconds time{0};
    switch (link.kind) {
    case Link::Kind::None:
    case Link::Kind::Recorded:
        return time;
    case Link::Kind::Fixed:
        time = bounded(link.perCall);
        break;
    case Link::Kind::Serial:
        time = bounded(transmission(link.bytesPerCommand, link.baudRate != 0 ? link.baudRate : baudRate)) +
               bounded(link.thinkTime);
        break;
    }
    const auto most = static_cast<std::uint64_t>(bounded(link.jitter).count());
    return bounded(time + microseconds{static_cast<std::int64_t>(jitter.below(most + 1))});
}

} // namespace veltrix_simulator
