// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every setting of the device that is read, by its key: where it belongs, what it may be, how it is read and
// written.
#include "devicesettings.h"

#include "tables.h"
#include "veltrix_sdk/kinds.h"

#include <algorithm>

namespace device_settings
{

std::vector<Setting> deviceSettings(const veltrix_sdk::ConfigurationWords &words)
{
    std::vector<Setting> table{blendUnitTable()};
    const std::vector<Setting> camera{cameraTable(words)};
    table.insert(table.end(), camera.begin(), camera.end());
    return table;
}

bool isUsedOn(UsedOn usedOn, Unit unit)
{
    return usedOn == UsedOn::Both || (usedOn == UsedOn::Camera) == (unit == Unit::Camera);
}

std::vector<Place> placesOf(const std::vector<Setting> &table)
{
    std::vector<Place> places;
    for (const Unit unit : units) {
        for (const Setting &setting : table) {
            for (std::size_t field{0}; field < setting.fields.size(); ++field) {
                if (isUsedOn(setting.usedOn, unit)) {
                    places.push_back({unit, &setting, field});
                }
            }
        }
    }
    return places;
}

std::string keyOf(const Place &place)
{
    const std::string prefix{place.unit == Unit::Camera ? "camera." : "blendUnit."};
    const std::string &field{place.setting->fields[place.field].name};
    return prefix + place.setting->key + (field.empty() ? "" : '.' + field);
}

std::optional<Place> findSetting(const std::vector<Setting> &table, std::string_view key)
{
    const std::vector<Place> places{placesOf(table)};
    const auto found =
        std::find_if(places.begin(), places.end(), [&](const Place &place) { return keyOf(place) == key; });
    return found == places.end() ? std::nullopt : std::optional{*found};
}

RegionFlags readRegionFlags(Device &device)
{
    RegionFlags flags;
    for (const OptionalRegion &region : optionalRegions) {
        flags.*region.flag = isRegionOn(device.getRoiX1(static_cast<std::uint32_t>(region.number)));
    }
    return flags;
}

std::optional<Values> readAll(Device &device, const Setting &setting)
{
    Values values(setting.fields.size());
    const std::uint8_t result{setting.read(device, values)};
    return result == 1 || !setting.resultCounts ? std::optional{values} : std::nullopt;
}

std::optional<std::size_t> firstFieldSentChanged(const Setting &setting, const Values &values)
{
    for (std::size_t field{0}; field < setting.fields.size(); ++field) {
        if (setting.fields[field].sentWhole && !isWhole(values[field])) {
            return field;
        }
    }
    return std::nullopt;
}

Written writeField(Device &device, const Setting &setting, std::size_t field, double number)
{
    const Field &written = setting.fields[field];
    if (!setting.write || written.derived) {
        return Written::NotSent;
    }
    const bool needsWhole{written.sentWhole || !veltrix_sdk::hasFractions(written.kind)};
    if (!allows(written.allowed, number) || (needsWhole && !isWhole(number))) {
        return Written::NotAllowed;
    }
    std::optional<Values> values = readAll(device, setting);
    if (!values) {
        return Written::NotRead;
    }
    (*values)[field] = number;
    if (firstFieldSentChanged(setting, *values)) {
        return Written::NotKept;
    }
    const RegionFlags flags{setting.sendsRegionFlags ? readRegionFlags(device) : RegionFlags{}};
    return setting.write(device, *values, flags) ? Written::Acknowledged : Written::Refused;
}

} // namespace device_settings
