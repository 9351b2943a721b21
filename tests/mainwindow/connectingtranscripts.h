// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What is said while the window connects to a simulator in its power-on state.
#pragma once

#include "transcript.h"

/// Connect on the port SIM1, up to the open device.
Transcript opening();
/// The device target goes to the Blend Unit (0) or to the camera (1).
Transcript targetSwitchedTo(int target);
/// The device answers who it is.
Transcript identified();
/// The Blend Unit is read for the first time.
Transcript blendUnitRead();
/// The camera is read for the first time.
Transcript cameraRead();
/// The expert sliders take their ranges from the configuration, which is then asked for expert mode.
Transcript rangesTaken(bool expertMode);
/// Warp and camera expert parameters are read, between switches of the target, the last to the page in view.
Transcript expertRead(int page = 0);
/// The device and its manager are handed back.
Transcript returned();

/// A whole first connect with the Fusion page in view.
Transcript connecting(bool expertMode);

/// The box of a device that is not there, or that answers with zeros when it is asked for its versions.
constexpr const char *notConnectedBox{
    R"(window icon "Camera not connected" "Unable to connect to SIM1" [OK])"};
