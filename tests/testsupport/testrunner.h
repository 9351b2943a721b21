// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What every test program does: runs one of its test classes, or all of them.
#pragma once

/// Does what the arguments of the application object ask for. The answer is the program's: 0 when every test
/// passed.
int runTests();
