// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every operation of the contract with a way to call it.
#include "everyoperation.h"

#include "operations/operations.h"

#include <cstring>
#include <tuple>
#include <type_traits>
#include <utility>

using namespace veltrix_sdk;
using veltrix_simulator::nameOf;
using veltrix_simulator::OperationId;

namespace
{

/// One argument, with the memory behind it where it is a pointer.
template <typename T>
struct Argument
{
    T from(SimulatedCamera & /*camera*/) { return T{1}; }
};

template <>
struct Argument<const char *>
{
    const char *from(SimulatedCamera & /*camera*/) { return "SIM1"; }
};

template <>
struct Argument<IDeviceControl *>
{
    IDeviceControl *from(SimulatedCamera &camera) { return camera.device; }
};

template <>
struct Argument<IDeviceManager **>
{
    IDeviceManager **from(SimulatedCamera &camera) { return &camera.manager; }
};

template <>
struct Argument<const ZoomConfig *>
{
    const ZoomConfig *from(SimulatedCamera & /*camera*/) { return &zoom; }

    ZoomConfig zoom{1, 1, 1, 1};
};

template <typename T>
struct Argument<T *>
{
    T *from(SimulatedCamera & /*camera*/)
    {
        std::memset(&memory, 1, sizeof memory);
        return &memory;
    }

    T memory;
};

IVeltrixSdk &objectIn(SimulatedCamera &camera, const IVeltrixSdk * /*type*/)
{
    return camera.sdk;
}
ISdkConfiguration &objectIn(SimulatedCamera &camera, const ISdkConfiguration * /*type*/)
{
    return camera.configuration;
}
IDeviceManager &objectIn(SimulatedCamera &camera, const IDeviceManager * /*type*/)
{
    return *camera.manager;
}
IDeviceControl &objectIn(SimulatedCamera &camera, const IDeviceControl * /*type*/)
{
    return *camera.device;
}

template <typename Result, typename Object, typename... Parameters>
OperationCall operation(OperationId id, Result (Object::*member)(Parameters...))
{
    const auto call = [member](SimulatedCamera &camera) {
        std::tuple<Argument<Parameters>...> arguments{};
        Object &object = objectIn(camera, static_cast<const Object *>(nullptr));
        std::apply([&](auto &...argument) { (object.*member)(argument.from(camera)...); }, arguments);
    };
    return {nameOf(id).name.data(), nameOf(id).interface, call};
}

void get_instance(SimulatedCamera & /*camera*/)
{
    VeltrixSdk::get_instance();
}

void log(SimulatedCamera & /*camera*/)
{
    const SDKLogger record{severity_info};
}

OperationCall function(OperationId id, void (*call)(SimulatedCamera &))
{
    return {nameOf(id).name.data(), nameOf(id).interface, call};
}

} // namespace

const std::vector<OperationCall> &everyOperation()
{
    static const std::vector<OperationCall> operations{
#define FUNCTION(name, ...) function(OperationId::name, name),
#define OPERATION(object, name, role) operation(OperationId::name, &object::name),
#include "operations/operations.inc"
    };
    return operations;
}
