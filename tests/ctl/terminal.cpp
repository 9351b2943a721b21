// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A program at a terminal of its own.
#include "terminal.h"

#include <QElapsedTimer>
#include <QFile>

#include <csignal>
#include <poll.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>
#include <vector>

namespace
{

constexpr int longestWait{10'000};

/// As execve() takes them; the texts outlive the pointers.
std::vector<char *> pointersTo(std::vector<QByteArray> &texts)
{
    std::vector<char *> pointers;
    pointers.reserve(texts.size() + 1);
    for (QByteArray &text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

Terminal::Terminal(const QString &program, const QStringList &arguments,
                   const QProcessEnvironment &environment)
{
    std::vector<QByteArray> words{QFile::encodeName(program)};
    for (const QString &argument : arguments) {
        words.push_back(argument.toUtf8());
    }
    std::vector<QByteArray> variables;
    QProcessEnvironment withTerminal{environment};
    withTerminal.insert("TERM", "xterm");
    for (const QString &variable : withTerminal.toStringList()) {
        variables.push_back(variable.toUtf8());
    }
    const std::vector<char *> wordPointers{pointersTo(words)};
    const std::vector<char *> variablePointers{pointersTo(variables)};
    const winsize size{50, 200, 0, 0};
    process = ::forkpty(&terminal, nullptr, nullptr, &size);
    if (process == 0) {
        ::execve(wordPointers.front(), wordPointers.data(), variablePointers.data());
        ::_exit(127);
    }
}

Terminal::~Terminal()
{
    if (process > 0) {
        ::kill(process, SIGKILL);
        ::waitpid(process, nullptr, 0);
    }
    ::close(terminal);
}

void Terminal::type(const QByteArray &keys) const
{
    if (::write(terminal, keys.constData(), static_cast<std::size_t>(keys.size())) != keys.size()) {
        qFatal("nothing can be typed");
    }
}

void Terminal::resize(int columns) const
{
    const winsize size{50, static_cast<unsigned short>(columns), 0, 0};
    ::ioctl(terminal, TIOCSWINSZ, &size);
}

void Terminal::send(int signal) const
{
    ::kill(process, signal);
}

bool Terminal::read(int milliseconds)
{
    pollfd ready{terminal, POLLIN, 0};
    if (::poll(&ready, 1, milliseconds) <= 0) {
        return true;
    }
    char buffer[4096];
    const ssize_t size{::read(terminal, buffer, sizeof buffer)};
    if (size <= 0) {
        return false;
    }
    shown.append(buffer, static_cast<int>(size));
    return true;
}

bool Terminal::waitFor(const QByteArray &text)
{
    QElapsedTimer timer;
    timer.start();
    while (!timer.hasExpired(longestWait)) {
        const int place{shown.indexOf(text, found)};
        if (place >= 0) {
            found = place + text.size();
            return true;
        }
        read(50);
    }
    return false;
}

bool Terminal::waitForKeyByKey()
{
    QElapsedTimer timer;
    timer.start();
    termios modes{};
    do {
        read(1);
        if (::tcgetattr(terminal, &modes) == 0 && (modes.c_lflag & ICANON) == 0) {
            return true;
        }
    } while (!timer.hasExpired(longestWait));
    return false;
}

int Terminal::end()
{
    QElapsedTimer timer;
    timer.start();
    // Its end closes the terminal, once everything is read.
    while (read(50)) {
        if (timer.hasExpired(longestWait)) {
            return -1;
        }
    }
    int status{0};
    ::waitpid(process, &status, 0);
    process = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
