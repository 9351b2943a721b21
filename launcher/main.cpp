// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Starts the program that lies beside it. Without a whole device library the program ends before its own
// first line, and says so on a terminal only; this says it on the screen.
#include <QApplication>
#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <cstdlib>
#include <unistd.h>

namespace
{

/// What the loader says against a start, a line each; nothing when the program can be started.
QStringList obstacles(const QString &program)
{
    QProcessEnvironment environment{QProcessEnvironment::systemEnvironment()};
    // The loader then looks for everything, tells, and does not start the program.
    for (const char *const variable : {"LD_TRACE_LOADED_OBJECTS", "LD_WARN", "LD_BIND_NOW"}) {
        environment.insert(variable, "1");
    }
    QProcess loader;
    loader.setProcessEnvironment(environment);
    loader.setProcessChannelMode(QProcess::MergedChannels);
    loader.start(program, QStringList{});
    loader.waitForFinished();
    QStringList lines{QString::fromLocal8Bit(loader.readAll()).split('\n', Qt::SkipEmptyParts)};
    // It goes on after what it does not find, but ends at a file that is no library or only a part of one.
    if (loader.error() == QProcess::FailedToStart || loader.exitStatus() != QProcess::NormalExit) {
        return lines << loader.errorString();
    }
    if (loader.exitCode() != 0) {
        return lines;
    }
    return lines.filter("=> not found") + lines.filter("not found (required by") +
           lines.filter("undefined symbol");
}

QString explanation(const QStringList &obstacles, const QFileInfo &program)
{
    if (!program.isExecutable()) {
        return QStringLiteral(
                   "Pilotel cannot start: the program %1 is not in the folder %2, or may not be run.")
            .arg(program.fileName(), program.absolutePath());
    }
    const QString library{QStringLiteral("libveltrix.sdk.so")};
    if (!obstacles.filter("=> not found").filter(library).isEmpty()) {
        return QStringLiteral(
                   "Pilotel cannot start: the camera's library %1 was not found. Put it into the folder %2.")
            .arg(library, program.absolutePath());
    }
    const bool isAnotherOne{!obstacles.filter("undefined symbol").filter("veltrix_sdk").isEmpty()};
    const bool isNoLibrary{!obstacles.filter(library + ": file too short").isEmpty() ||
                           !obstacles.filter(library + ": invalid ELF header").isEmpty()};
    if (isAnotherOne || isNoLibrary) {
        return QStringLiteral(
                   "Pilotel cannot start: %1 is not a delivery that this program was made for. Ask the maker "
                   "for the one that belongs to the camera.")
            .arg(library);
    }
    return QStringLiteral("Pilotel cannot start: a library that it needs is missing or cannot be used.");
}

} // namespace

int main(int argc, char *argv[])
{
    const QFileInfo self{QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))};
    const QFileInfo program{self.absolutePath() + QStringLiteral("/pilotel")};
    QByteArray path{QFile::encodeName(program.filePath())};
    // Qt names windows after it. A desktop tells by that name to which icon of its menu a window belongs.
    argv[0] = path.data();
    QStringList found{obstacles(program.filePath())};
    if (found.isEmpty()) {
        execv(path.constData(), argv);
        found.append(program.filePath());
    }

    const QApplication application{argc, argv};
    QMessageBox box{QMessageBox::Critical, QStringLiteral("Pilotel"), explanation(found, program)};
    box.setTextFormat(Qt::PlainText);
    box.setDetailedText(found.join('\n'));
    box.exec();
    return EXIT_FAILURE;
}
