// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The import and export marks of the SDK library's boundary.
#pragma once

// VELTRIX_SDK_BUILD is defined by whoever builds a library behind this contract.
#if defined(_WIN32)
#if defined(VELTRIX_SDK_BUILD)
#define VELTRIX_SDK_EXPORT __declspec(dllexport)
#else
#define VELTRIX_SDK_EXPORT __declspec(dllimport)
#endif
#else
#define VELTRIX_SDK_EXPORT __attribute__((visibility("default")))
#endif
