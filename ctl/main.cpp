// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The console program for the settings of the camera.
#include "commandline.h"
#include "failure.h"
#include "interruption.h"
#include "messages.h"
#include "session.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace
{

std::vector<std::string> wordsOf(const QStringList &arguments)
{
    std::vector<std::string> words;
    for (const QString &argument : arguments.mid(1)) {
        words.push_back(argument.toStdString());
    }
    return words;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application{argc, argv};
    noteInterruptions();
    try {
        ctl::Arguments arguments;
        const ctl::Command command{ctl::parse(wordsOf(QCoreApplication::arguments()), arguments)};
        if (!command) {
            return ctl::done;
        }
        ctl::Session session{arguments.link};
        return command(session);
    } catch (const ctl::Failure &failure) {
        ctl::tell(failure.what());
        return failure.status();
    }
}
