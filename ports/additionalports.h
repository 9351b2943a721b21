// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Ports that the loaded SDK library can open beside the serial ports of the host.
#pragma once

#include <QStringList>

/// Names of the ports that the loaded SDK library offers itself; empty for a library that offers none.
QStringList additionalPorts();
