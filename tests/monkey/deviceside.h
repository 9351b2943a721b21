// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the journal says of the device, and which buttons follow from it.
#pragma once

#include "oracle.h"
#include "veltrix_simulator/simulator.h"

#include <QString>

/// Follows the calls of a window and its scans. The window must let the operator use what follows from them.
class DeviceSide
{
public:
    /// Before an action: a connect ends within the one that it began in.
    void begin() { identified = false; }
    void take(const veltrix_simulator::Call &call);
    /// A scan has offered ports.
    void offerPorts() { canConnect = canChoosePort = true; }

    Session session{};     ///< lastCommandOk is not followed.
    QString port{};        ///< That was opened last.
    bool connected{false}; ///< The pages and the buttons beside them can be used.
    bool canScan{true};
    bool canChoosePort{true};
    bool canConnect{false};

private:
    void setConnected(bool nowConnected);

    bool identified{false}; ///< In this action, so that both units are read next.
    int unitsRead{0};
};
