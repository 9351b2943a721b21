// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The units as a whole: the ports they are behind, who they are, and what outlives their power.
#include "commands.h"
#include "escaped.h"
#include "fieldtext.h"
#include "firmwaretext.h"
#include "messages.h"
#include "ports.h"
#include "values.h"
#include "veltrix_sdk/numbers.h"

#include <array>
#include <cstdint>
#include <iomanip>
#include <iostream>
#include <sstream>

namespace ctl
{

namespace
{

std::string firmwareText(Unit unit, bool ofProcessor, std::uint16_t word)
{
    using namespace device_settings;
    if (unit == Unit::Camera) {
        return ofProcessor ? cameraProcessorText(word) : cameraFpgaText(word);
    }
    return ofProcessor ? blendUnitProcessorText(word) : blendUnitFpgaText(word);
}

std::string bitText(double word)
{
    std::ostringstream text;
    text << "0x" << std::hex << static_cast<std::uint32_t>(word);
    return text.str();
}

/// A line of the report: what it is called, and the number behind a key.
struct Line
{
    const char *caption;
    const char *key; ///< Without the unit.
};

constexpr std::array lines{Line{"serial number", "serialNumber"},
                           Line{"serial number of the sensor", "sensorSerialNumber"},
                           Line{"processor", "firmwareVersions.processor"},
                           Line{"FPGA", "firmwareVersions.fpga"},
                           Line{"operating time", "operatingInfo.operatingMinutes"},
                           Line{"starts", "operatingInfo.startupCount"},
                           Line{"temperature of the sensor", "temperatures.sensorMillikelvin"},
                           Line{"temperature of the FPGA", "temperatures.fpgaMillikelvin"},
                           Line{"built-in test", "bitStatus"}};

std::string shown(const device_settings::Place &place, double number)
{
    const std::string &key = place.setting->key;
    if (key == "firmwareVersions") {
        return firmwareText(place.unit, place.field == 0, static_cast<std::uint16_t>(number));
    }
    if (key == "bitStatus") {
        return bitText(number);
    }
    const device_settings::Field &field = place.setting->fields[place.field];
    const std::string words{device_settings::inWords(field, number)};
    return words.empty() ? device_settings::numberText(number, field.kind) : words;
}

bool showUnit(Session &session, Unit unit)
{
    constexpr int width{29};
    bool allWell{true};
    session.on(unit);
    std::cout << (unit == Unit::Camera ? "Camera" : "Blend Unit") << '\n';
    for (const Line &line : lines) {
        heedInterruption();
        const auto place = device_settings::findSetting(session.settings(), keyOf(unit) + '.' + line.key);
        if (!place) {
            continue;
        }
        const Reading reading{session.read(unit, *place->setting)};
        std::string text{"?"};
        if (reading.fault.empty()) {
            text = shown(*place, reading.values[place->field]);
        } else {
            tell(reading.fault);
            allWell = false;
        }
        std::cout << "  " << std::left << std::setw(width) << line.caption << text << '\n';
    }
    std::cout << std::flush;
    session.confirm();
    return allWell;
}

} // namespace

ExitStatus listPorts()
{
    const std::vector<std::string> names{allPorts()};
    if (names.empty()) {
        throw Failure{noDevice, "No port found. Plug the camera in, or name a port with --port."};
    }
    for (const std::string &name : names) {
        std::cout << sdk_check::escaped(name) << '\n';
    }
    std::cout << std::flush;
    return done;
}

ExitStatus showInfo(Session &session)
{
    bool allWell{true};
    std::string gone;
    session.open();
    std::cout << "Port " << sdk_check::escaped(session.port()) << '\n';
    for (const Unit unit : device_settings::units) {
        try {
            allWell = showUnit(session, unit) && allWell;
        } catch (const Failure &failure) {
            if (failure.status() != noDevice) {
                throw;
            }
            gone += (gone.empty() ? "" : "\n") + std::string{failure.what()};
        }
    }
    if (!gone.empty()) {
        throw Failure{noDevice, gone};
    }
    return allWell ? done : refused;
}

ExitStatus storeSettings(Session &session, bool expert, const std::vector<Unit> &units)
{
    const std::string set{expert ? "expert" : "user"};
    std::string failed;
    // A unit that is gone ends the command before anything is stored.
    for (const Unit unit : units) {
        heedInterruption();
        session.on(unit);
    }
    for (const Unit unit : units) {
        heedInterruption();
        const std::uint8_t kind{expert ? veltrix_sdk::saveExpertParameters : veltrix_sdk::saveUserParameters};
        if (session.on(unit).saveBlendUnitParameters(kind)) {
            std::cout << "The " << set << " settings of " << nameOf(unit) << " are stored." << std::endl;
        } else {
            failed +=
                (failed.empty() ? "" : "\n") + nameOf(unit) + " refuses to store its " + set + " settings.";
        }
    }
    if (!failed.empty()) {
        throw Failure{refused, failed};
    }
    return done;
}

} // namespace ctl
