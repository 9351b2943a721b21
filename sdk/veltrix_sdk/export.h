// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The import and export marks of the SDK library's boundary, and which ABI lies there.
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

// On Windows the library speaks Microsoft's ABI. The ABI of another compiler differs from it in two places of
// the contract: a record that is a result (device_control.h) and std::string (logger.h). Where this is
// defined, these are spelled out with what every compiler on 64-bit Windows passes alike.
#if defined(_WIN32) && !defined(_MSC_VER)
#if !defined(_WIN64)
#error "This compiler calls a 32-bit library of Microsoft's ABI in another way: build for 64-bit Windows"
#endif
#define VELTRIX_SDK_SPELLED_OUT
#endif
