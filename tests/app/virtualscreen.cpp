// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A screen of any size that nobody sees.
#include "virtualscreen.h"

#include <QElapsedTimer>
#include <QProcessEnvironment>
#include <QThread>

VirtualScreen::VirtualScreen(QSize size, int panelHeight)
{
    const QString screen{QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height())};
    // The server looks for a free number and writes it to its standard output. It keeps what is set while
    // nobody uses it.
    server.start(XVFB,
                 {"-displayfd", "1", "-screen", "0", screen, "-dpi", "100", "-noreset", "-nolisten", "tcp"});
    while (!server.canReadLine() && server.waitForReadyRead(30000)) {
    }
    const QString number{QString::fromLatin1(server.readLine()).trimmed()};
    if (number.isEmpty()) {
        return;
    }
    display = ':' + number;
    const int height{size.height() - panelHeight};
    if (!setProperty("_NET_WORKAREA", "32c", QStringLiteral("0, 0, %1, %2").arg(size.width()).arg(height))) {
        display.clear();
    }
}

bool VirtualScreen::tellDensity(int dotsPerInch) const
{
    return setProperty("RESOURCE_MANAGER", "8s", QStringLiteral("Xft.dpi:\t%1\n").arg(dotsPerInch));
}

QString VirtualScreen::classOfWindow(const QString &title) const
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 30000) {
        const Outcome outcome{ask(XPROP, {"-name", title, "WM_CLASS"})};
        if (outcome.exited && outcome.status == 0) {
            return outcome.output.trimmed();
        }
        QThread::msleep(50);
    }
    return {};
}

bool VirtualScreen::shows(const QString &title) const
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 30000) {
        if (ask(XWININFO, {"-name", title}).output.contains("Map State: IsViewable")) {
            return true;
        }
        QThread::msleep(50);
    }
    return false;
}

Outcome VirtualScreen::ask(const QString &tool, const QStringList &arguments) const
{
    QProcessEnvironment environment{programEnvironment()};
    environment.insert("DISPLAY", display);
    return run(tool, arguments, environment);
}

bool VirtualScreen::setProperty(const QString &name, const QString &format, const QString &value) const
{
    const Outcome outcome{ask(XPROP, {"-root", "-f", name, format, "-set", name, value})};
    return outcome.exited && outcome.status == 0;
}

VirtualScreen::~VirtualScreen()
{
    server.terminate();
    server.waitForFinished();
}
