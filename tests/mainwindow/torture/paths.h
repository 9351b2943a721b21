// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every path on which an operator makes the window call the SDK.
#pragma once

#include "oracle.h"
#include "testwindow.h"

#include <QString>

#include <functional>
#include <vector>

/// What a path is about; each group is a test function of its own.
enum class Group
{
    Sessions,
    Settings,
    Regions,
    ExpertSettings,
    BlendUnit,
    BadPixels,
    AddedLines,
    RemovedLines,
};

/// One path: where it starts, what the operator does, and what the window promises to do then.
struct Path
{
    Group group;
    QString name;
    std::function<void(TestWindow &)> act;
    std::function<void(Oracle &)> promise;
    /// Brings the connected window to where the path starts; nothing goes wrong meanwhile.
    std::function<void(TestWindow &)> prepare{[](TestWindow & /*test*/) {
    }};
    bool expertMode{true};
    bool startsConnected{true};
    /// Hundreds of calls that are all alike and change nothing in the window: the runs share one window.
    bool isRepeatable{false};
};

const std::vector<Path> &operatorPaths();
