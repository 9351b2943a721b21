// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the settings of both units were in a recorded session.
#include "recordedsettings.h"

#include "messages.h"
#include "session.h"
#include "values.h"
#include "values/value.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <variant>

using device_settings::Place;
using device_settings::Setting;
using device_settings::Unit;
using veltrix_simulator::Missing;
using veltrix_simulator::RecordedArgument;
using veltrix_simulator::RecordedCall;

namespace ctl
{

namespace
{

/// The numbers that a call brought; nothing when it brought something else.
std::optional<Values> numbersOf(const std::vector<RecordedArgument> &arguments)
{
    Values numbers;
    for (const RecordedArgument &argument : arguments) {
        const auto *const number = std::get_if<double>(&argument);
        if (number == nullptr) {
            return std::nullopt;
        }
        numbers.push_back(*number);
    }
    return numbers;
}

/// What a setting is asked for, as its detail has it.
std::string detailOf(double number)
{
    return '(' + device_settings::numberText(number) + ')';
}

} // namespace

RecordedSettings::RecordedSettings()
{
    // Without words in the recording everything that can be sent is in range.
    const std::int32_t greatest{std::numeric_limits<std::int32_t>::max()};
    words.gskMaximum = greatest;
    words.gfidMaximum = greatest;
    words.tintMaximum = greatest;
    words.gmsMaximum = greatest;
    note(std::vector<veltrix_simulator::RecordedWord>{});
}

void RecordedSettings::note(const std::vector<veltrix_simulator::RecordedWord> &known)
{
    for (const auto &[row, number] : known) {
        words.*row->word = number;
    }
    table = device_settings::deviceSettings(words);
    places = device_settings::placesOf(table);
    numbers.resize(places.size());
}

void RecordedSettings::note(const RecordedCall &call)
{
    if (!call.words.empty()) {
        note(call.words);
    }
    if (call.missing != Missing::Nothing ||
        call.operation->interface != veltrix_simulator::Interface::Device) {
        return;
    }
    const auto unit = static_cast<Unit>(call.target);
    if (std::find(device_settings::units.begin(), device_settings::units.end(), unit) ==
        device_settings::units.end()) {
        return;
    }
    for (const Setting &setting : table) {
        if (!isUsedOn(setting.usedOn, unit)) {
            continue;
        }
        if (setting.get == call.operation->name) {
            noteRead(call, unit, setting);
        } else if (setting.set == call.operation->name && succeeded(call)) {
            noteWrite(call, unit, setting);
        }
    }
}

void RecordedSettings::noteRead(const RecordedCall &call, Unit unit, const Setting &setting)
{
    const std::optional<Values> asked{numbersOf(call.arguments)};
    const std::string detail{asked && asked->size() == 1 ? detailOf(asked->front()) : ""};
    if (!asked || detail != setting.detail || (setting.resultCounts && !succeeded(call))) {
        return;
    }
    Values answered;
    for (const veltrix_simulator::Value &value : readingsOf(*call.operation, call.answer)) {
        answered.push_back(veltrix_simulator::toNumber(value));
    }
    if (answered.size() == setting.fields.size()) {
        keep(unit, setting, answered);
    }
}

void RecordedSettings::noteWrite(const RecordedCall &call, Unit unit, const Setting &setting)
{
    std::optional<Values> sent{numbersOf(call.arguments)};
    if (!sent) {
        return;
    }
    if (!setting.detail.empty()) {
        // A coordinate stands before the number of its region, a stream before its coefficients.
        const std::size_t place{setting.sendsRegionFlags ? std::size_t{1} : std::size_t{0}};
        if (place >= sent->size() || detailOf((*sent)[place]) != setting.detail) {
            return;
        }
        sent->erase(sent->begin() + static_cast<std::ptrdiff_t>(place));
    }
    sent->resize(std::min(sent->size(), setting.fields.size()));
    keep(unit, setting, *sent);
}

void RecordedSettings::keep(Unit unit, const Setting &setting, const Values &known)
{
    for (std::size_t field{0}; field < known.size(); ++field) {
        if (!mayBeSent(setting.fields[field], known[field])) {
            return;
        }
    }
    const auto first = std::find_if(places.begin(), places.end(), [&](const Place &place) {
        return place.unit == unit && place.setting == &setting;
    });
    const auto begin = static_cast<std::size_t>(first - places.begin());
    for (std::size_t field{0}; field < setting.fields.size(); ++field) {
        numbers[begin + field] = field < known.size() ? std::optional{known[field]} : std::nullopt;
    }
}

std::vector<ProfileLine> RecordedSettings::lines() const
{
    std::vector<ProfileLine> known;
    for (std::size_t place{0}; place < places.size(); ++place) {
        if (places[place].setting->write && numbers[place]) {
            known.push_back({places[place], *numbers[place]});
        }
    }
    return known;
}

std::string RecordedSettings::serialNumberOf(Unit unit) const
{
    const std::string key{keyOf(unit) + ".serialNumber"};
    const auto place = std::find_if(places.begin(), places.end(),
                                    [&](const Place &each) { return device_settings::keyOf(each) == key; });
    const std::optional<double> number{numbers[static_cast<std::size_t>(place - places.begin())]};
    return serialNumberText(number);
}

std::string RecordedSettings::comment() const
{
    return "A recording shows them of " + nameOf(Unit::BlendUnit) + ' ' + serialNumberOf(Unit::BlendUnit) +
           " and " + nameOf(Unit::Camera) + ' ' + serialNumberOf(Unit::Camera) + '.';
}

} // namespace ctl
