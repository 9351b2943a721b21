// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Everything that the simulated devices and the configuration hold.
#include "units/state.h"

#include "units/allowed.h"
#include "units/unitnames.h"
#include "veltrix_sdk/numbers.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <variant>

namespace veltrix_simulator
{
namespace
{

constexpr std::string_view communicationTypeKey{"communicationType"};

/// The configuration's only text.
struct CommunicationTypePlace
{
};
/// Where the value of a key is kept.
using Place = std::variant<UnitPlace, ConfigurationField, Word, CommunicationTypePlace>;

template <typename Table>
auto findRow(const Table &table, std::string_view key) -> decltype(&*std::begin(table))
{
    const auto row =
        std::find_if(std::begin(table), std::end(table), [&](const auto &each) { return each.key == key; });
    return row == std::end(table) ? nullptr : &*row;
}

/// The rest of the key when it begins with the name and a dot.
std::optional<std::string_view> without(std::string_view name, std::string_view key)
{
    const bool begins{key.size() > name.size() && key.substr(0, name.size()) == name &&
                      key[name.size()] == '.'};
    return begins ? std::optional{key.substr(name.size() + 1)} : std::nullopt;
}

std::optional<Place> findPlace(std::string_view key)
{
    for (const UnitName &unit : unitNames) {
        const auto name = without(unit.name, key);
        if (const auto *const row = name ? findRow(unitFields, *name) : nullptr) {
            return UnitPlace{static_cast<std::size_t>(unit.id), row->id};
        }
    }
    if (const auto name = without(configurationName, key)) {
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

Kind kindIn(const Place &place)
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

void State::reset()
{
    target = veltrix_sdk::targetBlendUnit;
    managerHeld = false;
    deviceOpen = false;
    silent = false;
    cableOut = false;
    storedBy = StoredBy::Program;
    beyond = {};
    storesAreLost = false;
    lost.clear();
    baudRateIsChosen = false;
    ports = {{"SIM1"}};
    for (std::size_t unit{0}; unit < units.size(); ++unit) {
        std::transform(unitFields.begin(), unitFields.end(), units[unit].values.begin(),
                       [&](const UnitField &row) { return row.defaults[unit]; });
        units[unit].badPixels = BadPixelMemory{};
    }
    units[veltrix_sdk::targetCamera].badPixels.declareFactoryPixels();
    std::transform(configurationFields.begin(), configurationFields.end(), configuration.begin(),
                   [](const ConfigurationFieldRow &row) { return row.defaultValue; });
    communicationType = veltrix_sdk::uartCommunication;
    words = {};
    for (const WordRow &row : configurationWords) {
        words.*row.word = row.defaultValue;
    }
}

void State::set(std::string_view key, const Value &value)
{
    const Place place = placeOf(key);
    const std::optional<Value> converted = convert(value, kindIn(place));
    if (!converted) {
        throw std::invalid_argument{'"' + std::string{key} + "\" takes " +
                                    std::string{describe(kindIn(place))}};
    }
    struct
    {
        State &state;
        const Value &value;
        void operator()(const UnitPlace &unit) const
        {
            state[unit] = toNumber(value);
            if (const auto found = state.findLost(unit); found != state.lost.end()) {
                state.lost.erase(found);
            }
        }
        void operator()(ConfigurationField field) const
        {
            state[field] = toNumber(value);
            state.baudRateIsChosen = state.baudRateIsChosen || field == ConfigurationField::baudRate;
        }
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
    } const read{*this, kindIn(place)};
    return std::visit(read, place);
}

std::vector<std::string> State::keys()
{
    std::vector<std::string> keys;
    const auto append = [&](std::string_view name, std::string_view key) {
        keys.emplace_back(name).append(1, '.').append(key);
    };
    const auto appendAll = [&](std::string_view name, const auto &table) {
        for (const auto &row : table) {
            append(name, row.key);
        }
    };
    for (const UnitName &unit : unitNames) {
        appendAll(unit.name, unitFields);
    }
    appendAll(configurationName, configurationFields);
    appendAll(configurationName, configurationWords);
    append(configurationName, communicationTypeKey);
    return keys;
}

UnitPlace State::placeOfNumber(std::string_view key)
{
    const Place place = placeOf(key);
    const auto *const unit = std::get_if<UnitPlace>(&place);
    if (unit == nullptr || rowOf(unit->field).kind == Kind::Boolean) {
        throw std::invalid_argument{'"' + std::string{key} + "\" is no number of a unit"};
    }
    return *unit;
}

void State::open(bool isSilent)
{
    target = veltrix_sdk::targetBlendUnit;
    deviceOpen = true;
    silent = isSilent;
    cableOut = false;
    for (const Lost &each : lost) {
        (*this)[each.place] = each.earlier;
    }
    lost.clear();
}

std::int32_t State::linkBaudRate() const
{
    const auto field = baudRateIsChosen ? ConfigurationField::baudRate : ConfigurationField::defaultBaudRate;
    return static_cast<std::int32_t>(configuration[static_cast<std::size_t>(field)]);
}

void State::setBaudRate(std::int32_t baudRate)
{
    (*this)[ConfigurationField::baudRate] = baudRate;
    baudRateIsChosen = true;
}

bool State::store(Field first, const double *begin, const double *end)
{
    Field field{first};
    for (const double *number{begin}; number != end; ++number) {
        if (storedBy != StoredBy::Recording && !rowOf(field).allowed.accepts(*number, words)) {
            return false;
        }
        field = field + 1;
    }
    field = first;
    for (const double *number{begin}; number != end; ++number) {
        put(field, *number);
        field = field + 1;
    }
    return true;
}

bool State::learn(Field first, const std::vector<Value> &shown)
{
    const auto &ofUnit = beyond[static_cast<std::size_t>(target)];
    for (std::size_t place{0}; place < shown.size(); ++place) {
        if (ofUnit[static_cast<std::size_t>(first + place)]) {
            return false;
        }
    }
    Field field{first};
    for (const Value &value : shown) {
        addressed()[field] = toNumber(value);
        field = field + 1;
    }
    return true;
}

void State::noteLost(const UnitPlace &place)
{
    const auto found = findLost(place);
    if (storesAreLost && found == lost.end()) {
        lost.push_back({place, (*this)[place]});
    } else if (!storesAreLost && found != lost.end()) {
        lost.erase(found);
    }
}

std::vector<State::Lost>::iterator State::findLost(const UnitPlace &place)
{
    return std::find_if(lost.begin(), lost.end(), [&](const Lost &each) {
        return each.place.target == place.target && each.place.field == place.field;
    });
}

std::optional<Kind> State::kindAt(std::string_view key)
{
    const std::optional<Place> place = findPlace(key);
    return place ? std::optional{kindIn(*place)} : std::nullopt;
}

} // namespace veltrix_simulator
