// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What was typed in the shell, kept from one run to the next.
#include "history.h"

#include "output/wording.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>
#include <cstddef>

namespace ctl
{

namespace
{

constexpr std::size_t mostLines{1000};
constexpr std::size_t longestKept{10'000};
constexpr auto ownerOnly = QFile::ReadOwner | QFile::WriteOwner;

/// A damaged file must not send anything to the terminal.
bool isKept(const std::string &line)
{
    return !line.empty() && line.size() <= longestKept &&
           std::none_of(line.begin(), line.end(), veltrix_simulator::isControl);
}

void rewrite(const QString &name, const std::vector<std::string> &lines)
{
    QSaveFile target{name};
    if (target.open(QIODevice::WriteOnly) && target.setPermissions(ownerOnly)) {
        for (const std::string &line : lines) {
            target.write(QByteArray::fromStdString(line + '\n'));
        }
        target.commit();
    }
}

} // namespace

QString History::ownFile()
{
#if defined(_WIN32)
    const QString folder{QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)};
#else
    const QString given{QFile::decodeName(qgetenv("XDG_STATE_HOME"))};
    const QString folder{QDir::isAbsolutePath(given) ? given : QDir::homePath() + "/.local/state"};
#endif
    return folder + "/pilotel/history";
}

std::vector<std::string> History::load()
{
    constexpr qint64 mostBytes{10'000'000};
    QFile source{file};
    std::vector<std::string> lines;
    // What is no plain file, such as a pipe, would be waited for.
    if (!QFileInfo{file}.isFile() || !source.open(QIODevice::ReadOnly)) {
        return lines;
    }
    std::size_t found{0};
    const QByteArray text{source.read(mostBytes)};
    for (const QByteArray &line : text.split('\n')) {
        found += line.isEmpty() ? 0U : 1U;
        if (isKept(line.toStdString())) {
            lines.push_back(line.toStdString());
        }
    }
    if (lines.size() > mostLines) {
        lines.erase(lines.begin(), lines.end() - mostLines);
    }
    // A line without an end would become the beginning of the next.
    if (lines.size() != found || (!text.isEmpty() && !text.endsWith('\n'))) {
        rewrite(file, lines);
    }
    if (!lines.empty()) {
        last = lines.back();
    }
    return lines;
}

void History::add(const std::string &line)
{
    if (!isKept(line) || line == last) {
        return;
    }
    last = line;
    QDir{}.mkpath(QFileInfo{file}.path());
    QFile target{file};
    const bool isNew{!target.exists()};
    if ((isNew || QFileInfo{file}.isFile()) && target.open(QIODevice::WriteOnly | QIODevice::Append) &&
        (!isNew || target.setPermissions(ownerOnly))) {
        target.write(QByteArray::fromStdString(line + '\n'));
    }
}

} // namespace ctl
