// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The command line of the check.
#include "commandline.h"

#include <QCommandLineOption>
#include <QCommandLineParser>

namespace
{

constexpr int mostRounds{10000};

constexpr const char *description{
    "Checks the library veltrix.sdk that this program finds, on the device behind a port: what answers as the\n"
    "contract demands, what does not, and how long each operation takes. Without --port it lists the ports.\n"
    "\n"
    "Without --write it only reads; of the commands it calls setBaudRate with the default, setTarget and\n"
    "startReading. With --write it sets each setting to another value and back. It never calls what outlasts\n"
    "the power of the device: saveBlendUnitParameters, setMavlinkBaudRate, processNucRequest, readBprTable,\n"
    "writeBprTable, addBadPixel, removeBadPixel.\n"
    "\n"
    "Exit status: 0 all hold, 1 something does not or the check was interrupted, 2 wrong usage or no port."};

/// The number of rounds; 0 when the text is none.
int roundsOf(const QString &text)
{
    bool isNumber{false};
    const int rounds{text.toInt(&isNumber)};
    return isNumber && rounds >= 1 && rounds <= mostRounds ? rounds : 0;
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    const QCommandLineOption port{"port", "The port of the device, such as COM3, ttyUSB0 or SIM1.", "name"};
    const QCommandLineOption write{
        "write",
        "Also sets each setting to another allowed value, reads it and puts back what was there, after Ctrl-C as well."};
    const QCommandLineOption repeat{
        "repeat", QString{"Reads everything so many times, 1 to %1; 3 if not given."}.arg(mostRounds),
        "count", "3"};
    const QCommandLineOption json{"json", "Writes one JSON document instead of lines."};
    const QCommandLineOption help{QStringList{"h", "help"}, "Shows this text."};

    QCommandLineParser parser;
    parser.setApplicationDescription(description);
    parser.addOptions({port, write, repeat, json, help});

    CommandLine line;
    const bool parsed{parser.parse(arguments)};
    line.helpText = parser.helpText();
    line.help = parsed && parser.isSet(help);
    line.options = {parser.value(port).toStdString(), parser.isSet(write), roundsOf(parser.value(repeat)),
                    parser.isSet(json)};
    if (!parsed) {
        line.error = parser.errorText();
    } else if (!parser.positionalArguments().isEmpty()) {
        line.error = "Not understood: " + parser.positionalArguments().join(' ');
    } else if (line.options.rounds == 0) {
        line.error = QString{"--repeat takes a number from 1 to %1."}.arg(mostRounds);
    } else if (parser.isSet(port) && line.options.port.empty()) {
        line.error = "--port takes the name of a port.";
    }
    return line;
}
