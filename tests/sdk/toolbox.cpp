// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Compiler runs and header copies.
#include "toolbox.h"

#include <QDir>
#include <QFile>
#include <QIODevice>
#include <QProcess>

#include <algorithm>

Compilation compile(const QString &compiler, const QStringList &arguments, const QByteArray &source)
{
    QProcess process;
    process.start(compiler, arguments + QStringList{"-x", "c++", "-"});
    if (!process.waitForStarted()) {
        return {false, {}, QString{"%1: %2"}.arg(compiler, process.errorString())};
    }
    process.write(source);
    process.closeWriteChannel();
    constexpr int timeoutMilliseconds{120'000};
    if (!process.waitForFinished(timeoutMilliseconds)) {
        return {false, {}, QString{"%1: %2"}.arg(compiler, process.errorString())};
    }
    return {process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
            QString::fromLocal8Bit(process.readAllStandardOutput()),
            QString::fromLocal8Bit(process.readAllStandardError())};
}

bool copyHeaders(const QString &fromDirectory, const QString &toDirectory)
{
    const QDir from{fromDirectory + "/veltrix_sdk"};
    const QDir to{toDirectory + "/veltrix_sdk"};
    const QStringList names{from.entryList({"*.h"}, QDir::Files)};
    return !names.isEmpty() && to.mkpath(".") &&
           std::all_of(names.begin(), names.end(), [&](const QString &name) {
               return QFile::copy(from.filePath(name), to.filePath(name)) &&
                      QFile::setPermissions(to.filePath(name), QFile::ReadOwner | QFile::WriteOwner);
           });
}

bool replaceOnce(const QString &fileName, const QByteArray &before, const QByteArray &after)
{
    QFile file{fileName};
    if (!file.open(QIODevice::ReadWrite)) {
        return false;
    }
    QByteArray text{file.readAll()};
    if (text.count(before) != 1) {
        return false;
    }
    text.replace(before, after);
    return file.resize(0) && file.seek(0) && file.write(text) == text.size();
}
