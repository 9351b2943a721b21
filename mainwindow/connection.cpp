// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Discovery of ports, connection, device target and disconnection.
#include "mainwindow.h"
#include "messageboxes.h"
#include "portnames.h"
#include "sdkentry.h"
#include "sequence.h"
#include "sliderpair.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/configuration.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/device_manager.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"
#include "veltrix_sdk/sdk.h"

#include <QAbstractSpinBox>
#include <QIcon>
#include <QMessageBox>
#include <QSerialPortInfo>
#include <QSlider>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QWidget>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

using namespace veltrix_sdk;

namespace
{

void configureExpertSlider(QSlider &slider, std::int32_t minimum, std::int32_t maximum, std::int32_t value)
{
    slider.setRange(minimum, maximum);
    slider.setEnabled(true);
    slider.setOrientation(Qt::Horizontal);
    slider.setTickInterval(1);
    slider.setSingleStep(1);
    slider.setPageStep(10);
    slider.setValue(value);
}

} // namespace

ISdkConfiguration &MainWindow::sdkConfiguration()
{
    return *recording::sdkRoot()->getConfiguration();
}

void MainWindow::closeApply()
{
    recording::sdkRoot()->getConfiguration();
}

void MainWindow::scanDevice()
{
    serialPorts = QSerialPortInfo::availablePorts();
    const QStringList names{portNames(serialPorts)};

    ui->selectDeviceComboBox->clear();
    if (names.isEmpty()) {
        // The text's slip is part of the product.
        QMessageBox::warning(this, QString{},
                             tr("No COM port found!\nPlease, plug a COM port ans scan again."),
                             QMessageBox::Ok);
        return;
    }
    for (const QString &name : names) {
        ui->selectDeviceComboBox->addItem(QIcon{}, name, QVariant{});
    }
    // Whoever runs a library with ports of its own wants one of those, which stand behind the host's.
    if (names.size() > serialPorts.size()) {
        ui->selectDeviceComboBox->setCurrentIndex(serialPorts.size());
    }
    ui->connectDeviceButton->setEnabled(true);
    ui->selectDeviceComboBox->setEnabled(true);
}

void MainWindow::ChangeBaudRate()
{
    sdkConfiguration().setBaudRate(ui->BaudRateConnectCB->currentText().toInt());
}

bool MainWindow::isDeviceOpen() const
{
    // The device pointer outlives its device; the manager is held exactly until the device is returned.
    return device != nullptr && deviceManager != nullptr;
}

bool MainWindow::openCommunication(std::string port)
{
    // After a read that failed, the device is still open; after a port that gave no device, the manager is
    // still held. Both are returned before the next attempt.
    disconnectDevice();
    returnDevice();

    const char *const communicationType{sdkConfiguration().getCommunicationType()};
    if (communicationType == nullptr || communicationType != std::string_view{uartCommunication}) {
        showAboutBox(this, tr("Invalid communication"), tr("Select an other serial port"));
        return false;
    }
    portName = std::move(port);
    appendLog("ALTERNATIVE SERIAL PORT : " + portName);
    deviceManager = recording::sdkRoot()->getDeviceManager();
    device = deviceManager != nullptr ? deviceManager->openDevice(portName.c_str()) : nullptr;
    if (device == nullptr) {
        showAboutBox(this, tr("Invalid communication"), tr("Select an other serial port"));
        return false;
    }
    return true;
}

void MainWindow::connectDevice()
{
    const Sequence sequence{*this};
    if (!openCommunication(ui->selectDeviceComboBox->currentText().toStdString())) {
        return;
    }
    targetChanged(targetBlendUnit);
    *deviceIdentity = 0;
    if (device->connect(deviceIdentity) != 1 || *deviceIdentity != krIdentity) {
        appendLog("No camera connected");
        disconnectDevice();
        return;
    }
    if (readAllParameters()) {
        setConnectedControls(true);
    }
    updateTabAvailability();
    if (sdkConfiguration().isExpertMode()) {
        readParamsExpert();
    }
}

