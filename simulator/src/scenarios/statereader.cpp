// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Reads what a scenario file says of the units and the configuration.
#include "scenarios/statereader.h"

#include "output/wording.h"
#include "units/state.h"
#include "units/unitnames.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_simulator/simulator.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace veltrix_simulator
{
namespace
{

/// The keys that can follow a path, each up to its next dot; empty when the path leads nowhere.
std::vector<std::string> keysBehind(const std::string &path)
{
    std::vector<std::string> keys;
    for (const std::string &key : State::keys()) {
        if (key.compare(0, path.size() + 1, path + '.') != 0) {
            continue;
        }
        const std::string rest = key.substr(path.size() + 1);
        const std::string next = rest.substr(0, rest.find('.'));
        if (!isOneOf(next, keys)) {
            keys.push_back(next);
        }
    }
    return keys;
}

void readValue(const Entry &entry, Kind kind, Scenario &scenario)
{
    const std::optional<Value> given = entry.value();
    std::optional<Value> value = given ? convert(*given, kind) : std::nullopt;
    if (!value) {
        entry.fail("takes " + std::string{describe(kind)});
    }
    scenario.values.emplace_back(entry.keyPath(), *std::move(value));
}

/// The values of a table and of the tables in it, whose keys are those of the state.
void readValues(const Entry &table, const std::vector<std::string> &known, Scenario &scenario)
{
    table.refuseUnknown(known);
    for (const Entry &entry : table.entries()) {
        if (entry.lastKey() == badPixelsKey) {
            continue;
        }
        if (const std::optional<Kind> kind = State::kindAt(entry.keyPath())) {
            readValue(entry, *kind, scenario);
        } else {
            readValues(entry, keysBehind(entry.keyPath()), scenario);
        }
    }
}

void readPixel(const Entry &entry, std::int32_t target, Scenario &scenario)
{
    const std::vector<Entry> numbers = entry.elements();
    if (numbers.size() != 2) {
        entry.fail("takes a list of a column and a row for each pixel");
    }
    const std::int64_t column{numbers[0].integer(0, veltrix_sdk::sensorColumns - 1)};
    const std::int64_t row{numbers[1].integer(0, veltrix_sdk::sensorRows - 1)};
    scenario.badPixels.push_back(
        {target, static_cast<std::uint32_t>(column), static_cast<std::uint32_t>(row)});
}

} // namespace

void readConfiguration(const Entry &table, Scenario &scenario)
{
    readValues(table, keysBehind(table.keyPath()), scenario);
}

void readUnit(const Entry &table, std::int32_t target, Scenario &scenario)
{
    std::vector<std::string> known = keysBehind(table.keyPath());
    known.emplace_back(badPixelsKey);
    readValues(table, known, scenario);
    if (const std::optional<Entry> pixels = table.find(badPixelsKey)) {
        scenario.unitsWithPixels.push_back(target);
        for (const Entry &pixel : pixels->elements()) {
            readPixel(pixel, target, scenario);
        }
    }
}

Kind kindOfNumber(const Entry &entry)
{
    const std::string key = entry.text();
    const std::string ofConfiguration = std::string{configurationName} + '.';
    std::vector<std::string> known;
    for (std::string &each : State::keys()) {
        const std::optional<Kind> kind = State::kindAt(each);
        if (each.compare(0, ofConfiguration.size(), ofConfiguration) != 0 && kind != Kind::Boolean) {
            known.push_back(std::move(each));
        }
    }
    if (!isOneOf(key, known)) {
        entry.fail("knows no number of a unit " + inQuotes(key) + suggestion(key, known));
    }
    return *State::kindAt(key);
}

} // namespace veltrix_simulator
