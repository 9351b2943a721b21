// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A picture of what was read over a time.
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ctl
{

/// Gathers readings and has them drawn by the program pilotel-curves, so that only who wants a picture waits
/// for what that program loads.
class Plot
{
public:
    /// Finds that program, and makes sure that the file can be written; else a Failure of wrong use.
    explicit Plot(std::string itsFile);

    /// Takes one value of each curve; nothing where there was no answer. Of more readings than a picture can
    /// show, however long they go on, every second, then every fourth and so on is kept.
    void add(std::int64_t milliseconds, const std::vector<std::optional<double>> &values);

    /// Draws what was added under these names, and puts the picture into the file, as a whole or not at all.
    /// Nothing is drawn where nothing was added. Throws a Failure.
    void write(const std::string &title, const std::string &quantity, const std::vector<std::string> &names);

private:
    struct Reading
    {
        std::int64_t milliseconds;
        std::vector<std::optional<double>> values;
    };

    const std::string file;
    QString program{};
    std::vector<Reading> readings{};
    std::size_t offered{0};
    std::size_t stride{1}; ///< Every how manieth reading is kept.
};

} // namespace ctl
