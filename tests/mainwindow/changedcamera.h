// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A camera of which every value differs from the power-on state, and what is said while it is read.
#pragma once

#include "transcript.h"
#include "veltrix_simulator/simulator.h"

/// Gives the simulated camera values that all differ from the power-on state.
void changeCamera(veltrix_simulator::Simulator &simulator);

/// The read of the changed camera in a window that showed the power-on state before.
Transcript changedCameraRead();
