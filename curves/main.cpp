// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Draws curves: readings in JSON on standard input, a picture in PNG on standard output. pilotel-ctl starts
// it.
#include "drawing.h"
#include "readings.h"

#include <QApplication>
#include <QFile>
#include <QIODevice>
#include <QImage>
#include <QLocale>

#include <csignal>
#include <cstdio>
#include <iostream>
#include <optional>

namespace
{

/// No display is asked for, and nothing that is set for windows changes the picture.
void leaveTheDesktopAlone()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char *const name : {"QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE", "QT_SCALE_FACTOR",
                                   "QT_FONT_DPI", "QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR"}) {
        qunsetenv(name);
    }
    QLocale plain{QLocale::c()};
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    QLocale::setDefault(plain);
}

} // namespace

int main(int argc, char *argv[])
{
    // Ctrl-C ends the watching, and its curves are drawn all the same.
    std::signal(SIGINT, SIG_IGN);
    leaveTheDesktopAlone();
    const QApplication application{argc, argv};
    QFile in;
    QFile out;
    in.open(stdin, QIODevice::ReadOnly);
    out.open(stdout, QIODevice::WriteOnly);
    const std::optional<Readings> readings{parseReadings(in.readAll())};
    if (!readings) {
        std::cerr
            << "pilotel-curves: standard input has no readings to draw; pilotel-ctl watch --plot starts this "
               "program\n";
        return 2;
    }
    return draw(*readings).save(&out, "PNG") && out.flush() ? 0 : 1;
}
