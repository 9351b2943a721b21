// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Ports that the loaded SDK library can open beside the serial ports of the host.
#include "additionalports.h"

#include "veltrix_sdk/extensions.h"

#include <QLibrary>

QStringList additionalPorts()
{
    // Loading it again by name finds the library that the process was started with.
    const auto listPorts = reinterpret_cast<veltrix_sdk::AdditionalPortsFunction>(
        QLibrary{QStringLiteral("veltrix.sdk")}.resolve(veltrix_sdk::additionalPortsSymbol));
    QStringList names;
    if (listPorts != nullptr) {
        for (const char *const *name = listPorts(); *name != nullptr; ++name) {
            names.append(QString::fromUtf8(*name));
        }
    }
    return names;
}
