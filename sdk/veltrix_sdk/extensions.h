// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Optional functions that an SDK library may offer beside the contract.
#pragma once

namespace veltrix_sdk
{

/// Names of ports that the library can open beside the serial ports of the host: a null-terminated array
/// of NUL-terminated names, owned by the library, valid until the next call; never null itself.
using AdditionalPortsFunction = const char *const *(*)();

/// The C function to look up in the loaded library. The maker's library has no such function; its absence
/// means that the host's ports are all there are.
inline constexpr const char *additionalPortsSymbol = "veltrix_sdk_additional_ports";

} // namespace veltrix_sdk
