// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Names of all ports that a device may be behind.
#include "portnames.h"

#include "additionalports.h"

QStringList portNames(const QList<QSerialPortInfo> &hostPorts)
{
    QStringList names;
    for (const QSerialPortInfo &port : hostPorts) {
        names.append(port.portName());
    }
    names.append(additionalPorts());
    return names;
}
