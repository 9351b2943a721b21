// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The process entry: announces itself, brings the device SDK up and runs the main window.
#include "appearance.h"
#include "fittedwindow.h"
#include "mainwindow.h"
#include "operatorinput.h"
#include "scaling.h"
#include "sdkentry.h"
#include "veltrix_sdk/logger.h"
#include "veltrix_sdk/sdk.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QString>
#include <QVersionNumber>
#include <QtGlobal>

#include <cstdlib>
#include <iostream>
#include <string>

int main(int argc, char *argv[])
{
    using namespace veltrix_sdk;

    std::cout << "Start QT veltrix command application" << std::endl;
    recording::beginAsEnvironmentSays("pilotel");
    recording::sdkRoot()->initialize();

    const std::string qtVersion{QLibraryInfo::version().toString().toLocal8Bit().constData()};
    recording::LogRecord(severity_trace).stream() << "QT Version " << qtVersion;
    std::cout << "QT Version " << qtVersion << std::endl;

    const std::string buildKind{QLibraryInfo::isDebugBuild() ? "DEBUG" : "RELEASE"};
    recording::LogRecord(severity_trace).stream() << "QT Built in " << buildKind;
    std::cout << "QT Built in " << buildKind << std::endl;

    // In every build, whatever the line says: others read standard output and know it to the letter.
    const QString testLine{"Test log in debug"};
    std::cout << testLine.toUtf8().constData() << std::endl;

    // Widgets alone draw the window; unless told otherwise, Qt would load OpenGL on X11 for nothing.
    constexpr const char *openGl{"QT_XCB_GL_INTEGRATION"};
    if (!qEnvironmentVariableIsSet(openGl)) {
        qputenv(openGl, "none");
    }
    followDesktopScaling();
    const QApplication application{argc, argv};
    setAppearance();
    OperatorInput operatorInput;
    MainWindow window{nullptr};
    // For every window. To read its sizes once more would cost a twentieth of the start.
    QApplication::setWindowIcon(window.windowIcon());
    window.setSequenceObserver([&operatorInput](bool running) { operatorInput.sequenceRuns(running); });
    const auto fitted = fitToScreen(window);
    window.show();
    // Closed while it came up, it would leave a program that nobody sees and nobody can end.
    return window.isVisible() ? QApplication::exec() : EXIT_SUCCESS;
}
