// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The import and export mark of the simulator's own interface.
#pragma once

#if defined(_WIN32)
#if defined(VELTRIX_SDK_BUILD)
#define VELTRIX_SIMULATOR_EXPORT __declspec(dllexport)
#else
#define VELTRIX_SIMULATOR_EXPORT __declspec(dllimport)
#endif
#else
#define VELTRIX_SIMULATOR_EXPORT __attribute__((visibility("default")))
#endif
