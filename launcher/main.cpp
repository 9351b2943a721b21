// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Starts the program that lies beside it. Without its device library the program ends before its own first
// line, and says so on a terminal only; this says it on the screen.
#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <cstdlib>
#include <unistd.h>

namespace
{

/// What the loader misses, a line for each library or symbol; nothing when the program can be started.
QStringList missingParts(const QString &program)
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
    const QStringList lines{QString::fromLocal8Bit(loader.readAll()).split('\n')};
    return lines.filter("=> not found") + lines.filter("undefined symbol");
}

QString explanation(const QStringList &missing, const QString &folder)
{
    const QString library{QStringLiteral("libveltrix.sdk.so")};
    if (missing.filter("=> not found").filter(library).isEmpty()) {
        return missing.filter("undefined symbol").filter("veltrix_sdk").isEmpty()
                   ? QStringLiteral("Pilotel cannot start: a library that it needs is missing.")
                   : QStringLiteral(
                         "Pilotel cannot start: %1 is not a delivery that this program was made for. Ask "
                         "the maker for the one that belongs to the camera.")
                         .arg(library);
    }
    return QStringLiteral(
               "Pilotel cannot start: the camera's library %1 was not found. Put it into the folder %2.")
        .arg(library, folder);
}

} // namespace

int main(int argc, char *argv[])
{
    const QFileInfo self{QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))};
    const QString program{self.absolutePath() + QStringLiteral("/pilotel")};
    QStringList missing{missingParts(program)};
    if (missing.isEmpty()) {
        const QByteArray path{QFile::encodeName(program)};
        execv(path.constData(), argv);
        missing.append(program);
    }

    const QApplication application{argc, argv};
    QMessageBox box{QMessageBox::Critical, QStringLiteral("Pilotel"),
                    explanation(missing, self.absolutePath())};
    box.setTextFormat(Qt::PlainText);
    box.setDetailedText(missing.join('\n'));
    box.exec();
    return EXIT_FAILURE;
}
