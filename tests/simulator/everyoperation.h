// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every operation of the contract with a way to call it.
#pragma once

#include "simulatedcamera.h"

#include <functional>
#include <vector>

struct OperationCall
{
    const char *name;
    veltrix_simulator::Interface interface;
    /// Calls it with 1 for every number, "SIM1" for a name, the manager or the device where one is wanted
    /// and, for what it has to fill in, memory that holds no zero.
    std::function<void(SimulatedCamera &camera)> call;
};

const std::vector<OperationCall> &everyOperation();
