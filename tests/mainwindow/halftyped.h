// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A spin box with a value typed into it and the edit not finished.
#pragma once

#include "testwindow.h"

#include <QSpinBox>
#include <QString>
#include <QTest>

/// Types 33 into a spin box of the Visible page and leaves the edit unfinished; the journal and the log of
/// that are forgotten.
inline void typeWithoutFinishing(TestWindow &test, const QString &name)
{
    test.showPage("Visible_tab");
    auto &spinBox = test.child<QSpinBox>(name);
    spinBox.setFocus();
    spinBox.selectAll();
    QTest::keyClicks(&spinBox, "33");
    if (!spinBox.hasFocus() || spinBox.text() != "33") {
        QTest::qFail(qPrintable(name + " does not take the keys"), __FILE__, __LINE__);
    }
    test.takeLog();
    test.simulator.clearJournal();
}
