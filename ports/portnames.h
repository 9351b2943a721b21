// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Names of all ports that a device may be behind.
#pragma once

#include <QList>
#include <QSerialPortInfo>
#include <QStringList>

/// Names of the given serial ports of the host, then those of the ports that the loaded SDK library can
/// open beside them.
QStringList portNames(const QList<QSerialPortInfo> &hostPorts);
