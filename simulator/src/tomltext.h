// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The TOML parser, set up for what strangers may hand in.
#pragma once

// Whole in our objects, so that the library stays one file; errors come as values; values nest a little only,
// since what nests deeply is parsed and freed by functions that call themselves.
#define TOML_HEADER_ONLY 1
#define TOML_EXCEPTIONS 0
#define TOML_ENABLE_FORMATTERS 0
#define TOML_MAX_NESTED_VALUES 8
#include <toml++/toml.h>
