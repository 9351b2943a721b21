// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Construction and destruction of the main window.
#include "mainwindow.h"

#include "dialog.h"
#include "mainwindowform.h"
#include "sdkentry.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/configuration.h"
#include "veltrix_sdk/sdk.h"

#include <QObject>

using namespace veltrix_sdk;

namespace
{

/// Never freed, on purpose: the SDK may still know the address after the window is gone.
template <typename Object>
Object *allocateForProcess()
{
    return new Object;
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow{parent}, ui{new Ui_MainWindow{}}, selectedPortInfo{allocateForProcess<QSerialPortInfo>()},
      deviceIdentity{allocateForProcess<std::uint8_t>()}
{
    IVeltrixSdk *const sdk{recording::sdkRoot()};
    sdk->initialize();
    ISdkConfiguration *const configuration{sdk->getConfiguration()};

    setUpForm(*ui, *this);
    // Nobody undoes a log; remembering every line for it would only cost time and memory.
    ui->logView->setUndoRedoEnabled(false);

    wireTargetSelection();
    wireSlidersAndSpinBoxes();
    wireRegions();
    wireZoomFactor();
    wireFinishedEdits();
    wireButtons();
    wireCheckBoxes();
    wireComboBoxes();
    wireVisibleChannel();

    removeWhatDoesNotApply(configuration->isExpertMode());
    ui->BaudRateConnectCB->setCurrentText(QString::number(configuration->getDefaultBaudRate()));
    ui->connectDeviceButton->setEnabled(false);
    ui->disconnectDeviceButton->setEnabled(false);
}

MainWindow::~MainWindow()
{
    // The base class destroys the widgets after the form holder is gone. A spin box that loses the focus then
    // would still run its handler, which uses the form holder.
    for (QObject *const child : findChildren<QObject *>()) {
        child->disconnect(this);
    }
    delete ui;
}

void MainWindow::removeWhatDoesNotApply(bool expertMode)
{
    constexpr int zoomPage{2};
    constexpr int badPixelsPage{3}; // Once the zoom page is gone.

    if (!expertMode) {
        ui->KR_tab->removeTab(ui->KR_tab->count() - 1);
        ui->Principal_tab->removeTab(ui->Principal_tab->count() - 1);
        ui->KrImageControlSection->hide();
        ui->FusionZoomGridLayout->hide();
    }

    // The administrator's group, the pages Zoom and Bad Pixels, the vertical flip and the MAVLink rate are
    // hidden in every installation, but from operators only. Their handlers stay connected: reads fill these
    // controls, and what fills some of them sends.
    ui->FusionAdministratorCommands->hide();
    ui->KR_tab->removeTab(zoomPage);
    ui->verticalFlipCheckBox->hide();
    ui->krBaudRateHLayout->hide();
    ui->KR_tab->removeTab(badPixelsPage);
}

void MainWindow::createAboutWindow()
{
    Dialog dialog{nullptr};
    dialog.setModal(true);
    dialog.exec();
}
