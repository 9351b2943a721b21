// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The console program that checks a delivery of the SDK library.
#include "check.h"
#include "commandline.h"
#include "escaped.h"
#include "interruption.h"
#include "portnames.h"
#include "veltrix_sdk/sdk.h"

#include <QCoreApplication>
#include <QSerialPortInfo>
#include <QString>
#include <QStringList>

#include <iostream>
#include <ostream>

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
    const CommandLine line = parseCommandLine(QCoreApplication::arguments());
    if (!line.error.isEmpty()) {
        std::cerr << sdk_check::escaped(line.error.toStdString()) << "\n\n"
                  << line.helpText.toStdString() << std::flush;
        return sdk_check::wrongUsage;
    }
    if (line.help) {
        std::cout << line.helpText.toStdString() << std::flush;
        return 0;
    }
    if (line.options.port.empty()) {
        listPorts(std::cout);
        return sdk_check::wrongUsage;
    }
    noteInterruptions();
    return sdk_check::check(veltrix_sdk::VeltrixSdk::get_instance(), line.options, std::cout, wasInterrupted);
}
