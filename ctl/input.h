// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a command reads: a file, a pipe or standard input.
#pragma once

#include <QByteArray>
#include <QFile>

#include <streambuf>
#include <string>

namespace ctl
{

/// Bytes as they come. All operations throw Failure, also where Ctrl-C comes while they wait; on Windows it
/// is heeded only once something has come.
class Input
{
public:
    /// The name of a file, or "-" for standard input, which has one reader at a time. What cannot be opened
    /// is wrong use.
    explicit Input(const std::string &fileName);
    ~Input();
    Input(const Input &) = delete;
    Input &operator=(const Input &) = delete;

    /// What messages call it: the file itself, or "standard input".
    static std::string nameOf(const std::string &fileName);
    /// The bytes of a file; 0 where nobody knows them beforehand.
    qint64 size() const { return file.size(); }

    /// What has come, and something of it at least; empty at the end.
    QByteArray read();
    /// A line with its line feed, or the beginning of a longer one, or the last one without a line feed;
    /// empty at the end.
    QByteArray readLine(int mostBytes);

private:
    bool open();

    const bool isStandardInput;
    const std::string name;
    QFile file;
    QByteArray ahead; ///< Read, but not yet a part of a line that was asked for.
};

/// The same bytes for whoever reads a stream.
class InputBuffer : public std::streambuf
{
public:
    /// The input outlives it.
    explicit InputBuffer(Input &itsInput) : input{itsInput} {}

    /// How many bytes the stream has taken out of the input.
    qint64 taken() const { return count; }

protected:
    int_type underflow() override;

private:
    Input &input;
    QByteArray bytes{};
    qint64 count{0};
};

} // namespace ctl
