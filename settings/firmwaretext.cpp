// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the version words of the firmware say.
#include "firmwaretext.h"

#include <string_view>

namespace device_settings
{

namespace
{

/// The digits from the first place to the last one with dots between them; place 3 is the most significant.
std::string dotted(std::uint16_t word, unsigned first, unsigned last)
{
    constexpr std::string_view digits{"0123456789abcdef"};
    std::string text;
    for (unsigned place{first + 1}; place-- > last;) {
        text += text.empty() ? "" : ".";
        text += digits[(static_cast<unsigned>(word) >> (4 * place)) & 0xfU];
    }
    return text;
}

} // namespace

std::string cameraProcessorText(std::uint16_t word)
{
    return dotted(word, 2, 0);
}

std::string cameraFpgaText(std::uint16_t word)
{
    const bool nineHertz{(word & 0x1000U) != 0};
    const bool mipi{(word & 0x2000U) != 0};
    return dotted(word, 2, 0) + (mipi ? " MIPI" : "") + (nineHertz ? " 9Hz" : " 60Hz");
}

std::string blendUnitProcessorText(std::uint16_t word)
{
    return dotted(word, 3, 1) + " Beta" + dotted(word, 0, 0);
}

std::string blendUnitFpgaText(std::uint16_t word)
{
    return dotted(word, 3, 0);
}

} // namespace device_settings
