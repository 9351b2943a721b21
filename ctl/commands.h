// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the subcommands do. Each writes to standard output, throws a Failure where nothing more can be done,
// and else returns the exit status.
#pragma once

#include "failure.h"
#include "session.h"

#include <string>
#include <vector>

namespace ctl
{

ExitStatus listPorts();
/// Who the units are, and how they are.
ExitStatus showInfo(Session &session);

ExitStatus listSettings(Session &session, const std::vector<std::string> &names, bool json);
ExitStatus getSettings(Session &session, const std::vector<std::string> &names);
/// Takes texts such as "camera.gamma=2.2".
ExitStatus setSettings(Session &session, const std::vector<std::string> &assignments);

/// Writes every number that can be set, and those that the device derives from them.
ExitStatus saveProfile(Session &session, const std::string &file);
ExitStatus applyProfile(Session &session, const std::string &file, bool dryRun);
ExitStatus compareProfile(Session &session, const std::string &file);

/// Makes the settings of the units outlive their power: the user or the expert set.
ExitStatus storeSettings(Session &session, bool expert, const std::vector<Unit> &units);

} // namespace ctl
