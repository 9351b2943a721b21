// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The host's serial ports, told by the test: takes the place of Qt's own list in the programs that link it.
// Asking the host takes a quarter of the time of a session, and the answer differs from machine to machine.
#include "hostports.h"

#include <QList>
#include <QSerialPortInfo>

namespace
{

int hostPorts{0};

QList<QSerialPortInfo> told()
{
    QList<QSerialPortInfo> ports;
    for (int port{0}; port < hostPorts; ++port) {
        ports.append(QSerialPortInfo{});
    }
    return ports;
}

} // namespace

void setHostPorts(int count)
{
    hostPorts = count;
}

#if defined(Q_OS_WIN)
// There a function of a DLL is called through a pointer of this name, which the linker otherwise takes from
// Qt.
extern QList<QSerialPortInfo> (*const importedList)() __asm__("__imp__ZN15QSerialPortInfo14availablePortsEv");
QList<QSerialPortInfo> (*const importedList)(){told};
#else
QList<QSerialPortInfo> QSerialPortInfo::availablePorts()
{
    return told();
}
#endif
