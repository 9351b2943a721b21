// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The console program for the settings of the camera.
#include "commandline.h"
#include "completion.h"
#include "failure.h"
#include "interruption.h"
#include "messages.h"
#include "programwords.h"
#include "sdkentry.h"
#include "session.h"
#include "telling.h"

#include <QCoreApplication>

#include <iostream>
#include <string>
#include <vector>

namespace
{

/// Writes what the last of the words can become, for Bash; docs/command-line.md says how it is set up.
int complete(const std::vector<std::string> &words)
{
    ctl::Session session{{}};
    std::vector<std::string> before{words};
    std::string begun;
    if (!before.empty()) {
        begun = before.back();
        before.pop_back();
    }
    for (const std::string &word : ctl::completions(session, before, begun, ctl::TypedIn::Bash)) {
        std::cout << word << '\n';
    }
    return ctl::done;
}

/// What was answered is of no use when it did not arrive; a reader that has seen enough is none of our
/// concern.
int statusWithOutput(int status)
{
    if (sdk_check::outputUntilNow() != sdk_check::Output::Lost) {
        return status;
    }
    ctl::tell("Standard output could not be written.");
    return status == ctl::done ? ctl::wrongUse : status;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application{argc, argv};
    noteInterruptions();
    const std::vector<std::string> words{sdk_check::wordsBehindProgram()};
    try {
        if (!words.empty() && words.front() == "--complete") {
            return statusWithOutput(complete({words.begin() + 1, words.end()}));
        }
        ctl::Arguments arguments;
        const ctl::Command command{ctl::parse(words, arguments, ctl::TypedIn::Bash)};
        if (!command) {
            return statusWithOutput(ctl::done);
        }
        arguments.link.recording = recording::fileOf(arguments.link.recording);
        ctl::Session session{arguments.link};
        return statusWithOutput(command(session));
    } catch (const ctl::Failure &failure) {
        ctl::tell(failure.what());
        return failure.status();
    }
}
