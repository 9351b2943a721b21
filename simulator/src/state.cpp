// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Everything that the simulated devices and the configuration hold.
#include "state.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <variant>

namespace veltrix_simulator
{
namespace
{

constexpr std::array<std::string_view, 2> unitPrefixes{"blendUnit.", "camera."};
constexpr std::string_view configurationPrefix{"configuration."};
constexpr std::string_view communicationTypeKey{"communicationType"};

/// Where a key leads.
struct UnitPlace
{
    std::size_t target;
    Field field;
};
struct CommunicationTypePlace
{
};
using Place = std::variant<UnitPlace, ConfigurationField, Word, CommunicationTypePlace>;

template <typename Table>
const typename Table::value_type *findRow(const Table &table, std::string_view key)
{
    const auto row =
        std::find_if(table.begin(), table.end(), [&](const auto &each) { return each.key == key; });
    return row == table.end() ? nullptr : &*row;
}

/// The rest of the key when it begins with the prefix.
std::optional<std::string_view> without(std::string_view prefix, std::string_view key)
{
    return key.substr(0, prefix.size()) == prefix ? std::optional{key.substr(prefix.size())} : std::nullopt;
}

std::optional<Place> findPlace(std::string_view key)
{
    for (std::size_t target{0}; target < unitPrefixes.size(); ++target) {
        const auto name = without(unitPrefixes[target], key);
        if (const auto *const row = name ? findRow(unitFields, *name) : nullptr) {
            return UnitPlace{target, row->id};
        }
    }
    if (const auto name = without(configurationPrefix, key)) {
        if (const auto *const row = findRow(configurationFields, *name)) {
            return row->id;
        }
        if (const auto *const row = findRow(configurationWords, *name)) {
            return row->word;
        }
        if (*name == communicationTypeKey) {
            return CommunicationTypePlace{};
        }
    }
    return std::nullopt;
}

Place placeOf(std::string_view key)
{
    if (const std::optional<Place> place = findPlace(key)) {
        return *place;
    }
    throw std::invalid_argument{"no value of the simulator has the key \"" + std::string{key} + '"'};
}

Kind kindOf(const Place &place)
{
    struct
    {
        Kind operator()(const UnitPlace &unit) const { return rowOf(unit.field).kind; }
        Kind operator()(ConfigurationField field) const { return rowOf(field).kind; }
        Kind operator()(Word /*word*/) const { return Kind::Signed32; }
        Kind operator()(CommunicationTypePlace /*place*/) const { return Kind::Text; }
    } const kind;
    return std::visit(kind, place);
}

} // namespace

bool Allowed::accepts(double number, const Words &words) const
{
    if (anything) {
        return true;
    }
    if (listed != nullptr) {
        return std::find(listed, listed + listLength, number) != listed + listLength;
    }
    const double lowest = minimumWord != nullptr ? words.*minimumWord : minimum;
    const double highest = maximumWord != nullptr ? words.*maximumWord : maximum;
    return number >= lowest && number <= highest;
}

void State::reset()
{
    target = 0;
    deviceOpen = false;
    ports = {"SIM1"};
    for (std::size_t unit{0}; unit < units.size(); ++unit) {
        std::transform(unitFields.begin(), unitFields.end(), units[unit].values.begin(),
                       [&](const UnitField &row) { return row.defaults[unit]; });
        units[unit].badPixels = BadPixelMemory{};
    }
    units[1].badPixels.declareFactoryPixels();
    std::transform(configurationFields.begin(), configurationFields.end(), configuration.begin(),
                   [](const ConfigurationFieldRow &row) { return row.defaultValue; });
    communicationType = "UART";
    words = {};
    for (const WordRow &row : configurationWords) {
        words.*row.word = row.defaultValue;
    }
}

void State::set(std::string_view key, const Value &value)
{
    const Place place = placeOf(key);
    const std::optional<Value> converted = convert(value, kindOf(place));
    if (!converted) {
        throw std::invalid_argument{'"' + std::string{key} + "\" takes " +
                                    std::string{describe(kindOf(place))}};
    }
    struct
    {
        State &state;
        const Value &value;
        void operator()(const UnitPlace &unit) const
        {
            state.units[unit.target][unit.field] = toNumber(value);
        }
        void operator()(ConfigurationField field) const { state[field] = toNumber(value); }
        void operator()(Word word) const
        {
            state.words.*word = static_cast<std::int32_t>(std::get<std::int64_t>(value));
        }
        void operator()(CommunicationTypePlace /*place*/) const
        {
            state.communicationType = std::get<std::string>(value);
        }
    } const assign{*this, *converted};
    std::visit(assign, place);
}

Value State::get(std::string_view key) const
{
    const Place place = placeOf(key);
    struct
    {
        const State &state;
        Kind kind;
        Value operator()(const UnitPlace &unit) const
        {
            return toValue(state.units[unit.target][unit.field], kind);
        }
        Value operator()(ConfigurationField field) const
        {
            return toValue(state.configuration[static_cast<std::size_t>(field)], kind);
        }
        Value operator()(Word word) const { return std::int64_t{state.words.*word}; }
        Value operator()(CommunicationTypePlace /*place*/) const { return state.communicationType; }
    } const read{*this, kindOf(place)};
    return std::visit(read, place);
}

std::vector<std::string> State::keys()
{
    std::vector<std::string> keys;
    const auto append = [&](std::string_view prefix, const auto &table) {
        for (const auto &row : table) {
            keys.emplace_back(prefix).append(row.key);
        }
    };
    for (const std::string_view prefix : unitPrefixes) {
        append(prefix, unitFields);
    }
    append(configurationPrefix, configurationFields);
    append(configurationPrefix, configurationWords);
    keys.emplace_back(configurationPrefix).append(communicationTypeKey);
    return keys;
}

std::optional<Kind> State::kindOf(std::string_view key)
{
    const std::optional<Place> place = findPlace(key);
    return place ? std::optional{veltrix_simulator::kindOf(*place)} : std::nullopt;
}

} // namespace veltrix_simulator
