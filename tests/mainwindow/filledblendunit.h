// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A Blend Unit with values of its own, and its reads as the tests of it call them.
#pragma once

#include "testwindow.h"

#include <QString>

/// Gives the Blend Unit values of which no two are alike. Zoom method and starting mode stay as they are at
/// power-on, so that a connected window which reads them sends nothing back.
void fillBlendUnit(veltrix_simulator::Simulator &simulator);

/// Reads the whole Blend Unit by the handler's name; its answer, false when the read was given up.
bool readBlendUnit(TestWindow &test);

/// Reads the zoom by the handler's name: 0 of the infrared side, 2 of the fusion.
void readZoom(TestWindow &test, int selector);

/// The text of a text box.
QString textOf(const TestWindow &test, const char *box);
