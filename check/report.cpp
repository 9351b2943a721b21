// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the check found: its lines, its times and their summary, as text or as JSON.
#include "report.h"

#include <algorithm>
#include <iomanip>
#include <nlohmann/json.hpp>

namespace sdk_check
{

namespace
{

using Milliseconds = std::chrono::duration<double, std::milli>;
using Json = nlohmann::ordered_json;

constexpr std::size_t outcomes{3};

struct OutcomeNames
{
    const char *line; ///< Begins the line of a finding.
    const char *key;  ///< Says it in the JSON document.
};

const OutcomeNames &namesOf(Outcome outcome)
{
    static constexpr OutcomeNames names[outcomes]{
        {"ok     ", "ok"}, {"not ok ", "notOk"}, {"skip   ", "skipped"}};
    return names[static_cast<std::size_t>(outcome)];
}

std::string nameWithUnit(const std::string &operation, const std::string &unit)
{
    return unit.empty() ? operation : operation + " (" + unit + ')';
}

struct Summary
{
    std::string name;
    std::size_t count;
    double median; ///< In milliseconds, as the rest.
    double percentile99;
    double worst;
};

Summary summaryOf(const OperationTimes &calls)
{
    const auto milliseconds = [&](std::size_t percent) {
        return Milliseconds{percentile(calls.times, percent)}.count();
    };
    return {nameWithUnit(calls.operation, calls.unit), calls.times.size(), milliseconds(50), milliseconds(99),
            milliseconds(100)};
}

} // namespace

std::chrono::nanoseconds percentile(std::vector<std::chrono::nanoseconds> times, std::size_t percent)
{
    std::sort(times.begin(), times.end());
    const std::size_t rank{(times.size() * percent + 99) / 100};
    return times[std::max<std::size_t>(rank, 1) - 1];
}

void Report::add(Finding finding)
{
    if (lines != nullptr) {
        *lines << namesOf(finding.outcome).line << nameWithUnit(finding.operation, finding.unit) << ": "
               << finding.text << std::endl;
    }
    findings.push_back(std::move(finding));
}

std::size_t Report::count(Outcome outcome) const
{
    const auto found = std::count_if(findings.begin(), findings.end(),
                                     [&](const Finding &finding) { return finding.outcome == outcome; });
    return static_cast<std::size_t>(found);
}

void Report::note(const std::string &operation, const std::string &unit, std::chrono::nanoseconds time)
{
    auto calls = std::find_if(times.begin(), times.end(), [&](const OperationTimes &known) {
        return known.operation == operation && known.unit == unit;
    });
    if (calls == times.end()) {
        calls = times.insert(calls, {operation, unit, {}});
    }
    calls->times.push_back(time);
}

void Report::writeEnd(std::ostream &out) const
{
    std::vector<Summary> rows;
    std::size_t width{0};
    for (const OperationTimes &calls : times) {
        rows.push_back(summaryOf(calls));
        width = std::max(width, rows.back().name.size());
    }
    const auto column = static_cast<int>(width);
    out << '\n'
        << std::left << std::setw(column) << "time in ms" << std::right << std::setw(8) << "count"
        << std::setw(12) << "median" << std::setw(12) << "99 %" << std::setw(12) << "worst" << '\n'
        << std::fixed << std::setprecision(3);
    for (const Summary &row : rows) {
        out << std::left << std::setw(column) << row.name << std::right << std::setw(8) << row.count
            << std::setw(12) << row.median << std::setw(12) << row.percentile99 << std::setw(12) << row.worst
            << '\n';
    }
    out << '\n'
        << (interrupted ? "Interrupted before the end: " : "") << findings.size()
        << " checks: " << count(Outcome::Holds) << " ok, " << count(Outcome::Fails) << " not ok, "
        << count(Outcome::Skipped) << " skipped" << std::endl;
}

void Report::writeJson(std::ostream &out, const std::string &port, bool write, int rounds) const
{
    Json document{{"port", port},
                  {"write", write},
                  {"repeat", rounds},
                  {"interrupted", interrupted},
                  {"allHold", allHold()},
                  {"counts", Json::object()},
                  {"checks", Json::array()},
                  {"times", Json::array()}};
    for (const Outcome outcome : {Outcome::Holds, Outcome::Fails, Outcome::Skipped}) {
        document["counts"][namesOf(outcome).key] = count(outcome);
    }
    for (const Finding &finding : findings) {
        document["checks"].push_back({{"outcome", namesOf(finding.outcome).key},
                                      {"operation", finding.operation},
                                      {"unit", finding.unit},
                                      {"text", finding.text}});
    }
    for (const OperationTimes &calls : times) {
        const Summary summary = summaryOf(calls);
        document["times"].push_back({{"operation", calls.operation},
                                     {"unit", calls.unit},
                                     {"count", summary.count},
                                     {"medianMs", summary.median},
                                     {"percentile99Ms", summary.percentile99},
                                     {"worstMs", summary.worst}});
    }
    // A port name from the command line need not be UTF-8.
    out << document.dump(2, ' ', false, Json::error_handler_t::replace) << std::endl;
}

} // namespace sdk_check
