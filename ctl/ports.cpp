// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The ports that a device may be behind.
#include "ports.h"

#include "additionalports.h"
#include "portnames.h"

#include <QSerialPortInfo>
#include <QString>
#include <QStringList>

namespace ctl
{

namespace
{

std::vector<std::string> textsOf(const QStringList &names)
{
    std::vector<std::string> texts;
    for (const QString &name : names) {
        texts.push_back(name.toStdString());
    }
    return texts;
}

} // namespace

std::vector<std::string> allPorts()
{
    return textsOf(portNames(QSerialPortInfo::availablePorts()));
}

std::vector<std::string> likelyPorts()
{
    const QStringList offered{additionalPorts()};
    return offered.isEmpty() ? allPorts() : textsOf({offered.first()});
}

} // namespace ctl
