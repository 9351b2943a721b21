// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What has to hold after each action of the monkey.
#pragma once

#include "action.h"
#include "asked.h"
#include "deviceside.h"
#include "loglines.h"
#include "operatorwindow.h"
#include "oracle.h"
#include "panel.h"
#include "sentcommand.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <vector>

/// Looks at a window from its construction on. What is not as promised is told in one line that begins with
/// its kind and a colon; empty when all is well.
class Promises
{
public:
    explicit Promises(OperatorWindow &itsTest);

    void before(const Action &action);
    QString after(const Action &action);
    /// What Qt has warned of since it was asked last, but for what is about the off-screen platform.
    QString checkWarnings() const;
    /// Connects to a camera that is well again, whatever was before, and compares all that comes of it.
    QString connectsAgain();

private:
    void watchWindow();
    void watchLog();
    /// Takes a picture of the window for the commands since the last one.
    void lookAt();
    void followDevice();
    LoggedTexts loggedTexts() const;
    QString checkCalls() const;
    QString checkLog(const Action &action);
    QString checkRecords(const Action &action) const;
    QString checkView();
    QString checkAsked() const;
    bool scriptRanInBox(const Action &action) const;
    QString checkFinishedEdit(const Action &action) const;
    QString checkSent(const Action &action) const;
    QString compareWithOracle(const Action &action);
    QString compareAll(Oracle &oracle);
    QStringList sentCommands() const;
    bool isByTheBook(const Action &action) const;

    OperatorWindow &test;
    DeviceSide device;
    const Panel atStart;

    // Of the action that is under way.
    Asked asked;
    QString boxAnswer{Action{}.box};
    QString leftBox;     ///< The spin box that had the focus and sends when it is left.
    bool wasOpen{false}; ///< The device, before the action.
    QStringList shownBoxes;
    bool byTheBook{false}; ///< The oracle knows all that comes of the action.
    Panel shownBefore;
    Session sessionBefore;
    std::vector<Picture> pictures;
    QStringList portsBefore; ///< That could be chosen.
    bool logWasCleared{false};
    std::size_t clearedAt{0};       ///< In the journal.
    std::vector<std::size_t> scans; ///< Lengths of the journal when ports were offered.

    // Of the log view after the last action.
    int blocks{1};
    int characters{1};
    QObject context; ///< Of the connections.
};
