// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the journal says of the device, and which buttons follow from it.
#include "deviceside.h"

#include <QRegularExpression>

void DeviceSide::setConnected(bool nowConnected)
{
    connected = nowConnected;
    canScan = canChoosePort = canConnect = !nowConnected;
}

void DeviceSide::take(const veltrix_simulator::Call &call)
{
    const QString operation{QString::fromStdString(call.operation)};
    const QString text{QString::fromStdString(call.text)};
    if (operation == QStringLiteral("getDeviceManager")) {
        session.managerHeld = text.endsWith(QStringLiteral("-> manager"));
    } else if (operation == QStringLiteral("releaseDeviceManager")) {
        session.managerHeld = false;
    } else if (operation == QStringLiteral("openDevice")) {
        session.deviceOpen = text.endsWith(QStringLiteral("-> device"));
        port = text.section(QLatin1Char{'"'}, 1, -2);
    } else if (operation == QStringLiteral("closeDevice")) {
        session.deviceOpen = false;
        setConnected(false);
    } else if (operation == QStringLiteral("connect")) {
        identified = text.contains(QStringLiteral("-> 1 ")) && text.contains(QStringLiteral("identity=21}"));
        unitsRead = 0;
    } else if (operation == QStringLiteral("getFirmwareVersions") && identified) {
        static const QRegularExpression versions{QStringLiteral("processor=(\\d+), fpga=(\\d+)")};
        const QRegularExpressionMatch match{versions.match(text)};
        identified = match.captured(1).toInt() != 0 || match.captured(2).toInt() != 0;
        unitsRead += identified ? 1 : 0;
        if (unitsRead == 2) {
            identified = false;
            setConnected(true);
        }
    }
}
