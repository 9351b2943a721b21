// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Lines that somebody types, with history and completion where the system has an editor for them.
#pragma once

#include "history.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ctl
{

/// One at a time in a process.
class LineEditor
{
public:
    /// What a begun word can become behind the words before it.
    using Complete =
        std::function<std::vector<std::string>(const std::vector<std::string> &, const std::string &)>;

    explicit LineEditor(Complete complete);
    ~LineEditor();
    LineEditor(const LineEditor &) = delete;
    LineEditor &operator=(const LineEditor &) = delete;

    /// Whether standard input and output are a terminal.
    static bool somebodyTypes();

    /// The next line without its end; nothing at the end of the input.
    std::optional<std::string> read(const char *prompt);

private:
    History history{History::ownFile()};
};

} // namespace ctl
