// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every connection between the controls and their handlers, in one order.
#include "mainwindow.h"
#include "ui_mainwindow.h"

void MainWindow::wireTargetSelection()
{
    connect(ui->Principal_tab, &QTabWidget::currentChanged, this, &MainWindow::targetChanged);
}

void MainWindow::wireSlidersAndSpinBoxes()
{
    struct Row
    {
        const QObject *sender;
        const char *slot;
    };

    const Row sliders[]{
        {ui->gammaSlider, SLOT(GammaUserSliderChanged(int))},
        {ui->clheSlider, SLOT(ClheUserSliderChanged(int))},
        {ui->sharpeningGainSlider, SLOT(SharpeningUserSliderChanged(int))},
        {ui->SharpeningTHSlider, SLOT(SharpeningTHSliderChanged(int))},
        {ui->AhcBlackGainLimSlider, SLOT(AhcBlackGainlimSliderChanged(int))},
        {ui->AhcWhiteGainLimSlider, SLOT(AhcWhiteGainlimSliderChanged(int))},
        {ui->TempoFilterSlider, SLOT(TempoFilterSliderChanged(int))},
        {ui->gskSlider, SLOT(GSKExpertSliderChanged(int))},
        {ui->gfidSlider, SLOT(GFIDExpertSliderChanged(int))},
        {ui->gmsSlider, SLOT(GMSExpertSliderChanged(int))},
        {ui->tintSlider, SLOT(TINTExpertSliderChanged(int))},
    };
    for (const Row &row : sliders) {
        connect(row.sender, SIGNAL(valueChanged(int)), this, row.slot);
    }

    const Row userDoubleSpinBoxes[]{
        {ui->gammaEdit, SLOT(GammaUserValueChanged(double))},
        {ui->clheEdit, SLOT(ClheUserValueChanged(double))},
        {ui->sharpeningGainEdit, SLOT(SharpeningUserValueChanged(double))},
        {ui->SharpeningTHEdit, SLOT(SharpeningTHValueChanged(double))},
    };
    for (const Row &row : userDoubleSpinBoxes) {
        connect(row.sender, SIGNAL(valueChanged(double)), this, row.slot);
    }

    const Row spinBoxes[]{
        {ui->AhcBlackGainLimSpin, SLOT(AhcBlackGainLimSpinValueChanged(int))},
        {ui->AhcWhiteGainLimSpin, SLOT(AhcWhiteGainLimSpinValueChanged(int))},
        {ui->TempoFilterSpin, SLOT(TempoFiltSpinValueChanged(int))},
    };
    for (const Row &row : spinBoxes) {
        connect(row.sender, SIGNAL(valueChanged(int)), this, row.slot);
    }

    const Row expertDoubleSpinBoxes[]{
        {ui->gskEdit, SLOT(GSKExpertValueChanged(double))},
        {ui->gfidEdit, SLOT(GFIDExpertValueChanged(double))},
        {ui->gmsEdit, SLOT(GMSExpertValueChanged(double))},
        {ui->tintEdit, SLOT(TINTExpertValueChanged(double))},
    };
    for (const Row &row : expertDoubleSpinBoxes) {
        connect(row.sender, SIGNAL(valueChanged(double)), this, row.slot);
    }
}

void MainWindow::wireZoomFactor()
{
    // Neither the signal nor the slot exists: Qt warns and the factor stays without a handler of its own.
    // Configure Zoom is what sends a zoom.
    connect(ui->factorZoomEdit, SIGNAL(valueChanged(int)), this, SLOT(zoomChanged()));
}

