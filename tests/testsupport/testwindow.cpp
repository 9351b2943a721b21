// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The real main window on the simulated device, driven as an operator drives it.
#include "testwindow.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLatin1Char>
#include <QPlainTextEdit>
#include <QSerialPortInfo>
#include <QString>
#include <QTabWidget>
#include <QTest>
#include <QWidget>

#include <iterator>
#include <stdexcept>

using veltrix_simulator::Call;
using veltrix_simulator::Interface;
using veltrix_simulator::Simulator;

namespace
{

QStringList existingNames(const std::vector<QObject *> &objects)
{
    QStringList names;
    for (const QObject *const object : objects) {
        if (!object->objectName().isEmpty()) {
            names.append(object->objectName());
        }
    }
    names.sort();
    return names;
}

} // namespace

TestWindow::TestWindow(const Preparation &prepare, Drawing drawing) : simulator{Simulator::instance()}
{
    simulator.reset();
    if (prepare) {
        prepare(simulator);
    }
    mainWindow = std::make_unique<MainWindow>();
    // The zoom factor's connection names a signal that does not exist.
    const QStringList constructionWarnings{warnings.take()};
    if (constructionWarnings.size() != 3 ||
        !constructionWarnings.first().startsWith(
            QStringLiteral("QObject::connect: No such signal QDoubleSpinBox::valueChanged(int)"))) {
        QTest::qFail(qPrintable(QStringLiteral("warnings at construction: ") +
                                constructionWarnings.join(QStringLiteral(" | "))),
                     __FILE__, __LINE__);
    }
    mainWindow->setUpdatesEnabled(drawing == Drawing::On);
    mainWindow->show();
    mainWindow->activateWindow();
    // Qt Test sleeps before it handles the events that make the window active.
    QCoreApplication::processEvents();
    if (!QTest::qWaitForWindowActive(mainWindow.get())) {
        QTest::qFail("the window did not become active", __FILE__, __LINE__);
    }
}

TestWindow::~TestWindow()
{
    mainWindow.reset();
    if (simulator.callsWhileNotOpen() != 0) {
        QTest::qFail("a device that is not open was called", __FILE__, __LINE__);
    }
    simulator.reset();
}

void TestWindow::failToFind(const QString &name, const std::vector<QObject *> &existing)
{
    const QString message{QStringLiteral("no child \"") + name + QStringLiteral("\"; there are: ") +
                          existingNames(existing).join(QStringLiteral(", "))};
    QTest::qFail(qPrintable(message), __FILE__, __LINE__);
    throw std::runtime_error{message.toStdString()};
}

void TestWindow::click(const QString &button) const
{
    auto &widget = child<QAbstractButton>(button);
    if (!widget.isVisible() || !widget.isEnabled()) {
        QTest::qFail(qPrintable(button + QStringLiteral(" cannot be clicked")), __FILE__, __LINE__);
        return;
    }
    QTest::mouseClick(&widget, Qt::LeftButton);
}

void TestWindow::scanAndConnect() const
{
    click(QStringLiteral("scanDeviceButton"));
    child<QComboBox>(QStringLiteral("selectDeviceComboBox")).setCurrentText(QStringLiteral("SIM1"));
    click(QStringLiteral("connectDeviceButton"));
}

void TestWindow::beConnected()
{
    scanAndConnect();
    if (!child<QWidget>(QStringLiteral("paramSection")).isEnabled()) {
        QTest::qFail("the window did not connect", __FILE__, __LINE__);
    }
    takeLog();
    simulator.clearJournal();
}

void TestWindow::showPage(const QString &page) const
{
    auto &widget = child<QWidget>(page);
    for (QWidget *parent = widget.parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
        if (auto *const tabs = qobject_cast<QTabWidget *>(parent)) {
            const int index{tabs->indexOf(&widget)};
            if (index < 0) {
                QTest::qFail(qPrintable(page + QStringLiteral(" is not a page of the window")), __FILE__,
                             __LINE__);
            }
            QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier,
                              tabs->tabBar()->tabRect(index).center());
            return;
        }
    }
}

void TestWindow::invoke(const char *handler)
{
    if (!QMetaObject::invokeMethod(mainWindow.get(), handler, Qt::DirectConnection)) {
        QTest::qFail(handler, __FILE__, __LINE__);
    }
}

QStringList TestWindow::takeLog()
{
    QStringList lines{
        child<QPlainTextEdit>(QStringLiteral("logView")).toPlainText().split(QLatin1Char{'\n'})};
    lines.removeLast();
    QStringList added{lines.mid(logLinesTaken)};
    logLinesTaken = lines.size();
    return added;
}

QStringList TestWindow::takeJournal(bool withRecords)
{
    QStringList calls;
    for (const Call &call : simulator.journal()) {
        if (withRecords || call.interface != Interface::Log) {
            calls.append(QString::fromStdString(call.text));
        }
    }
    simulator.clearJournal();
    return calls;
}

QStringList TestWindow::takeCalls()
{
    return takeJournal(false);
}

QStringList TestWindow::takeCallsAndRecords()
{
    return takeJournal(true);
}

QStringList TestWindow::enabledOf(const QStringList &names) const
{
    QStringList enabled;
    for (const QString &name : names) {
        if (child<QWidget>(name).isEnabledTo(mainWindow.get())) {
            enabled.append(name);
        }
    }
    return enabled;
}

QStringList scannedPorts(const QStringList &simulatorPorts)
{
    QStringList names;
    for (const QSerialPortInfo &port : QSerialPortInfo::availablePorts()) {
        names.append(port.portName());
    }
    return names + simulatorPorts;
}
