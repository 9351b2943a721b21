// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the check found: its lines, its times and their summary, as text or as JSON.
#pragma once

#include <chrono>
#include <cstddef>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace sdk_check
{

/// In the place of a unit's name where no unit is addressed.
inline const std::string noUnit{};

enum class Outcome
{
    Holds,
    Fails,
    Skipped, ///< Not done, or of no use to the program, as the text says; neither good nor bad.
};

/// One line of the report. All texts are printable ASCII, apart from what the command line brought.
struct Finding
{
    Outcome outcome;
    std::string operation; ///< Such as "getGamma", "getRoiX1(2)", "configureZoom factor".
    std::string unit;      ///< "camera" or "Blend Unit"; empty where no unit is addressed.
    std::string text;      ///< What was answered, or what is wrong with it.
};

/// How long the calls of one operation on one unit took.
struct OperationTimes
{
    std::string operation;
    std::string unit;
    std::vector<std::chrono::nanoseconds> times;
};

/// Collects findings and times. Findings are written as they come when the report has lines; a device that
/// hangs is then named by the line that is missing.
class Report
{
public:
    /// Null: no lines. The stream outlives the report.
    explicit Report(std::ostream *itsLines) : lines{itsLines} {}

    void add(Finding finding);
    void setInterrupted() { interrupted = true; }

    /// Calls the function and notes how long it took.
    template <typename Function>
    decltype(auto) timed(const std::string &operation, const std::string &unit, const Function &function)
    {
        const Stopwatch stopwatch{*this, operation, unit};
        return function();
    }

    /// Whether every check was made and none failed.
    bool allHold() const { return !interrupted && count(Outcome::Fails) == 0; }
    std::size_t count(Outcome outcome) const;
    const std::vector<Finding> &allFindings() const { return findings; }

    /// The table of times, then the summary.
    void writeEnd(std::ostream &out) const;
    /// One document; its keys stand in docs/sdk-check.md.
    void writeJson(std::ostream &out, const std::string &port, bool write, int rounds) const;

private:
    /// Notes the time from its construction to its destruction.
    class Stopwatch
    {
    public:
        Stopwatch(Report &itsReport, const std::string &itsOperation, const std::string &itsUnit)
            : report{itsReport}, operation{itsOperation}, unit{itsUnit}
        {}
        ~Stopwatch() { report.note(operation, unit, std::chrono::steady_clock::now() - start); }
        Stopwatch(const Stopwatch &) = delete;
        Stopwatch &operator=(const Stopwatch &) = delete;

    private:
        Report &report;
        const std::string &operation;
        const std::string &unit;
        const std::chrono::steady_clock::time_point start{std::chrono::steady_clock::now()};
    };

    void note(const std::string &operation, const std::string &unit, std::chrono::nanoseconds time);

    std::ostream *lines;
    std::vector<Finding> findings;
    std::vector<OperationTimes> times; ///< In the order of the first calls.
    bool interrupted{false};
};

/// The smallest of the times that so many percent of all do not exceed (nearest rank); there is at least one.
std::chrono::nanoseconds percentile(std::vector<std::chrono::nanoseconds> times, std::size_t percent);

} // namespace sdk_check
