// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The serial ports of the host as PILOTEL_TEST_HOST_PORTS names them, separated by blanks: loaded before Qt
// into a program that a test starts, it takes the place of Qt's own list, which differs from machine to
// machine.
#include <QList>
#include <QSerialPortInfo>
#include <QString>
#include <QStringList>

namespace
{

QStringList names()
{
    return qEnvironmentVariable("PILOTEL_TEST_HOST_PORTS").split(' ', Qt::SkipEmptyParts);
}

int nextName{0};

} // namespace

QList<QSerialPortInfo> QSerialPortInfo::availablePorts()
{
    nextName = 0;
    QList<QSerialPortInfo> ports;
    for (int port{0}; port < names().size(); ++port) {
        ports.append(QSerialPortInfo{});
    }
    return ports;
}

/// Without the host's own data a port does not know which one it is: they are asked in their order.
QString QSerialPortInfo::portName() const
{
    return names().value(nextName++);
}
