// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A process on a scenario, and the trace of all its calls.
#include "tracedrun.h"

#include <QFile>
#include <QIODevice>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace
{

/// What the program writes into the file that the variable names.
QByteArray writtenBy(const QString &program, const QStringList &arguments, const QString &scenario,
                     const QString &variable)
{
    const QTemporaryDir directory;
    const QString name{directory.filePath(QStringLiteral("calls.trace"))};
    QProcessEnvironment environment{QProcessEnvironment::systemEnvironment()};
    environment.insert(variable, name);
    environment.insert(QStringLiteral("VELTRIX_SIMULATOR_SCENARIO"), scenario);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(directory.path());
    process.start(program, arguments);
    QFile file{name};
    if (!process.waitForFinished(120000) || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return file.readAll();
}

} // namespace

QByteArray traceOf(const QString &program, const QStringList &arguments, const QString &scenario)
{
    return writtenBy(program, arguments, scenario, QStringLiteral("VELTRIX_SIMULATOR_TRACE"));
}

QByteArray recordingOf(const QString &program, const QStringList &arguments, const QString &scenario)
{
    return writtenBy(program, arguments, scenario, QStringLiteral("PILOTEL_RECORD"));
}

QByteArray traceOfCheck(const QString &scenario)
{
    return traceOf(QStringLiteral(SDK_CHECK),
                   {QStringLiteral("--port"), QStringLiteral("SIM1"), QStringLiteral("--write"),
                    QStringLiteral("--repeat"), QStringLiteral("2")},
                   scenario);
}

QByteArray withoutTimes(const QByteArray &trace)
{
    static const QRegularExpression times{
        QStringLiteral("(\"time\":\"[^\"]*Z\",?)|(\"microseconds\":\\d+,)")};
    return QString::fromUtf8(trace).remove(times).toUtf8();
}
