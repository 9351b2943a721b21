// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every connection between the controls and their handlers, in one order.
#include "mainwindow.h"
#include "region.h"
#include "sliderpair.h"
#include "ui_mainwindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QObject>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QtGlobal>

#include <initializer_list>

void MainWindow::wireTargetSelection()
{
    connect(ui->Principal_tab, &QTabWidget::currentChanged, this, &MainWindow::targetChanged);
}

void MainWindow::wireSlidersAndSpinBoxes()
{
    // By text: the slots are private, so the rows can only name them. One kind of connection after the other.
    for (const SliderPair &pair : sliderPairs()) {
        connect(ui->*pair.slider, SIGNAL(valueChanged(int)), this, pair.sliderChanged);
    }
    for (const SliderPair &pair : sliderPairs()) {
        connect(ui->*pair.slider, SIGNAL(sliderReleased()), this, pair.send);
    }
    for (const SliderPair &pair : sliderPairs()) {
        connect(spinBoxOf(*ui, pair), valueChangedSignal(pair), this, pair.spinBoxChanged);
    }
}

void MainWindow::wireRegions()
{
    for (const Region region :
         {Region::Roi0Inclusive, Region::Roi1Inclusive, Region::Roi0Exclusive, Region::Roi1Exclusive}) {
        const RegionWidgets widgets{regionWidgets(*ui, region)};
        const int number{static_cast<int>(region)};
        connect(widgets.x1, &QSpinBox::editingFinished, this, [=] { x1RoiUserValueChanged(number); });
        connect(widgets.x2, &QSpinBox::editingFinished, this, [=] { x2RoiUserValueChanged(number); });
        connect(widgets.y1, &QSpinBox::editingFinished, this, [=] { y1RoiUserValueChanged(number); });
        connect(widgets.y2, &QSpinBox::editingFinished, this, [=] { y2RoiUserValueChanged(number); });
    }
}

void MainWindow::wireZoomFactor()
{
    // Neither the signal nor the slot exists: Qt warns at every start, and nothing is connected. Configure
    // Zoom is what sends a zoom.
    connect(ui->factorZoomEdit, SIGNAL(valueChanged(int)), this, SLOT(zoomChanged()));
}

void MainWindow::wireFinishedEdits()
{
    for (const SliderPair &pair : sliderPairs()) {
        connect(spinBoxOf(*ui, pair), SIGNAL(editingFinished()), this, pair.send);
    }
}

void MainWindow::wireButtons()
{
    // resetBPRTableButton and bpGraphicEditorButton have no handler; they stay because the form is the
    // product's.
    connect(ui->resetParamButtonUser, &QPushButton::clicked, this, &MainWindow::ResetParamsUser);
    connect(ui->readParamButtonUser, &QPushButton::clicked, this, &MainWindow::readAllParameters);
    connect(ui->readParamButtonExpert, &QPushButton::clicked, this, &MainWindow::readParamsExpert);
    connect(ui->scanDeviceButton, &QPushButton::clicked, this, &MainWindow::scanDevice);
    connect(ui->connectDeviceButton, &QPushButton::clicked, this, &MainWindow::connectDevice);
    connect(ui->disconnectDeviceButton, &QPushButton::clicked, this, &MainWindow::disconnectDevice);
    connect(ui->PermanentButton, &QPushButton::clicked, this, &MainWindow::changePermanentButtonText);
    connect(ui->AboutButton, &QPushButton::clicked, this, &MainWindow::createAboutWindow);
    connect(ui->clearLogButton, &QPushButton::clicked, ui->logView, &QPlainTextEdit::clear);
    connect(ui->saveParamButtonUser, &QPushButton::clicked, this, &MainWindow::saveBlendUnitUserClicked);
    connect(ui->ColumnCorrectionButton, &QPushButton::clicked, this, &MainWindow::columnCorrectionClicked);
    connect(ui->VignettingCorrectionButton, &QPushButton::clicked, this,
            &MainWindow::vignettingCorrectionClicked);
    connect(ui->sdiOutputButton, &QPushButton::clicked, this, &MainWindow::sdiOutputClicked);
    connect(ui->parallelOutputButton, &QPushButton::clicked, this, &MainWindow::parallelOutputClicked);
    connect(ui->mipiOutputButton, &QPushButton::clicked, this, &MainWindow::mipiOutputClicked);
    connect(ui->polarityButton, &QPushButton::clicked, this, &MainWindow::polarityClicked);
    connect(ui->horizontalFlipButton, &QPushButton::clicked, this, &MainWindow::horizontalFlipClicked);
    connect(ui->configureZoomButton, &QPushButton::clicked, this, &MainWindow::configureZoomClicked);
    connect(ui->FusionConfigureZoomPB, &QPushButton::clicked, this, &MainWindow::configureZoomClicked);
    connect(ui->readBPRTableButton, &QPushButton::clicked, this, &MainWindow::readBprTableClicked);
    connect(ui->writeBPRTableButton, &QPushButton::clicked, this, &MainWindow::writeBprTableClicked);
    connect(ui->addBadPixelButton, &QPushButton::clicked, this, &MainWindow::addBadPixelClicked);
    connect(ui->addBadPixelLineButton, &QPushButton::clicked, this, &MainWindow::addBadPixelLineClicked);
    connect(ui->addBadPixelColumnButton, &QPushButton::clicked, this, &MainWindow::addBadPixelColumnClicked);
    connect(ui->removeBadPixelButton, &QPushButton::clicked, this, &MainWindow::removeBadPixelClicked);
    connect(ui->removeBadPixelLineButton, &QPushButton::clicked, this,
            &MainWindow::removeBadPixelLineClicked);
    connect(ui->removeBadPixelColumnButton, &QPushButton::clicked, this,
            &MainWindow::removeBadPixelColumnClicked);
    connect(ui->BU_IR_MODE_PB, &QPushButton::clicked, this, &MainWindow::irModeClicked);
    connect(ui->BU_VISIBLE_MODE_PB, &QPushButton::clicked, this, &MainWindow::visibleModeClicked);
    connect(ui->BU_FUSION_MODE_PB, &QPushButton::clicked, this, &MainWindow::fusionModeClicked);
    connect(ui->FusionWarpPB, &QPushButton::clicked, this, &MainWindow::fusionWarpClicked);
    connect(ui->saveParamFactoryPB, &QPushButton::clicked, this, &MainWindow::saveBlendUnitExpertClicked);
}

void MainWindow::wireCheckBoxes()
{
    // verticalFlipCheckBox and checkBox have no handler; they stay because the form is the product's. The
    // first is sent with the expert parameters.
    connect(ui->roi1IncEnable, &QCheckBox::stateChanged, this, &MainWindow::roi1IncCheck);
    connect(ui->roi0ExcEnable, &QCheckBox::stateChanged, this, &MainWindow::roi0ExcCheck);
    connect(ui->roi1ExcEnable, &QCheckBox::stateChanged, this, &MainWindow::roi1ExcCheck);
    connect(ui->gainCheckBox, &QCheckBox::stateChanged, this, &MainWindow::gainControlChanged);
    connect(ui->BPRCheckBox, &QCheckBox::stateChanged, this, &MainWindow::bprControlChanged);
    connect(ui->offsetCheckBox, &QCheckBox::stateChanged, this, &MainWindow::offsetControlChanged);
}

void MainWindow::wireComboBoxes()
{
    // FusionZoomMethod has no handler; it stays because the form is the product's. Configure Zoom sends it.
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
    connect(ui->BaudRateCB, indexChanged, this, &MainWindow::krBaudRateChanged);
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
