// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The file that saved parameters are kept in.
#include "units/memoryfile.h"

#include "output/wording.h"
#include "units/allowed.h"
#include "units/unitnames.h"
#include "values/jsonvalue.h"
#include "values/value.h"
#include "veltrix_simulator/simulator.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

namespace veltrix_simulator
{
namespace
{

using nlohmann::json;
using nlohmann::ordered_json;
using SavedValues = std::array<std::optional<double>, unitFields.size()>;

constexpr int memoryFormat{1};
constexpr std::string_view formatKey{"format"};
constexpr std::array<std::pair<std::string_view, Saved>, 2> setKeys{
    {{"user", Saved::User}, {"expert", Saved::Expert}}};
// Objects inside each other: the file, a unit, a set.
constexpr int deepestNesting{3};

constexpr std::size_t placeOf(const UnitField &row)
{
    return static_cast<std::size_t>(row.id);
}

ordered_json formatSet(const SavedValues &values, Saved set)
{
    ordered_json object;
    for (const UnitField &row : unitFields) {
        if (const std::optional<double> number = values[placeOf(row)]; row.saved == set && number) {
            std::visit([&](const auto &value) { object[std::string{row.key}] = value; },
                       toValue(*number, row.kind));
        }
    }
    return object;
}

/// What is wrong with a file, and with which part of it.
struct Damage
{
    std::string reason;
};

[[noreturn]] void refuse(std::string reason)
{
    throw Damage{std::move(reason)};
}

const json &requireObject(const json &value, const std::string &name)
{
    if (!value.is_object()) {
        refuse(name + " is no object");
    }
    return value;
}

double parseNumber(const json &value, const UnitField &row, const std::string &name)
{
    const std::optional<Value> given = valueOf(value);
    const std::optional<Value> converted = given ? convert(*given, row.kind) : std::nullopt;
    if (!converted) {
        refuse(name + " is not " + std::string{describe(row.kind)});
    }
    const double number{toNumber(*converted)};
    if (!canBeKept(row, number)) {
        refuse(name + " is none of the values that the unit accepts");
    }
    return number;
}

const UnitField *findRow(std::string_view key, Saved set)
{
    const auto row = std::find_if(unitFields.begin(), unitFields.end(), [&](const UnitField &each) {
        return each.saved == set && each.key == key;
    });
    return row == unitFields.end() ? nullptr : &*row;
}

void parseSet(const json &object, Saved set, const std::string &name, SavedValues &values)
{
    for (const auto &item : requireObject(object, inQuotes(name)).items()) {
        const UnitField *const row = findRow(item.key(), set);
        if (row == nullptr) {
            refuse(inQuotes(name) + " has no value " + inQuotes(item.key()));
        }
        values[placeOf(*row)] = parseNumber(item.value(), *row, inQuotes(name + '.' + item.key()));
    }
    for (const UnitField &row : unitFields) {
        if (row.saved == set && !values[placeOf(row)]) {
            refuse(inQuotes(name + '.' + std::string{row.key}) + " is missing");
        }
    }
}

void parseUnit(const json &object, const std::string &name, SavedValues &values)
{
    for (const auto &item : requireObject(object, inQuotes(name)).items()) {
        const auto set = std::find_if(setKeys.begin(), setKeys.end(),
                                      [&](const auto &each) { return each.first == item.key(); });
        if (set == setKeys.end()) {
            refuse(inQuotes(name) + " has no set " + inQuotes(item.key()));
        }
        parseSet(item.value(), set->second, name + '.' + item.key(), values);
    }
}

MemoryImage parseFile(const json &file)
{
    requireObject(file, "it");
    const auto format = file.find(formatKey);
    if (format == file.end() || *format != memoryFormat) {
        refuse("its \"format\" is not " + std::to_string(memoryFormat));
    }
    MemoryImage image;
    for (const auto &item : file.items()) {
        if (const UnitName *const unit = findUnit(item.key())) {
            parseUnit(item.value(), item.key(), image.units[static_cast<std::size_t>(unit->id)]);
        } else if (item.key() != formatKey) {
            refuse("it has no place for " + inQuotes(item.key()));
        }
    }
    return image;
}

/// Where a byte is, counted from 1.
std::string describePlace(std::string_view bytes, std::size_t byte)
{
    const std::string_view before = bytes.substr(0, byte - 1);
    return "line " + std::to_string(1 + std::count(before.begin(), before.end(), '\n')) + ", byte " +
           std::to_string(byte);
}

} // namespace

bool canBeKept(const UnitField &row, double number)
{
    if (!convert(toValue(number, row.kind), row.kind)) {
        return false;
    }
    const bool isConfigured{row.allowed.minimumWord != nullptr};
    return isConfigured || row.allowed.accepts(number, {});
}

std::string formatMemory(const MemoryImage &image)
{
    ordered_json file{{formatKey, memoryFormat}};
    for (const UnitName &unit : unitNames) {
        for (const auto &[key, set] : setKeys) {
            ordered_json values = formatSet(image.units[static_cast<std::size_t>(unit.id)], set);
            if (!values.empty()) {
                file[std::string{unit.name}][std::string{key}] = std::move(values);
            }
        }
    }
    return file.dump(2) + '\n';
}

std::variant<MemoryImage, std::string> parseMemory(std::string_view bytes)
{
    if (bytes.size() > largestMemoryFile) {
        return "it has more than " + std::to_string(largestMemoryFile) + " bytes";
    }
    bool isTooDeep{false};
    const auto keepShallow = [&](int depth, json::parse_event_t event, const json & /*parsed*/) {
        const bool begins{event == json::parse_event_t::object_start ||
                          event == json::parse_event_t::array_start};
        isTooDeep = isTooDeep || (begins && depth >= deepestNesting);
        return depth < deepestNesting || !begins;
    };
    try {
        const json file = json::parse(bytes, keepShallow);
        if (isTooDeep) {
            return "it is nested too deep";
        }
        return parseFile(file);
    } catch (const Damage &damage) {
        return damage.reason;
    } catch (const json::parse_error &error) {
        return describePlace(bytes, error.byte) + ": what stands there is no JSON";
    } catch (const json::exception &) {
        return "one of its numbers is too large";
    }
}

} // namespace veltrix_simulator
