// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A session of the monkey: a scenario, a window, and actions that are drawn or given.
#pragma once

#include "action.h"
#include "hand.h"
#include "operatorwindow.h"
#include "promises.h"
#include "reach.h"

#include <QString>

#include <memory>
#include <optional>

/// Plays a scenario. A window that was closed or destroyed is followed by another one, as the program is
/// started again, with the device switched on afresh.
class MonkeySession
{
public:
    /// `shipped NAME` or `generated SEED`.
    MonkeySession(const QString &scenario, Reach &itsReach);

    /// What is not as promised after the action; empty when all is well.
    QString act(const Action &action);
    /// A healthy connect at the end; what is not as promised.
    QString end();

    OperatorWindow &window() { return stage->test; }

private:
    struct Stage
    {
        Stage(const OperatorWindow::Preparation &prepare, OperatorWindow::Drawing drawing)
            : test{prepare, drawing}, hand{test}, promises{test}
        {}

        OperatorWindow test;
        Hand hand;
        Promises promises;
    };

    /// Destroys the window, which must call nothing; what is not as promised.
    QString endWindow();

    const OperatorWindow::Preparation prepare;
    const OperatorWindow::Drawing drawing;
    Reach &reach;
    std::optional<Stage> stage;
};
