// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The console program as a test runs it.
#include "ctlrun.h"

#include <QByteArray>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QProcess>
#include <QRegularExpression>

namespace
{

QString textOf(const QJsonValue &value)
{
    return QString::fromUtf8(QJsonDocument{QJsonArray{value}}.toJson(QJsonDocument::Compact))
        .mid(1)
        .chopped(1);
}

} // namespace

CtlFolder::CtlFolder(const QString &scenario) : environment{programEnvironment()}
{
    environment.insert("VELTRIX_SIMULATOR_SCENARIO", scenario);
    environment.insert("VELTRIX_SIMULATOR_TRACE", path("trace.json"));
    environment.insert("XDG_STATE_HOME", path("state"));
    environment.remove("NO_COLOR");
}

void CtlFolder::play(const QString &text)
{
    write("camera.toml", text.toUtf8());
    environment.insert("VELTRIX_SIMULATOR_SCENARIO", path("camera.toml"));
}

void CtlFolder::write(const QString &file, const QByteArray &text) const
{
    QFile target{path(file)};
    if (!target.open(QIODevice::WriteOnly) || target.write(text) != text.size()) {
        qFatal("%s cannot be written", qPrintable(file));
    }
}

QByteArray CtlFolder::read(const QString &file) const
{
    QFile source{path(file)};
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray{};
}

bool CtlFolder::has(const QString &file) const
{
    return QFile::exists(path(file));
}

Outcome CtlFolder::run(const QStringList &arguments)
{
    QFile::remove(path("trace.json"));
    Outcome outcome{::run(CTL, arguments, environment, directory.path())};
    outcome.errors.remove(QRegularExpression{"^veltrix.sdk: .*: this fault never happened\n",
                                             QRegularExpression::MultilineOption});
    return outcome;
}

Outcome CtlFolder::runReading(const QString &file, const QStringList &arguments)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(directory.path());
    process.setStandardInputFile(path(file));
    process.start(CTL, arguments);
    const bool exited{process.waitForFinished() && process.exitStatus() == QProcess::NormalExit};
    return {exited, process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QStringList CtlFolder::calls() const
{
    QStringList calls;
    for (const QByteArray &line : read("trace.json").split('\n')) {
        const QJsonObject call{QJsonDocument::fromJson(line).object()};
        if (!call.contains("operation")) {
            continue;
        }
        QStringList arguments;
        const QJsonArray given = call["arguments"].toArray();
        for (const QJsonValue &argument : given) {
            arguments.append(textOf(argument));
        }
        calls.append(call["operation"].toString() + '(' + arguments.join(", ") + ')');
    }
    return calls;
}

QStringList CtlFolder::commands() const
{
    QStringList commands{calls().filter(QRegularExpression{"^(set|configure|save|read|write|add|remove)"})};
    commands = commands.filter(QRegularExpression{"^(?!setTarget|setBaudRate|setConfiguration)"});
    return commands;
}

QString lines(const QStringList &each)
{
    return each.isEmpty() ? QString{} : each.join('\n') + '\n';
}
