// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The real main window on the simulated device, driven as an operator drives it.
#pragma once

#include "boxwatcher.h"
#include "mainwindow.h"
#include "veltrix_simulator/simulator.h"
#include "warningwatcher.h"

#include <QAbstractButton>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

/// A shown and active main window on a freshly powered simulator. Its destructor fails the test when a device
/// operation was called while no device was open, when a box or a Qt warning was left unannounced.
class TestWindow
{
public:
    /// Prepares the simulator before the window is built.
    using Preparation = std::function<void(veltrix_simulator::Simulator &)>;

    /// Whether the window is drawn. Drawing takes half of a session's time and changes no state of the
    /// window, so a test of many sessions that looks at no picture leaves it out.
    enum class Drawing
    {
        On,
        Off,
    };

    explicit TestWindow(const Preparation &prepare = {}, Drawing drawing = Drawing::On);
    ~TestWindow();
    TestWindow(const TestWindow &) = delete;
    TestWindow &operator=(const TestWindow &) = delete;

    veltrix_simulator::Simulator &simulator;
    WarningWatcher warnings;
    BoxWatcher boxes;

    MainWindow &window() { return *mainWindow; }
    /// Destroys the window while the test goes on.
    void destroyWindow() { mainWindow.reset(); }

    /// The child of that class and name; throws, printing the names that do exist, when there is none.
    template <typename Widget>
    Widget &child(const QString &name) const
    {
        if (auto *const found = mainWindow->findChild<Widget *>(name)) {
            return *found;
        }
        failToFind(name, mainWindow->findChildren<Widget *>());
    }

    /// Clicks a button in its middle as the mouse does; fails the test when it is hidden or disabled.
    void click(const QString &button) const;
    /// Scans, picks SIM1 and presses Connect.
    void scanAndConnect() const;
    /// As scanAndConnect(), and forgets the journal and the log of it.
    void beConnected();
    /// Shows the page with the given object name, as a click on its tab would.
    void showPage(const QString &page) const;
    /// Runs a handler by its name, as a signal would.
    void invoke(const char *handler);
    bool lastCommandOk() const { return mainWindow->wasLastCommandOk(); }

    /// Lines added to the log view since the last call.
    QStringList takeLog();
    /// Calls of the SDK since the last call, without log records.
    QStringList takeCalls();
    /// Calls of the SDK since the last call, log records included.
    QStringList takeCallsAndRecords();
    /// Names of the enabled widgets among those given.
    QStringList enabledOf(const QStringList &names) const;

private:
    [[noreturn]] static void failToFind(const QString &name, const std::vector<QObject *> &existing);
    template <typename List>
    [[noreturn]] static void failToFind(const QString &name, const List &existing)
    {
        failToFind(name, std::vector<QObject *>(existing.begin(), existing.end()));
    }
    QStringList takeJournal(bool withRecords);

    std::unique_ptr<MainWindow> mainWindow;
    int logLinesTaken{0};
};

/// Names that a scan offers: the host's serial ports, then those of the simulator.
QStringList scannedPorts(const QStringList &simulatorPorts = {QStringLiteral("SIM1")});
