// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The commands over one open connection, typed or from a file or a pipe.
#include "shell.h"

#include "commandline.h"
#include "completion.h"
#include "filenames.h"
#include "input.h"
#include "interruption.h"
#include "lineeditor.h"
#include "messages.h"

#include <QByteArray>

#include <cstddef>
#include <iostream>
#include <optional>

namespace ctl
{

namespace
{

constexpr const char *prompt{"pilotel> "};

/// How many bytes a line of a file may have, without its line feed.
constexpr int longestLine{100'000};

/// Runs one line; false when it asks for the end.
bool runLine(Session &session, const std::vector<std::string> &words, ExitStatus &status)
{
    if (words.size() == 1 && (words.front() == "exit" || words.front() == "quit")) {
        return false;
    }
    Arguments arguments;
    const Command command{parse(words, arguments, TypedIn::OurShell)};
    status = command ? command(session) : done;
    return true;
}

/// Somebody types: what fails is told, and the next line is waited for.
ExitStatus talk(Session &session)
{
    LineEditor editor{[&](const std::vector<std::string> &before, const std::string &begun) {
        return completions(session, before, begun, TypedIn::OurShell);
    }};
    ExitStatus status{done};
    while (const std::optional<std::string> line = editor.read(prompt)) {
        forgetCtrlC();
        try {
            const std::vector<std::string> words{wordsOf(*line)};
            if (!words.empty() && !runLine(session, words, status)) {
                return status;
            }
        } catch (const Failure &failure) {
            tell(failure.what());
            status = failure.status();
            if (status == noDevice) {
                // The next command looks whether it is back.
                session.close();
            }
        }
    }
    std::cout << std::endl;
    return status;
}

/// Lines from a file, a pipe or standard input, which have a name in messages.
ExitStatus runLines(Session &session, Input &lines, const std::string &name)
{
    ExitStatus status{done};
    for (int number{1}; status == done; ++number) {
        // Room for the line feed, and for a byte that is one too many.
        const QByteArray line{lines.readLine(longestLine + 2)};
        if (line.isEmpty()) {
            return status;
        }
        heedInterruption();
        const std::string place{name + std::to_string(number) + ": "};
        // What follows in the buffer is no line of its own: it may be the rest of a comment.
        if (line.size() - (line.endsWith('\n') ? 1 : 0) > longestLine) {
            throw Failure{wrongUse, place + "the line has more than " + std::to_string(longestLine) +
                                        " bytes; write shorter lines, one command each"};
        }
        try {
            const std::vector<std::string> words{wordsOf(line.toStdString())};
            if (!words.empty() && !runLine(session, words, status)) {
                return status;
            }
        } catch (const Failure &failure) {
            throw Failure{failure.status(), place + failure.what()};
        }
        if (status != done) {
            tell(place + "not all was well, so this is the last line that was run");
        }
    }
    return status;
}

} // namespace

std::vector<std::string> wordsOf(const std::string &line)
{
    std::vector<std::string> words;
    bool inWord{false};
    char quote{'\0'};
    for (const char letter : line) {
        const bool blank{letter == ' ' || letter == '\t' || letter == '\r' || letter == '\n'};
        if (quote != '\0') {
            if (letter == quote) {
                quote = '\0';
            } else {
                words.back() += letter;
            }
        } else if (blank) {
            inWord = false;
        } else if (letter == '#' && !inWord) {
            break;
        } else {
            if (!inWord) {
                words.emplace_back();
                inWord = true;
            }
            if (letter == '"' || letter == '\'') {
                quote = letter;
            } else {
                words.back() += letter;
            }
        }
    }
    if (quote != '\0') {
        throw Failure{wrongUse, std::string{"The quote "} + quote + " has no end."};
    }
    return words;
}

ExitStatus runShell(Session &session, const std::string &file)
{
    if (file.empty() && LineEditor::somebodyTypes()) {
        return talk(session);
    }
    Input lines{file.empty() ? "-" : file};
    return runLines(session, lines, file.empty() ? "line " : shownName(Input::nameOf(file)) + ':');
}

} // namespace ctl
