// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the device operations are made of: reads and writes of the addressed unit's state.
#pragma once

#include "calls/core.h"
#include "output/logoutput.h"
#include "units/memory.h"
#include "units/state.h"

#include <cstddef>
#include <cstdint>
#include <tuple>
#include <type_traits>

namespace veltrix_simulator
{

/// Each helper is a whole call: it passes the core and works on the unit that the target selects.
class UnitAccess
{
public:
    UnitAccess(Core &itsCore, State &itsState, LogOutput &itsLog, Memory &itsMemory)
        : core{itsCore}, state{itsState}, log{itsLog}, memory{itsMemory}
    {}

protected:
    ~UnitAccess() = default;

    /// In the order of the fields of a region.
    enum class RoiCoordinate : std::size_t
    {
        x1,
        x2,
        y1,
        y2,
    };

    static constexpr std::size_t roiFields{Field::roi1X1 - Field::roi0X1};
    static constexpr std::size_t warpFields{Field::warp1A11 - Field::warp0A11};
    static constexpr std::uint32_t regions{4};
    static constexpr std::int32_t warpStreams{3};
    static constexpr double secondThresholdDistance{40};
    static constexpr std::uint8_t readBprCode{9};
    static constexpr std::uint8_t writeBprCode{8};

    static bool isBprTransfer(std::uint32_t first, std::uint32_t second)
    {
        return first == 4096 && second == 16384;
    }
    static bool isWarpStream(std::int32_t stream) { return stream >= 0 && stream < warpStreams; }
    static Field warpField(std::int32_t stream)
    {
        return Field::warp0A11 + static_cast<std::size_t>(stream) * warpFields;
    }
    static Field roiField(std::uint32_t region, RoiCoordinate coordinate)
    {
        return Field::roi0X1 + (region * roiFields + static_cast<std::size_t>(coordinate));
    }

    template <typename Action, typename... Parameters>
    std::invoke_result_t<Action> call(const char *operation, const Action &action,
                                      const Parameters &...parameters)
    {
        return core.call(Interface::Device, operation, action, parameters...);
    }

    /// A read of one value as the result.
    template <Field field>
    TypeOf<rowOf(field).kind> get(const char *operation)
    {
        return call(operation, [&] { return static_cast<TypeOf<rowOf(field).kind>>(unit()[field]); });
    }

    /// A read into the record or number that the parameter points to, from the fields from `first` on.
    template <typename Result = bool, typename Parameter>
    Result fill(const char *operation, Field first, const Parameter &parameter)
    {
        const auto read = [&] {
            load(first, target(parameter));
            return Result{1};
        };
        return call(operation, read, parameter);
    }

    /// A write of the numbers into the fields from `first` on.
    template <typename... Numbers>
    bool set(const char *operation, Field first, Numbers... numbers)
    {
        return call(
            operation, [&] { return state.store(first, numbers...); }, numbers...);
    }

    /// A write of the record's numbers into the fields from `first` on.
    template <typename Record>
    bool set(const char *operation, Field first, const Record *record)
    {
        const auto store = [&] {
            const auto storeFields = [&](const auto &...field) {
                return state.store(first, record->*field.member...);
            };
            return std::apply(storeFields, fieldsOf<Record>);
        };
        return call(operation, store, record);
    }

    std::uint32_t getRoi(const char *operation, RoiCoordinate coordinate, std::uint32_t region)
    {
        const auto read = [&] {
            return region < regions ? static_cast<std::uint32_t>(unit()[roiField(region, coordinate)]) : 0;
        };
        return call(operation, read, region);
    }

    /// Regions are stored by number: what the setters call 1 the reader calls 1, whatever each means by it.
    template <typename... Flags>
    bool setRoi(const char *operation, RoiCoordinate coordinate, std::uint32_t pixels, std::int32_t region,
                Flags... flags)
    {
        const auto number = static_cast<std::uint32_t>(region);
        const auto store = [&] {
            return number < regions && state.store(roiField(number, coordinate), pixels) &&
                   state.store(Field::roi1IncEnabled, flags...);
        };
        return call(operation, store, pixels, region, flags...);
    }

    bool declare(const char *operation, std::uint32_t column, std::uint32_t row, bool bad)
    {
        const auto declarePixel = [&] {
            return badPixels().declare(serialNumber(), column, row, bad, log);
        };
        return call(operation, declarePixel, column, row);
    }

    template <typename T>
    static T &target(const Out<T> &out)
    {
        return *out.number;
    }
    template <typename Record>
    static Record &target(Record *const &record)
    {
        return *record;
    }

    /// Fills a record or a number from the fields from `first` on.
    template <typename T>
    void load(Field first, T &destination)
    {
        if constexpr (isRecord<T>) {
            std::size_t place{0};
            forEachField(destination,
                         [&](const char * /*name*/, auto &field) { load(first + place++, field); });
        } else {
            destination = static_cast<T>(unit()[first]);
        }
    }

    /// Counts what leaves no other trace in the state.
    bool count(Field field)
    {
        unit()[field] += 1;
        return true;
    }

    Unit &unit() { return state.addressed(); }
    BadPixelMemory &badPixels() { return unit().badPixels; }
    std::uint32_t serialNumber() { return static_cast<std::uint32_t>(unit()[Field::serialNumber]); }

    Core &core;
    State &state;
    LogOutput &log;
    Memory &memory;
};

} // namespace veltrix_simulator
