// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A working directory of a test's own, for the files that the camera's tables are kept in.
#pragma once

#include <QDir>
#include <QString>
#include <QTemporaryDir>
#include <QTest>

/// While it lives, the process works in an empty directory.
class OwnDirectory
{
public:
    OwnDirectory() { QVERIFY(QDir::setCurrent(directory.path())); }
    ~OwnDirectory() { QDir::setCurrent(before); }
    OwnDirectory(const OwnDirectory &) = delete;
    OwnDirectory &operator=(const OwnDirectory &) = delete;

private:
    const QString before{QDir::currentPath()};
    // Below the one before, so that on Windows it is on the same drive, and names that begin with / stay what
    // they are.
    const QTemporaryDir directory{before + QStringLiteral("/XXXXXX")};
};
