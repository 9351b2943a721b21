// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Construction and destruction of the main window.
#include "mainwindow.h"

#include "dialog.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/configuration.h"
#include "veltrix_sdk/sdk.h"

#include <QObject>

using namespace veltrix_sdk;

namespace
{

/// Deliberately never freed.
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
    IVeltrixSdk *const sdk{VeltrixSdk::get_instance()};
    sdk->initialize();
    ISdkConfiguration *const configuration{sdk->getConfiguration()};

    ui->setupUi(this);
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
    // The base class destroys the widgets when the form holder is gone already; one that loses the focus
    // on the way would still report its edit to a handler.
    for (QObject *const child : findChildren<QObject *>()) {
        child->disconnect(this);
    }
    delete ui;
}

void MainWindow::removeWhatDoesNotApply(bool expertMode)
{
    if (!expertMode) {
        ui->KR_tab->removeTab(ui->KR_tab->count() - 1);
        ui->Principal_tab->removeTab(ui->Principal_tab->count() - 1);
        ui->KrImageControlSection->hide();
        ui->FusionZoomGridLayout->hide();
    }

    // Administration, zoom and bad pixels are hidden in every installation; their handlers stay connected.
    ui->FusionAdministratorCommands->hide();
    ui->KR_tab->removeTab(2);
    ui->verticalFlipCheckBox->hide();
    ui->krBaudRateHLayout->hide();
    ui->KR_tab->removeTab(3);
}

void MainWindow::createAboutWindow()
{
    Dialog dialog{nullptr};
    dialog.setModal(true);
    dialog.exec();
}
