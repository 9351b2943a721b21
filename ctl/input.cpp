// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a command reads: a file, a pipe or standard input.
#include "input.h"

#include "escaped.h"
#include "failure.h"
#include "filenames.h"
#include "session.h"

#include <QIODevice>
#include <QString>

#include <cstdio>
#include <utility>

#if !defined(_WIN32)
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <system_error>
#include <unistd.h>
#endif

namespace ctl
{

namespace
{

constexpr int portion{1 << 16};

/// Whether somebody reads standard input: the process has but one.
bool &standardInputIsTaken()
{
    static bool taken{false};
    return taken;
}

#if !defined(_WIN32)

/// Signals wait as long as it lives.
class SignalsWait
{
public:
    SignalsWait()
    {
        sigset_t all;
        ::sigfillset(&all);
        ::sigprocmask(SIG_BLOCK, &all, &outside);
    }
    ~SignalsWait() { ::sigprocmask(SIG_SETMASK, &outside, nullptr); }
    SignalsWait(const SignalsWait &) = delete;
    SignalsWait &operator=(const SignalsWait &) = delete;

    /// Those that waited before.
    sigset_t outside{};
};

/// Waits until there is something to read, or the end.
void waitFor(int descriptor)
{
    // A signal comes during the poll and nowhere else, so none is lost between the look at it and the poll.
    const SignalsWait wait;
    pollfd ready{descriptor, POLLIN, 0};
    do {
        heedInterruption();
        // A window that changes its size, and a program that goes on after Ctrl-Z, wake it as well.
    } while (::ppoll(&ready, 1, nullptr, &wait.outside) < 0 && errno == EINTR);
}

/// A pipe with a name, opened without waiting for who writes into it; -1 for anything else.
int openedPipe(const QString &name)
{
    const QByteArray path{QFile::encodeName(name)};
    std::error_code ignored;
    return std::filesystem::is_fifo(path.constData(), ignored)
               ? ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)
               : -1;
}

#endif

Failure notRead(const std::string &name, const std::string &reason)
{
    return Failure{wrongUse, shownName(name) + ": " + sdk_check::escaped(reason)};
}

} // namespace

Input::Input(const std::string &fileName)
    : isStandardInput{fileName == "-"}, name{nameOf(fileName)}, file{QString::fromStdString(fileName)}
{
    if (!open()) {
        throw notRead(name, file.errorString().toStdString());
    }
    if (isStandardInput && std::exchange(standardInputIsTaken(), true)) {
        throw Failure{wrongUse, name + ": the commands are read from there; name a file"};
    }
}

Input::~Input()
{
    if (isStandardInput) {
        standardInputIsTaken() = false;
    }
}

std::string Input::nameOf(const std::string &fileName)
{
    return fileName == "-" ? "standard input" : fileName;
}

bool Input::open()
{
    if (isStandardInput) {
        return file.open(stdin, QIODevice::ReadOnly);
    }
#if !defined(_WIN32)
    if (const int pipe{openedPipe(file.fileName())}; pipe >= 0) {
        return file.open(pipe, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    }
#endif
    return file.open(QIODevice::ReadOnly);
}

QByteArray Input::read()
{
#if defined(_WIN32)
    // A whole portion would be waited for.
    return file.readLine(portion);
#else
    QByteArray bytes{portion, Qt::Uninitialized};
    for (;;) {
        waitFor(file.handle());
        const ssize_t count{::read(file.handle(), bytes.data(), static_cast<std::size_t>(bytes.size()))};
        if (count >= 0) {
            bytes.truncate(static_cast<int>(count));
            return bytes;
        }
        // Another reader of the pipe was quicker.
        if (errno != EINTR && errno != EAGAIN) {
            throw notRead(name, std::strerror(errno));
        }
    }
#endif
}

QByteArray Input::readLine(int mostBytes)
{
    int end{ahead.indexOf('\n')};
    while (end < 0 && ahead.size() < mostBytes) {
        const int searched{ahead.size()};
        const QByteArray more{read()};
        if (more.isEmpty()) {
            return std::exchange(ahead, {});
        }
        ahead += more;
        end = ahead.indexOf('\n', searched);
    }
    const int length{end < 0 || end >= mostBytes ? mostBytes : end + 1};
    QByteArray line{ahead.left(length)};
    ahead.remove(0, length);
    return line;
}

InputBuffer::int_type InputBuffer::underflow()
{
    bytes = input.read();
    count += bytes.size();
    setg(bytes.data(), bytes.data(), bytes.data() + bytes.size());
    return bytes.isEmpty() ? traits_type::eof() : traits_type::to_int_type(bytes.front());
}

} // namespace ctl
