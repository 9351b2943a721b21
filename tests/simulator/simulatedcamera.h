// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulator as most of its tests want it: in power-on state, with the device open.
#pragma once

#include "veltrix_sdk/sdk.h"
#include "veltrix_simulator/simulator.h"

#include <QMetaType>
#include <QString>

#include <cstdint>
#include <stdexcept>

constexpr int blendUnitTarget{0};
constexpr int cameraTarget{1};

/// Puts the simulator of this process into power-on state, opens its device and selects a unit; the
/// journal is empty then.
struct SimulatedCamera
{
    /// The root of the library comes from the function.
    explicit SimulatedCamera(std::int32_t target = cameraTarget,
                             veltrix_sdk::IVeltrixSdk *(*root)() = veltrix_sdk::VeltrixSdk::get_instance);

    /// The text of the latest call.
    QString lastCall() const;

    veltrix_simulator::Simulator &simulator{veltrix_simulator::Simulator::instance()};
    veltrix_sdk::IVeltrixSdk &sdk;
    veltrix_sdk::ISdkConfiguration &configuration;
    veltrix_sdk::IDeviceManager *manager;
    veltrix_sdk::IDeviceControl *device;
};

/// What a test does with it, as a column of a table.
using Action = void (*)(SimulatedCamera &c);

Q_DECLARE_METATYPE(Action)

/// Prefix of the keys of a unit.
QString unitPrefix(int target);

/// A value of the simulator's interface as text, such as "true", "65536", "1.5" or "UART".
QString toText(const veltrix_simulator::Value &value);

/// What the function throws as std::invalid_argument; empty when it throws nothing.
template <typename Function>
QString refusalOf(const Function &function)
{
    try {
        function();
    } catch (const std::invalid_argument &refusal) {
        return QString::fromUtf8(refusal.what());
    }
    return {};
}
