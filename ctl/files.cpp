// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Files that the commands write.
#include "files.h"

#include "calls/tracefile.h"
#include "escaped.h"
#include "filenames.h"

#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QSaveFile>
#include <QString>

namespace ctl
{

namespace
{

/// A device or a pipe would be replaced by a file.
bool isReplaced(const QString &name)
{
    const QFileInfo file{name};
    return !file.exists() || file.isFile() || file.isDir();
}

Failure notWritten(ExitStatus status, const std::string &file, const QIODevice &device)
{
    return Failure{status, shownName(file) + ": " + sdk_check::escaped(device.errorString().toStdString())};
}

/// A file by the path that leads there without links, whether it exists or not.
QString placeOf(const std::string &name)
{
    const QFileInfo file{QString::fromStdString(name)};
    return file.exists() ? file.canonicalFilePath()
                         : QFileInfo{file.absolutePath()}.canonicalFilePath() + '/' + file.fileName();
}

/// Whether there is a plain file that begins like one.
bool isRecording(const QString &name)
{
    using veltrix_simulator::traceBeginning;
    QFile file{name};
    // A pipe would wait for what is written there.
    return QFileInfo{name}.isFile() && file.open(QIODevice::ReadOnly) &&
           file.read(static_cast<qint64>(traceBeginning.size())).toStdString() == traceBeginning;
}

} // namespace

void refuseRecording(const std::string &file)
{
    if (isRecording(QString::fromStdString(file))) {
        throw Failure{wrongUse,
                      shownName(file) + ": this is a recording, and is left as it is; name another file"};
    }
}

void refuseRecording(const std::string &file, const std::string &recordingOfCalls)
{
    refuseRecording(file);
    if (!recordingOfCalls.empty() && placeOf(file) == placeOf(recordingOfCalls)) {
        throw Failure{wrongUse,
                      shownName(file) + ": the calls to the library are recorded there; name another file"};
    }
}

void tryToWrite(const std::string &file)
{
    refuseRecording(file);
    const QString name{QString::fromStdString(file)};
    if (!isReplaced(name)) {
        return;
    }
    QSaveFile trial{name};
    if (!trial.open(QIODevice::WriteOnly)) {
        throw notWritten(wrongUse, file, trial);
    }
    trial.cancelWriting();
}

void writeWhole(const std::string &file, const QByteArray &bytes, ExitStatus whenItFails)
{
    refuseRecording(file);
    const QString name{QString::fromStdString(file)};
    if (!isReplaced(name)) {
        QFile device{name};
        if (!device.open(QIODevice::WriteOnly | QIODevice::Unbuffered) ||
            device.write(bytes) != bytes.size()) {
            throw notWritten(whenItFails, file, device);
        }
        return;
    }
    QSaveFile target{name};
    if (!target.open(QIODevice::WriteOnly)) {
        throw notWritten(whenItFails, file, target);
    }
    target.write(bytes);
    // It fails also when writing did.
    if (!target.commit()) {
        throw notWritten(whenItFails, file, target);
    }
}

} // namespace ctl
