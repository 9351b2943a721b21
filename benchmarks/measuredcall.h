// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Calls of the device, and how long one takes.
#pragma once

#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/records.h"
#include "veltrix_simulator/simulator.h"

#include <QElapsedTimer>
#include <QtGlobal>

#include <algorithm>
#include <array>
#include <limits>

inline constexpr int callsInABatch{10'000};
inline constexpr int batchesOfCalls{20};

struct MeasuredCall
{
    const char *name;
    bool (*call)(veltrix_sdk::IDeviceControl &); ///< True: the device did it.
};

inline constexpr std::array<MeasuredCall, 4> deviceCalls{{
    {"getGamma",
     [](veltrix_sdk::IDeviceControl &device) {
         return device.getGamma() != 0;
     }},
    {"setGamma",
     [](veltrix_sdk::IDeviceControl &device) {
         return device.setGamma(65'536);
     }},
    {"setWarp",
     [](veltrix_sdk::IDeviceControl &device) {
         return device.setWarp(0, 1, 0, 0, 1, 2, 3);
     }},
    {"getTemperatures",
     [](veltrix_sdk::IDeviceControl &device) {
         veltrix_sdk::Temperatures temperatures{};
         return device.getTemperatures(&temperatures);
     }},
}};

/// Microseconds of one call in the quickest batch. A call that fails ends the program: the figures would mean
/// nothing.
inline double microsecondsPerCall(const MeasuredCall &measured, veltrix_sdk::IDeviceControl &device)
{
    double quickest{std::numeric_limits<double>::infinity()};
    for (int batch{0}; batch < batchesOfCalls; ++batch) {
        int done{0};
        QElapsedTimer timer;
        timer.start();
        for (int call{0}; call < callsInABatch; ++call) {
            done += measured.call(device) ? 1 : 0;
        }
        quickest = std::min(quickest, static_cast<double>(timer.nsecsElapsed()) / 1000.0 / callsInABatch);
        veltrix_simulator::Simulator::instance().clearJournal();
        if (done != callsInABatch) {
            qFatal("%s failed; the figures would mean nothing", measured.name);
        }
    }
    return quickest;
}
