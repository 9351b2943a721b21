// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the version words of the firmware say.
#pragma once

#include <cstdint>
#include <string>

namespace device_settings
{

// Each digit of a version is four bits of its word, shown in lower-case hexadecimal.

/// The RISC-V firmware of the camera, such as "2.1.4".
std::string cameraProcessorText(std::uint16_t word);
/// The FPGA of the camera with what its bits say about the build, such as "3.0.6 MIPI 60Hz".
std::string cameraFpgaText(std::uint16_t word);

/// The RISC-V firmware of the Blend Unit, such as "1.3.0 Beta2".
std::string blendUnitProcessorText(std::uint16_t word);
/// The FPGA of the Blend Unit, such as "2.1.0.4".
std::string blendUnitFpgaText(std::uint16_t word);

} // namespace device_settings
