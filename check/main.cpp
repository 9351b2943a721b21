// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The console program that checks a delivery of the SDK library.
#include "check.h"
#include "commandline.h"
#include "escaped.h"
#include "interruption.h"
#include "portnames.h"
#include "programwords.h"
#include "sdkentry.h"
#include "telling.h"

#include <QCoreApplication>
#include <QSerialPortInfo>
#include <QString>
#include <QStringList>

#include <iostream>
#include <ostream>
#include <string>
#include <vector>

namespace
{

void listPorts(std::ostream &out)
{
    const QStringList names{portNames(QSerialPortInfo::availablePorts())};
    out << (names.isEmpty() ? "No port found. Plug one in, or name one:" : "Ports:") << '\n';
    for (const QString &name : names) {
        out << "  " << sdk_check::escaped(name.toStdString()) << '\n';
    }
    out << "To check the library on one of them: pilotel-sdk-check --port "
        << (names.isEmpty() ? "NAME" : sdk_check::escaped(names.last().toStdString()))
        << "\nMore: pilotel-sdk-check --help" << std::endl;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application{argc, argv};
    const CommandLine line{parseCommandLine(sdk_check::wordsBehindProgram())};
    if (!line.error.empty()) {
        sdk_check::tell("pilotel-sdk-check", line.error);
        return sdk_check::wrongUsage;
    }
    if (!line.help.empty()) {
        std::cout << line.help << std::flush;
        return sdk_check::allHold;
    }
    if (line.options.port.empty()) {
        listPorts(std::cout);
        return sdk_check::wrongUsage;
    }
    const std::string fault{recording::begin(recording::fileOf(line.recording), "pilotel-sdk-check")};
    if (!fault.empty()) {
        sdk_check::tell("pilotel-sdk-check", fault + ".");
        return sdk_check::wrongUsage;
    }
    noteInterruptions();
    return sdk_check::check(recording::sdkRoot(), line.options, std::cout, wasInterrupted);
}
