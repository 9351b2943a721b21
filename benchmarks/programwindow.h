// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The main window with all that the program puts around it, as app/main.cpp does.
#pragma once

#include "appearance.h"
#include "fittedwindow.h"
#include "mainwindow.h"
#include "operatorinput.h"
#include "scaling.h"
#include "sdkentry.h"

#include <QApplication>
#include <QtGlobal>

#include <memory>

/// What the program does before it has an application object, but for what it writes.
inline void bringUpProgram()
{
    recording::sdkRoot()->initialize();
    constexpr const char *openGl{"QT_XCB_GL_INTEGRATION"};
    if (!qEnvironmentVariableIsSet(openGl)) {
        qputenv(openGl, "none");
    }
    followDesktopScaling();
}

/// The window, not shown yet, of an application that bringUpProgram() was called for.
class ProgramWindow
{
    // Before the window.
    struct Appearance
    {
        Appearance() { setAppearance(); }
    };
    Appearance appearance;
    OperatorInput operatorInput;

public:
    ProgramWindow()
    {
        QApplication::setWindowIcon(window.windowIcon());
        window.setSequenceObserver([this](bool running) { operatorInput.sequenceRuns(running); });
        fitted = fitToScreen(window);
    }

    MainWindow window;

private:
    std::unique_ptr<FittedWindow> fitted; ///< Null where the screen holds the window.
};