void MainWindow::wireButtons()
{
    connect(ui->readParamButtonUser, &QPushButton::clicked, this, &MainWindow::readAllParameters);
    connect(ui->readParamButtonExpert, &QPushButton::clicked, this, &MainWindow::readParamsExpert);
    connect(ui->scanDeviceButton, &QPushButton::clicked, this, &MainWindow::scanDevice);
    connect(ui->connectDeviceButton, &QPushButton::clicked, this, &MainWindow::connectDevice);
    connect(ui->disconnectDeviceButton, &QPushButton::clicked, this, &MainWindow::disconnectDevice);
    connect(ui->AboutButton, &QPushButton::clicked, this, &MainWindow::createAboutWindow);
    connect(ui->clearLogButton, &QPushButton::clicked, ui->logView, &QPlainTextEdit::clear);
    connect(ui->saveParamButtonUser, &QPushButton::clicked, this, &MainWindow::saveBlendUnitUserClicked);
    connect(ui->configureZoomButton, &QPushButton::clicked, this, &MainWindow::configureZoomClicked);
    connect(ui->FusionConfigureZoomPB, &QPushButton::clicked, this, &MainWindow::configureZoomClicked);
    connect(ui->BU_IR_MODE_PB, &QPushButton::clicked, this, &MainWindow::irModeClicked);
    connect(ui->BU_VISIBLE_MODE_PB, &QPushButton::clicked, this, &MainWindow::visibleModeClicked);
    connect(ui->BU_FUSION_MODE_PB, &QPushButton::clicked, this, &MainWindow::fusionModeClicked);
    connect(ui->FusionWarpPB, &QPushButton::clicked, this, &MainWindow::fusionWarpClicked);
    connect(ui->saveParamFactoryPB, &QPushButton::clicked, this, &MainWindow::saveBlendUnitExpertClicked);
}

void MainWindow::wireCheckBoxes()
{
    connect(ui->roi1IncEnable, &QCheckBox::stateChanged, this, &MainWindow::roi1IncCheck);
    connect(ui->roi0ExcEnable, &QCheckBox::stateChanged, this, &MainWindow::roi0ExcCheck);
    connect(ui->roi1ExcEnable, &QCheckBox::stateChanged, this, &MainWindow::roi1ExcCheck);
    connect(ui->gainCheckBox, &QCheckBox::stateChanged, this, &MainWindow::gainControlChanged);
    connect(ui->BPRCheckBox, &QCheckBox::stateChanged, this, &MainWindow::bprControlChanged);
    connect(ui->offsetCheckBox, &QCheckBox::stateChanged, this, &MainWindow::offsetControlChanged);
}

void MainWindow::wireComboBoxes()
{
    constexpr auto indexChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(ui->BaudRateConnectCB, indexChanged, this, &MainWindow::ChangeBaudRate);
    connect(ui->VideoOutputCB, indexChanged, this, &MainWindow::videoOutputChanged);
    connect(ui->frameRateCB, indexChanged, this, &MainWindow::frameRateChanged);
    connect(ui->contrastTypeEdit, indexChanged, this, &MainWindow::contrastTypeChanged);
    connect(ui->lutColorEdit, indexChanged, this, &MainWindow::colorLutChanged);
    connect(ui->EdgeCorrectionCB, indexChanged, this, &MainWindow::edgeCorrectionChanged);
    connect(ui->methodZoomEdit, indexChanged, this, &MainWindow::configureZoomClicked);
    connect(ui->FusionWarpCB, indexChanged, this, &MainWindow::readFusionParamsExpert);
    connect(ui->startingModeCB, indexChanged, this, &MainWindow::startingModeChanged);
}

void MainWindow::wireVisibleChannel()
{
    for (const QSpinBox *const spinBox : {ui->VisAgcTargetSB, ui->VisAgcTHSB, ui->VisAgcCoeffSB}) {
        connect(spinBox, &QSpinBox::editingFinished, this, &MainWindow::visibleAgcChanged);
    }
    for (const QSpinBox *const spinBox : {ui->VisClheTHSB, ui->VisClheCoeffSB}) {
        connect(spinBox, &QSpinBox::editingFinished, this, &MainWindow::visibleClheChanged);
    }
}
