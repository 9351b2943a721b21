// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The program as a process of its own.
#include "program.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QProcess>
#include <QProcessEnvironment>

#if defined(Q_OS_WIN)
#include <windows.h>
#endif

namespace
{

/// Waits until a process has ended; presses OK in the box that Windows shows for it, as an operator would.
bool waitForEnd(QProcess &process)
{
    constexpr int milliseconds{30000};
#if defined(Q_OS_WIN)
    constexpr int pause{100};
    QElapsedTimer time;
    time.start();
    while (!process.waitForFinished(pause) && !time.hasExpired(milliseconds)) {
        const HWND box{FindWindowW(L"#32770", L"Pilotel")};
        DWORD owner{0};
        if (box != nullptr && GetWindowThreadProcessId(box, &owner) != 0 && owner == process.processId()) {
            PostMessageW(box, WM_COMMAND, IDOK, 0);
        }
    }
    return process.state() == QProcess::NotRunning;
#else
    return process.waitForFinished(milliseconds);
#endif
}

} // namespace

QProcessEnvironment programEnvironment()
{
    QProcessEnvironment environment{QProcessEnvironment::systemEnvironment()};
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    // With its drive, since the program may run in a folder of another one.
    environment.insert("QT_PLUGIN_PATH", QFileInfo{PLUGIN_DIRECTORY}.absoluteFilePath());
    environment.insert("LC_ALL", "C.UTF-8");
    environment.remove("LD_LIBRARY_PATH");
    environment.remove("VELTRIX_SIMULATOR_LOG");
    environment.remove("PILOTEL_RECORD");
    return environment;
}

QString withLibrary(const QString &program, [[maybe_unused]] const QString &folder,
                    [[maybe_unused]] const QString &directory,
                    [[maybe_unused]] QProcessEnvironment &environment)
{
#if defined(Q_OS_WIN)
    const QString library{"/veltrix.sdk.dll"};
    const QString copy{directory + '/' + QFileInfo{program}.fileName()};
    const bool copied{QFile::copy(program, copy) && QFile::copy(folder + library, directory + library)};
    return copied ? copy : "nothing";
#else
    environment.insert("LD_LIBRARY_PATH", folder);
    return program;
#endif
}

Outcome run(const QString &program, const QStringList &arguments, const QProcessEnvironment &environment,
            const QString &directory)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(directory);
    process.start(program, arguments);
    const bool exited{waitForEnd(process) && process.exitStatus() == QProcess::NormalExit};
    return {exited, process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QStringList linesOf(const QString &fileName)
{
    QFile file{fileName};
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
}
