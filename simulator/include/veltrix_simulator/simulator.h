// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulated SDK's own interface for tests and tools: journal, state and faults.
#pragma once

#include "veltrix_simulator/export.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace veltrix_simulator
{

/// One value of the state, of an argument or of an answer.
using Value = std::variant<bool, std::int64_t, double, std::string>;

/// The object of the contract that a call was made on.
enum class Interface
{
    Root,
    Configuration,
    Manager,
    Device,
    Log,
};

/// One call of the contract, as the journal keeps it.
struct Call
{
    Interface interface;
    std::string operation; ///< Name of the operation, such as "setGamma".
    int target;            ///< Unit that was addressed when the call came: 0 the Blend Unit, 1 the camera.
    /// The whole call as one line: `setGamma(144179) -> true`, `getVideoMode() -> true {mode=2}`,
    /// `closeDevice(device)`, `openDevice("SIM1") -> null`, a log record as `log(2, "text")`. A call of a
    /// device that is not open begins with `NOT OPEN: `, one of a manager that is not held with
    /// `NOT HELD: `.
    std::string text;
};

/// Makes an operation fail or answer something else.
struct Fault
{
    std::string operation; ///< Name of the operation; empty: every device operation.
    std::size_t from{1};   ///< First call that is hit, counted from when the fault is added; 1 is the next.
    std::size_t times{0};  ///< How many calls are hit; 0: all from then on.
    /// The answer: the result, if the operation has one, then the fields of its out-parameters or of its
    /// record in order. Without it the operation refuses: it does nothing and its result and
    /// out-parameters are zero.
    std::optional<std::vector<Value>> answer{};
    /// The answer is the result alone, and the out-parameters stay as the caller left them.
    bool leavesOutputs{false};
};

/// The simulated SDK behind the contract. There is one in a process, as there is one VeltrixSdk.
class VELTRIX_SIMULATOR_EXPORT Simulator
{
public:
    /// The simulator of this process.
    static Simulator &instance();

    Simulator(const Simulator &) = delete;
    Simulator &operator=(const Simulator &) = delete;

    /// Power-on state: default state and configuration, nothing open, no faults, an empty journal.
    void reset();
    /// Power-on state of a scenario, as if the process had started on it: the name of one that the simulator
    /// brings along, or the path of a file. Throws std::invalid_argument with one line that says what is
    /// wrong and where; a file that is wrong changes nothing, one whose memory file is damaged leaves the
    /// default scenario.
    void loadScenario(const std::string &nameOrPath);

    /// Every call since the last clearJournal() or reset(), in order; of more than 200000 calls the latest.
    const std::vector<Call> &journal() const;
    void clearJournal();
    /// Turns the journal on (the state at start) or off.
    void setJournalEnabled(bool enabled);
    /// How many operations were called on a device that was not open, or on a manager that was not fetched or
    /// was released already, since reset().
    std::size_t callsWhileNotOpen() const;
    /// Whether a device is open.
    bool isDeviceOpen() const;

    /// Sets one value of the state or the configuration without a range check, such as "camera.gamma",
    /// "blendUnit.videoMode", "configuration.expertMode", "configuration.gskMinimum".
    /// Throws std::invalid_argument, naming the key, when there is no such key or its type cannot hold
    /// the value.
    void set(std::string_view key, const Value &value);
    /// Reads one value; throws as set() does.
    Value get(std::string_view key) const;
    /// All keys that set() and get() know.
    std::vector<std::string> keys() const;

    /// The ports that can be opened beside the host's; "SIM1" at start.
    void setPorts(std::vector<std::string> ports);

    /// Adds a fault; the last one added wins. Throws std::invalid_argument when there is no such
    /// operation or the answer does not fit it.
    void addFault(Fault fault);
    /// Removes all faults, those of the scenario among them.
    void clearFaults();
    /// Where the faults of the scenario that have not happened yet stand in it, such as "flaky.toml:12".
    std::vector<std::string> unfiredFaults() const;

private:
    Simulator();
    ~Simulator();
    class Impl;
    Impl *impl;
};

} // namespace veltrix_simulator
