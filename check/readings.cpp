// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the check reads and tries, beside what is known of every setting.
#include "readings.h"

#include "veltrix_sdk/numbers.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

using device_settings::Device;
using device_settings::UsedOn;
using veltrix_sdk::sensorColumns;
using veltrix_sdk::sensorRows;

namespace sdk_check
{

namespace
{

auto findKey(const std::vector<Setting> &table, const char *key)
{
    return std::find_if(table.begin(), table.end(), [&](const Setting &each) { return each.key == key; });
}

/// An operation that answers no number, only whether the unit acknowledges.
Setting startReading()
{
    Setting setting{{}, UsedOn::Both, {}, "startReading", {}, [](Device &device, Values & /*answer*/) {
                        return static_cast<std::uint8_t>(device.startReading());
                    }};
    setting.resultCounts = false;
    return setting;
}

/// Pixels that the window's controls of a region leave free at each edge of the sensor.
constexpr std::uint32_t regionMargin{5};

/// A number for which the ends of its range are not what is tried.
struct Tried
{
    const char *get;   ///< The operation that reads it.
    const char *field; ///< Empty: all its numbers.
    Values values;     ///< Empty: it is sent as it was found.
};

const std::vector<Tried> &specialTries()
{
    static const std::vector<Tried> tries{
        // As the program does it, which sends the centre back as it was read.
        {"getZoomConfig", "xCenter", {}},
        {"getZoomConfig", "yCenter", {}},
        // Near what a picture needs, unlike the ends of the range.
        {"getWarp", "", {2, 1}},
        // In the range of the window's controls, whose ends keep the first corner before the second.
        {"getRoiX1", "", {regionMargin + 1, regionMargin}},
        {"getRoiY1", "", {regionMargin + 1, regionMargin}},
        {"getRoiX2", "", {sensorColumns - regionMargin - 1, sensorColumns - regionMargin}},
        {"getRoiY2", "", {sensorRows - regionMargin - 1, sensorRows - regionMargin}},
    };
    return tries;
}

/// Null: the ends of its range are tried.
const Tried *findTried(const Setting &setting, const Field &field)
{
    for (const Tried &each : specialTries()) {
        const std::string_view name{each.field};
        if (setting.get == each.get && (name.empty() || name == field.name)) {
            return &each;
        }
    }
    return nullptr;
}

} // namespace

std::string nameOf(Unit unit)
{
    return unit == Unit::Camera ? "camera" : "Blend Unit";
}

std::vector<Setting> readingsOf(const std::vector<Setting> &table)
{
    std::vector<Setting> readings{table};
    readings.erase(findKey(readings, "identity"));
    readings.insert(findKey(readings, "firmwareVersions") + 1, startReading());
    return readings;
}

const Setting &identityOf(const std::vector<Setting> &table)
{
    return *findKey(table, "identity");
}

std::string nameOf(const Setting &setting, const Field &field)
{
    if (setting.key == "identity") {
        return setting.key;
    }
    // The lines give temperatures without their unit.
    const std::size_t unit{field.name.find("Millikelvin")};
    return field.name.substr(0, unit);
}

Allowed allowedAnswer(const Setting &setting, const Field &field)
{
    return setting.key == "gms" ? device_settings::between(0, device_settings::highestWord) : field.allowed;
}

std::string objectionTo(const Setting &setting, const Values &answer)
{
    const bool noAnswer{setting.key == "firmwareVersions" && answer[0] == 0.0 && answer[1] == 0.0};
    return noAnswer ? "both words are 0, which means no answer" : "";
}

bool isTried(const Setting &setting, const Field &field)
{
    const Tried *const special{findTried(setting, field)};
    return !field.derived && (special == nullptr || !special->values.empty());
}

Values triesOf(const Setting &setting, const Field &field)
{
    const Tried *const special{findTried(setting, field)};
    return special != nullptr ? special->values : Values{field.allowed.minimum, field.allowed.maximum};
}

} // namespace sdk_check