void MainWindow::disconnectDevice()
{
    if (!isDeviceOpen()) {
        return;
    }
    returnDevice();
    setConnectedControls(false);
}

void MainWindow::returnDevice()
{
    commitPendingEdit();
    if (isDeviceOpen()) {
        deviceManager->closeDevice(device);
    }
    if (deviceManager != nullptr) {
        recording::sdkRoot()->releaseDeviceManager(&deviceManager);
        deviceManager = nullptr;
    }
}

void MainWindow::commitPendingEdit()
{
    // Disabling the page takes the focus from the spin box, which reports its edit as finished: too late
    // for a device that is closed by then. What was stepped with the arrow keys counts as an edit as well,
    // so every box with the focus is asked, as any other change of the focus would.
    if (auto *const spinBox = qobject_cast<QAbstractSpinBox *>(focusWidget())) {
        spinBox->clearFocus();
    }
}

void MainWindow::setConnectedControls(bool connected)
{
    QWidget *const usedWhileDisconnected[]{
        ui->scanDeviceButton,
        ui->selectDeviceComboBox,
        ui->connectDeviceButton,
    };
    QWidget *const usedWhileConnected[]{
        ui->paramSection,        ui->disconnectDeviceButton, ui->resetParamButtonUser,
        ui->readParamButtonUser, ui->saveParamButtonUser,
    };
    for (QWidget *const widget : usedWhileDisconnected) {
        widget->setEnabled(!connected);
    }
    for (QWidget *const widget : usedWhileConnected) {
        widget->setEnabled(connected);
    }
}

void MainWindow::showNotConnectedBox()
{
    showAboutBox(this, tr("Camera not connected"),
                 tr("Unable to connect to %1").arg(QString::fromStdString(portName)));
}

bool MainWindow::tellNotConnected()
{
    if (isDeviceOpen()) {
        return false;
    }
    showNotConnectedBox();
    return true;
}

void MainWindow::targetChanged(int target)
{
    if (!isDeviceOpen()) {
        return;
    }
    // A page's place is its unit's target. The pages after the second are no unit: the device refuses them,
    // and the unit that was addressed last stays.
    lastCommandOk = device->setTarget(target);
    // The first line of a connect comes before its first command, the second one after the second command.
    paintLog();
    if (lastCommandOk) {
        readTemp(target);
        appendLog("target correctly changed");
    } else {
        // The text's slip is part of the product: whoever reads the log knows the line to the letter.
        appendLog("Could not changed target");
    }
}

bool MainWindow::readAllParameters()
{
    const Sequence sequence{*this};
    const int page{ui->Principal_tab->currentIndex()};
    targetChanged(targetBlendUnit);
    if (!readBlendUnitParameters()) {
        return false;
    }
    targetChanged(targetCamera);
    const bool cameraRead{readCameraParameters()};
    targetChanged(page);
    return cameraRead;
}

void MainWindow::readParamsExpert()
{
    const Sequence sequence{*this};
    const int page{ui->Principal_tab->currentIndex()};
    targetChanged(targetBlendUnit);
    readFusionParamsExpert();
    targetChanged(targetCamera);
    ReadKrParamsExpert();
    targetChanged(page);
}

void MainWindow::updateTabAvailability()
{
    const ConfigurationWords &words{sdkConfiguration().words};
    for (const SliderPair *const pair : pairsAt(SequencePlace::Expert)) {
        const ExpertWords &own{pair->words};
        const std::int32_t minimum{words.*own.minimum};
        const std::int32_t maximum{words.*own.maximum};
        const std::int32_t preset{words.*own.preset};
        configureExpertSlider(*(ui->*pair->slider), minimum, maximum, preset);
        std::visit(
            [&](auto box) {
                if (!own.boxKeepsItsRange) {
                    (ui->*box)->setRange(minimum, maximum);
                }
                (ui->*box)->setValue(preset);
                (ui->*box)->setSingleStep(1);
            },
            pair->spinBox);
    }
}
