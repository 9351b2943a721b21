// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The command line as a console program takes it.
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace sdk_check
{

/// The words behind the name of the program, in UTF-8 on every system. There is a QCoreApplication.
inline std::vector<std::string> wordsBehindProgram()
{
    std::vector<std::string> words;
    for (const QString &argument : QCoreApplication::arguments().mid(1)) {
        words.push_back(argument.toStdString());
    }
    return words;
}

} // namespace sdk_check
