// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The ways in which a call of the SDK can go wrong.
#pragma once

#include "veltrix_simulator/simulator.h"

#include <QString>

#include <cstddef>
#include <vector>

/// One thing that goes wrong in the course of a path.
struct Strike
{
    QString name;     ///< Such as `call 12, getGamma: refused`.
    std::size_t step; ///< Place in the path's journal of the call that is struck first.
    veltrix_simulator::Fault fault;
};

/// Whether the call gives something that can be refused: not the objects that the SDK always hands out, not
/// what gives nothing back.
bool canFail(const veltrix_simulator::Call &call);

/// Everything that can go wrong with a path that makes these calls, call by call.
std::vector<Strike> strikesOn(const std::vector<veltrix_simulator::Call> &journal);
