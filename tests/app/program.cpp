// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The program as a process of its own.
#include "program.h"

#include <QFile>
#include <QIODevice>
#include <QProcess>
#include <QProcessEnvironment>

QProcessEnvironment programEnvironment()
{
    QProcessEnvironment environment{QProcessEnvironment::systemEnvironment()};
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("QT_PLUGIN_PATH", PLUGIN_DIRECTORY);
    environment.insert("LC_ALL", "C.UTF-8");
    environment.remove("LD_LIBRARY_PATH");
    environment.remove("VELTRIX_SIMULATOR_LOG");
    return environment;
}

Outcome run(const QString &program, const QStringList &arguments, const QProcessEnvironment &environment,
            const QString &directory)
{
    constexpr int milliseconds{30000};
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(directory);
    process.start(program, arguments);
    const bool exited{process.waitForFinished(milliseconds) && process.exitStatus() == QProcess::NormalExit};
    return {exited, process.exitCode(), QString::fromLocal8Bit(process.readAllStandardOutput()),
            QString::fromLocal8Bit(process.readAllStandardError())};
}

QStringList linesOf(const QString &fileName)
{
    QFile file{fileName};
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
}
