// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The connected window with a page of the camera in view.
#pragma once

#include "testwindow.h"

#include <QAbstractButton>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QWidget>

/// Connects, turns to the camera and shows one of its pages; the journal and the log of that are forgotten.
inline void openCameraPage(TestWindow &window, const QString &page)
{
    window.beConnected();
    window.showPage(QStringLiteral("Veltrix_KR_tab"));
    window.showPage(page);
    window.takeLog();
    window.takeCalls();
    if (!window.child<QWidget>(page).isVisible()) {
        QTest::qFail(qPrintable(page + QStringLiteral(" is not in view")), __FILE__, __LINE__);
    }
}

/// Clicks a button of a page that no installation shows.
inline void clickHidden(TestWindow &test, const QString &button)
{
    auto &itsButton = test.child<QAbstractButton>(button);
    QVERIFY(itsButton.isEnabled());
    itsButton.click();
}

/// Lets the last command be a refused one; the journal and the log of it are forgotten.
inline void letACommandFail(TestWindow &test)
{
    test.simulator.addFault({"setGamma"});
    test.invoke("gammaUserSendCommand");
    test.simulator.clearFaults();
    QVERIFY(!test.lastCommandOk());
    test.takeLog();
    test.simulator.clearJournal();
}

/// Runs the camera's read and returns its result.
inline bool readCamera(TestWindow &window)
{
    bool complete{false};
    if (!QMetaObject::invokeMethod(&window.window(), "readCameraParameters", Qt::DirectConnection,
                                   Q_RETURN_ARG(bool, complete))) {
        QTest::qFail("readCameraParameters cannot be run", __FILE__, __LINE__);
    }
    return complete;
}

/// The lines that begin with the label.
inline QStringList linesOf(const QStringList &log, const QString &label)
{
    QStringList lines;
    for (const QString &line : log) {
        if (line.startsWith(label)) {
            lines.append(line);
        }
    }
    return lines;
}

/// The calls that may change something in the device.
inline QStringList commandsOf(const QStringList &calls)
{
    QStringList commands;
    for (const QString &call : calls) {
        if (call.startsWith(QStringLiteral("set")) || call.startsWith(QStringLiteral("configure"))) {
            commands.append(call);
        }
    }
    return commands;
}
