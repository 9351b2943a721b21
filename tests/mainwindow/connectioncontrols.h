// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The controls that the state of the connection enables and disables, and which are enabled when.
#pragma once

#include <QStringList>

/// What can be used whatever the state.
inline QStringList alwaysEnabled()
{
    return {"BaudRateConnectCB", "clearLogButton", "AboutButton"};
}

inline QStringList enabledAtStart()
{
    return QStringList{"scanDeviceButton", "selectDeviceComboBox"} + alwaysEnabled();
}

inline QStringList enabledWithPorts()
{
    return QStringList{"scanDeviceButton", "selectDeviceComboBox", "connectDeviceButton"} + alwaysEnabled();
}

inline QStringList enabledWhileConnected()
{
    return QStringList{"paramSection", "disconnectDeviceButton", "resetParamButtonUser",
                       "readParamButtonUser", "saveParamButtonUser"} +
           alwaysEnabled();
}

/// All of them, in the order of the lists above.
inline QStringList connectionControls()
{
    return QStringList{"scanDeviceButton",    "selectDeviceComboBox",   "connectDeviceButton",
                       "paramSection",        "disconnectDeviceButton", "resetParamButtonUser",
                       "readParamButtonUser", "saveParamButtonUser"} +
           alwaysEnabled();
}
