// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What hands the calls of one object of the library on.
#pragma once

#include "operations/operations.h"
#include "recorder.h"
#include "veltrix_sdk/sdk.h"

#include <type_traits>

namespace recording
{

/// The operation that a member function of the contract is.
template <auto operation>
inline constexpr OperationId idOf{OperationId::count};
#define FUNCTION(...)
#define OPERATION(object, name, role)                                                                        \
    template <>                                                                                              \
    inline constexpr OperationId idOf<&veltrix_sdk::object::name>{OperationId::name};
#include "operations/operations.inc"

/// Stands before an object of the library, and can hand a call on.
template <typename Object>
class Forwarder : public Object
{
public:
    Forwarder(Recorder &itsRecorder, Object &itsObject) : recorder{itsRecorder}, object{itsObject} {}

    Object *behind() const { return &object; }

protected:
    ~Forwarder() = default;

    template <auto operation, typename... Arguments>
    auto forward(Arguments... arguments)
    {
        constexpr OperationId id{idOf<operation>};
        static_assert(id != OperationId::count, "the operation is in the list");
        return recorder.call(id, {parameterOf<id>(arguments)...},
                             [&] { return (object.*operation)(arguments...); });
    }

    Recorder &recorder;
    Object &object;

private:
    template <OperationId id, typename Argument>
    Parameter parameterOf(Argument argument)
    {
        if constexpr (std::is_same_v<Argument, const char *>) {
            return recorder.told(argument);
        } else if constexpr (std::is_pointer_v<Argument> &&
                             std::is_arithmetic_v<std::remove_pointer_t<Argument>>) {
            static_assert(veltrix_simulator::filledName<id> != nullptr, "what is filled in has a name");
            return {veltrix_simulator::filledName<id>, argument};
        } else {
            return argument;
        }
    }
};

} // namespace recording
