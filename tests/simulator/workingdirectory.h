// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A directory that a test works in.
#pragma once

#include <QDir>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A working directory of its own, for as long as it lives.
class WorkingDirectory
{
public:
    WorkingDirectory() { QDir::setCurrent(directory.path()); }
    ~WorkingDirectory() { QDir::setCurrent(previous); }
    WorkingDirectory(const WorkingDirectory &) = delete;
    WorkingDirectory &operator=(const WorkingDirectory &) = delete;

    QStringList files() const { return QDir{directory.path()}.entryList(QDir::Files, QDir::Name); }

private:
    const QString previous{QDir::currentPath()};
    const QTemporaryDir directory;
};
