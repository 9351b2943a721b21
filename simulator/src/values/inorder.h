// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tables that are indexed by their enumeration.
#pragma once

#include <cstddef>

namespace veltrix_simulator
{

/// Whether each row stands at the place of its id.
template <typename Table>
constexpr bool inOrder(const Table &table)
{
    std::size_t place{0};
    for (const auto &row : table) {
        if (static_cast<std::size_t>(row.id) != place++) {
            return false;
        }
    }
    return true;
}

} // namespace veltrix_simulator
