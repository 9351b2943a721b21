// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// One line of a recording as JSON. The headers of the parser take seconds to compile, so only
// recordedline.cpp sees them.
#pragma once

#include "recordings/recordingreader.h"

#include <string>
#include <string_view>

namespace veltrix_simulator
{

/// Why a line cannot be used, without a full stop.
struct LineError
{
    std::string reason;
};

/// What a line says. Throws a LineError. Takes any bytes.
RecordedLine parseRecordedLine(std::string_view text);

} // namespace veltrix_simulator
