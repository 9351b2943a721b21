// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The settings by their names: list, get, set.
#include "changes.h"
#include "commands.h"
#include "escaped.h"
#include "fieldtext.h"
#include "messages.h"
#include "names.h"
#include "progress.h"
#include "values.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <iostream>
#include <map>
#include <nlohmann/json.hpp>
#include <utility>

using device_settings::Field;
using Json = nlohmann::ordered_json;

namespace ctl
{

namespace
{

/// What a name holds now.
struct Held
{
    Named named;
    double number;
    bool isKnown; ///< False when the device did not answer; the number is then of no use.
};

/// Reads each setting once, whichever of its numbers are asked for. What a unit does not answer as it should
/// is told on standard error; its number is kept where it is one.
std::vector<Held> readAll(Session &session, const std::vector<Named> &names, bool &allWell)
{
    std::map<std::pair<Unit, const Setting *>, Reading> readings;
    std::vector<Held> held;
    Progress progress{"Reading", names.size()};
    for (const Named &named : names) {
        heedInterruption();
        progress.step();
        if (named.configuration != nullptr) {
            held.push_back({named, named.configuration->read(session.configuration()), true});
            continue;
        }
        const auto key = std::make_pair(named.place.unit, named.place.setting);
        auto reading = readings.find(key);
        if (reading == readings.end()) {
            reading = readings.emplace(key, session.read(named.place.unit, *named.place.setting)).first;
            if (!reading->second.fault.empty()) {
                progress.clear();
                tell(reading->second.fault);
                allWell = false;
            }
        }
        held.push_back({named, reading->second.values[named.place.field], reading->second.fault.empty()});
    }
    session.confirm();
    return held;
}

using Row = std::array<std::string, 6>;

void writeTable(const std::vector<Row> &rows)
{
    std::array<std::size_t, std::tuple_size_v<Row>> widths{};
    for (const Row &row : rows) {
        for (std::size_t column{0}; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], row[column].size());
        }
    }
    for (const Row &row : rows) {
        std::string line;
        for (std::size_t column{0}; column + 1 < row.size(); ++column) {
            line += row[column] + std::string(widths[column] + 2 - row[column].size(), ' ');
        }
        std::cout << line << row.back() << '\n';
    }
    std::cout << std::flush;
}

/// A whole number without a point.
Json jsonOf(double number)
{
    return device_settings::isWhole(number) ? Json(static_cast<std::int64_t>(number)) : Json(number);
}

Json jsonOf(const device_settings::Values &numbers)
{
    Json list = Json::array();
    for (const double number : numbers) {
        list.push_back(jsonOf(number));
    }
    return list;
}

Json jsonOf(const Held &held)
{
    const Field field{fieldOf(held.named)};
    const bool isUnits{held.named.configuration == nullptr};
    Json json{{"name", held.named.key},
              {"value", nullptr},
              {"words", nullptr},
              {"kind", device_settings::kindName(field.kind)},
              {"minimum", jsonOf(field.allowed.minimum)},
              {"maximum", jsonOf(field.allowed.maximum)},
              {"only", jsonOf(field.allowed.only)},
              {"names", field.words},
              {"quantity", field.quantity},
              {"canBeSet", isUnits && canBeSet(held.named.place)},
              {"meaning", field.meaning}};
    if (held.isKnown && std::isfinite(held.number)) {
        json["value"] =
            field.kind == device_settings::Kind::Boolean ? Json(held.number != 0) : jsonOf(held.number);
        const std::string words{device_settings::inWords(field, held.number)};
        if (!words.empty()) {
            json["words"] = words;
        }
    }
    return json;
}

} // namespace

ExitStatus listSettings(Session &session, const std::vector<std::string> &names, bool json)
{
    bool allWell{true};
    const std::vector<Held> all{readAll(session, namesFor(session, names), allWell)};
    if (json) {
        Json document{{"port", sdk_check::escaped(session.port())}, {"settings", Json::array()}};
        for (const Held &held : all) {
            document["settings"].push_back(jsonOf(held));
        }
        std::cout << document.dump(2, ' ', false, Json::error_handler_t::replace) << std::endl;
        return allWell ? done : refused;
    }
    std::vector<Row> rows{{"NAME", "VALUE", "UNIT", "KIND", "MEANING", "CAN BE"}};
    for (const Held &held : all) {
        const Field field{fieldOf(held.named)};
        const bool isSet{held.named.configuration == nullptr && canBeSet(held.named.place)};
        rows.push_back({held.named.key,
                        held.isKnown ? device_settings::numberInWords(field, held.number) : "?",
                        field.quantity, device_settings::kindName(field.kind), field.meaning,
                        isSet ? device_settings::rangeText(field) : "only read"});
    }
    writeTable(rows);
    return allWell ? done : refused;
}

ExitStatus getSettings(Session &session, const std::vector<std::string> &names)
{
    bool allWell{true};
    for (const Held &held : readAll(session, namesFor(session, names), allWell)) {
        if (held.isKnown) {
            writeAssignment(std::cout, held.named.key, fieldOf(held.named), held.number);
        }
    }
    std::cout << std::flush;
    return allWell ? done : refused;
}

namespace
{

Change changeOf(Session &session, const std::string &assignment)
{
    const std::size_t sign{assignment.find('=')};
    if (sign == std::string::npos || sign == 0) {
        throw Failure{wrongUse, '"' + sdk_check::escaped(assignment) +
                                    "\" is no NAME=VALUE, such as camera.gamma=2.2."};
    }
    const std::string name{assignment.substr(0, sign)};
    const std::string text{assignment.substr(sign + 1)};
    const Place place{placeToSet(session, name)};
    // It has thrown unless there is such a setting. NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage)
    const Field &field = place.setting->fields[place.field];
    const std::optional<double> number{device_settings::numberOf(field, text)};
    if (!number || !mayBeSent(field, *number)) {
        throw Failure{wrongUse, name + " cannot be \"" + sdk_check::escaped(text) +
                                    "\": " + device_settings::rangeText(field) + wholeNumbers(field)};
    }
    return {place, *number};
}

} // namespace

ExitStatus setSettings(Session &session, const std::vector<std::string> &assignments)
{
    std::vector<Change> changes;
    for (const std::string &assignment : assignments) {
        changes.push_back(changeOf(session, assignment));
        const Place &place = changes.back().place;
        const auto same = [&](const Change &each) {
            return each.place.unit == place.unit && each.place.setting == place.setting &&
                   each.place.field == place.field;
        };
        if (std::count_if(changes.begin(), changes.end(), same) > 1) {
            throw Failure{wrongUse, device_settings::keyOf(place) + " is named twice."};
        }
    }
    Changes all{session, changes, Unchanged::Sent};
    all.look();
    all.make();
    for (const Change &change : changes) {
        writeAssignment(std::cout, device_settings::keyOf(change.place),
                        change.place.setting->fields[change.place.field], change.number);
    }
    std::cout << std::flush;
    return done;
}

} // namespace ctl
