// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the device operations are made of: reads and writes of the addressed unit's state.
#pragma once

#include "calls/callpath.h"
#include "calls/numbersat.h"
#include "calls/parameter.h"
#include "operations/operations.h"
#include "output/logoutput.h"
#include "units/badpixels.h"
#include "units/memory.h"
#include "units/state.h"
#include "units/unitfields.h"
#include "values/value.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"
#include "veltrix_simulator/simulator.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <vector>

namespace veltrix_simulator
{

/// Each function is a whole call: it goes through CallPath and works on the unit that the target selects.
class UnitAccess
{
public:
    UnitAccess(CallPath &itsPath, State &itsState, LogOutput &itsLog, Memory &itsMemory)
        : path{itsPath}, state{itsState}, log{itsLog}, memory{itsMemory}
    {}

protected:
    ~UnitAccess() = default;

    template <typename Function, typename Learning = NoLesson>
    std::invoke_result_t<const Function &> call(OperationId operation, Parameters parameters,
                                                const Function &work, const Learning &learn = {})
    {
        return path.call(operation, parameters, work, learn);
    }

    /// A read of one value as the result.
    template <Field field>
    TypeOf<rowOf(field).kind> get(OperationId operation)
    {
        return call(
            operation, {}, [&] { return static_cast<TypeOf<rowOf(field).kind>>(unit()[field]); },
            [&](const std::vector<Value> &shown) { return state.learn(field, shown); });
    }

    /// A read of one value into the number that is the only parameter.
    template <typename Result = bool>
    Result fill(OperationId operation, Field field, Parameters filled)
    {
        return call(
            operation, filled,
            [&] {
                const NumbersToFill &number = *filled.begin()->filledMemory();
                number.set(*number.members().begin(), unit()[field]);
                return Result{1};
            },
            [&](const std::vector<Value> &shown) { return state.learn(field, shown); });
    }

    /// A read into the record that is the only parameter: its members know their fields.
    template <typename Result = bool>
    Result fill(OperationId operation, Parameters filled)
    {
        return call(
            operation, filled,
            [&] {
                load(*filled.begin()->filledMemory());
                return Result{1};
            },
            [&](const std::vector<Value> &shown) {
                return state.learn(filled.begin()->filledMemory()->members().begin()->field, shown);
            });
    }

    /// A write of the numbers that the call brings into the fields from `first` on.
    bool set(OperationId operation, Field first, Parameters parameters);
    /// A write of the record that is the only parameter.
    bool set(OperationId operation, Parameters sent);

    bool configureEdge(OperationId operation, Parameters parameters);
    veltrix_sdk::EdgeCorrection getEdge(OperationId operation);

    /// A coordinate of a region; the field is that of the first region.
    std::uint32_t getRoi(OperationId operation, Field coordinate, std::uint32_t region);
    /// The parameters are the pixels, the number of the region and the enables. A region is stored under the
    /// number that the setter is given. The getters call other regions 1 and 2 than the setters do, and
    /// nothing translates: what was set for region 1 is what a getter answers for its region 1.
    bool setRoi(OperationId operation, Field coordinate, std::int32_t region, Parameters parameters);

    /// The parameters are the stream and its coefficients.
    bool setWarpOf(OperationId operation, std::int32_t stream, Parameters parameters);
    bool getWarpOf(OperationId operation, veltrix_sdk::Warp *warp);

    bool select(OperationId operation, std::int32_t target);

    bool transferBpr(OperationId operation, std::uint32_t first, std::uint32_t second, std::uint8_t code,
                     std::uint8_t expectedCode, bool (BadPixelMemory::*transfer)(std::uint32_t, LogOutput &));
    bool declare(OperationId operation, std::uint32_t column, std::uint32_t row, bool bad);
    bool save(OperationId operation, std::uint8_t kind);

    /// Counts a command that changes nothing else in the state.
    bool count(Field field)
    {
        unit()[field] += 1;
        return true;
    }

private:
    /// Fills a record from its fields; `further` is the distance to the fields of another stream of Warp.
    void load(const NumbersToFill &record, std::size_t further = 0);

    Unit &unit() { return state.addressed(); }
    BadPixelMemory &badPixels() { return unit().badPixels; }
    std::uint32_t serialNumber() { return static_cast<std::uint32_t>(unit()[Field::serialNumber]); }

    CallPath &path;
    State &state;
    LogOutput &log;
    Memory &memory;
};

} // namespace veltrix_simulator
