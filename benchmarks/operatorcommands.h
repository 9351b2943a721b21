// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A command of each family that the window can send, with the same calls of the device without the window.
#pragma once

#include "mainwindow.h"
#include "veltrix_sdk/device_control.h"

#include <functional>
#include <vector>

struct OperatorCommand
{
    const char *name;
    /// What the operator's hand makes the controls do. The number says how often that was done before: odd
    /// and even ones send another value each, where there is one.
    std::function<void(int turn)> operate;
    /// The same calls without the program.
    void (*call)(veltrix_sdk::IDeviceControl &device, int turn);
    int lines{1};         ///< That it logs.
    bool isOneSend{true}; ///< False: it reads and shows something as well.
};

/// What is left out is sent by the same handler as a command that is here, or transfers a file. The window
/// must outlive them. The bare calls have the values that the window sends with, right after it was
/// connected.
std::vector<OperatorCommand> operatorCommands(MainWindow &window);
