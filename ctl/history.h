// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What was typed in the shell, kept from one run to the next.
#pragma once

#include <QString>

#include <string>
#include <vector>

namespace ctl
{

/// The lines in a file that only its owner reads. Where it cannot be read or written, there is no history and
/// not a word about it.
class History
{
public:
    /// The file of the user: pilotel/history where programs keep their state.
    static QString ownFile();

    explicit History(QString itsFile) : file{std::move(itsFile)} {}

    /// The lines of earlier runs, the last one last, at most 1000. Older ones are taken out of the file.
    std::vector<std::string> load();
    /// Keeps a line at once, so that it outlives a crash, and that of two shells each keeps its own. Not kept
    /// are an empty line, one with control characters, and the same line once more.
    void add(const std::string &line);

private:
    const QString file;
    std::string last{};
};

} // namespace ctl
