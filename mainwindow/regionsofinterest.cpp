// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Regions of interest: the enable boxes, the coordinates and what they send.
#include "clickbehindbox.h"
#include "logtext.h"
#include "mainwindow.h"
#include "messageboxes.h"
#include "region.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/numbers.h"

#include <QByteArray>
#include <QCheckBox>
#include <QEvent>
#include <QObject>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QWidget>
#include <QtGlobal>

#include <array>
#include <cstdint>
#include <string>

using namespace veltrix_sdk;

/// One coordinate of a region, and the pair that is checked when it is edited.
struct RegionCoordinate
{
    QSpinBox *RegionWidgets::*spinBox;
    QSpinBox *RegionWidgets::*first;
    QSpinBox *RegionWidgets::*second;
    bool (IDeviceControl::*set)(std::uint32_t, std::int32_t, bool, bool, bool);
    const char *name;
    const char *orderText; ///< What the box says behind the number when the pair is in the wrong order.
};

namespace
{

constexpr const char *xOrderText{QT_TRANSLATE_NOOP("MainWindow", " X1 must be lower than ROI X2")};
constexpr const char *yOrderText{QT_TRANSLATE_NOOP("MainWindow", " Y1 must be lower than ROI Y2")};

constexpr RegionCoordinate x1Coordinate{
    &RegionWidgets::x1, &RegionWidgets::x1, &RegionWidgets::x2, &IDeviceControl::setRoiX1, "X1", xOrderText};
constexpr RegionCoordinate x2Coordinate{
    &RegionWidgets::x2, &RegionWidgets::x1, &RegionWidgets::x2, &IDeviceControl::setRoiX2, "X2", xOrderText};
constexpr RegionCoordinate y1Coordinate{
    &RegionWidgets::y1, &RegionWidgets::y1, &RegionWidgets::y2, &IDeviceControl::setRoiY1, "Y1", yOrderText};
constexpr RegionCoordinate y2Coordinate{
    &RegionWidgets::y2, &RegionWidgets::y1, &RegionWidgets::y2, &IDeviceControl::setRoiY2, "Y2", yOrderText};
/// In the order in which a region that is switched on or off sends them.
constexpr std::array coordinates{&x1Coordinate, &x2Coordinate, &y1Coordinate, &y2Coordinate};

/// While it lives, a control that loses the focus tells nobody. Who leaves a spin box for another one has the
/// focus there; a message box takes it, and that one would report an edit that nobody made. All else that
/// the control has to tell meanwhile it does tell.
class SilentFocusLoss : public QObject
{
public:
    explicit SilentFocusLoss(QWidget *focused)
    {
        if (focused != nullptr) {
            focused->installEventFilter(this);
        }
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::FocusOut) {
            return false;
        }
        const QSignalBlocker silence{watched};
        watched->event(event);
        return true;
    }
};

} // namespace

RegionWidgets regionWidgets(const Ui_MainWindow &ui, Region region)
{
    switch (region) {
    case Region::Roi0Inclusive:
        break;
    case Region::Roi1Inclusive:
        return {ui.Roi1IncX1, ui.Roi1IncX2, ui.Roi1IncY1, ui.Roi1IncY2, ui.roi1IncEnable};
    case Region::Roi0Exclusive:
        return {ui.Roi0ExcX1, ui.Roi0ExcX2, ui.Roi0ExcY1, ui.Roi0ExcY2, ui.roi0ExcEnable};
    case Region::Roi1Exclusive:
        return {ui.Roi1ExcX1, ui.Roi1ExcX2, ui.Roi1ExcY1, ui.Roi1ExcY2, ui.roi1ExcEnable};
    }
    return {ui.Roi0IncX1, ui.Roi0IncX2, ui.Roi0IncY1, ui.Roi0IncY2, nullptr};
}

void MainWindow::roi1IncCheck()
{
    enableRegion(Region::Roi1Inclusive);
}

void MainWindow::roi0ExcCheck()
{
    enableRegion(Region::Roi0Exclusive);
}

void MainWindow::roi1ExcCheck()
{
    enableRegion(Region::Roi1Exclusive);
}

void MainWindow::enableRegion(Region region)
{
    if (!isDeviceOpen()) {
        return;
    }
    const RegionWidgets widgets{regionWidgets(*ui, region)};
    const bool enabled{widgets.enable->isChecked()};
    for (QSpinBox *const spinBox : {widgets.x1, widgets.x2, widgets.y1, widgets.y2}) {
        // A box that is disabled passes the focus on and would report an edit that nobody made.
        const QSignalBlocker silence{spinBox};
        spinBox->setEnabled(enabled);
    }

    bool allOk{true};
    for (const RegionCoordinate *const coordinate : coordinates) {
        // A region that is off keeps its coordinates in the window; the camera gets zeros for it.
        const int pixels{enabled ? (widgets.*coordinate->spinBox)->value() : 0};
        const bool ok{sendRegionCoordinate(*coordinate, pixels, static_cast<int>(region))};
        allOk = allOk && ok;
        lastCommandOk = allOk;
    }
}

void MainWindow::x1RoiUserValueChanged(int roiNumber)
{
    finishRegionEdit(roiNumber, x1Coordinate);
}

void MainWindow::x2RoiUserValueChanged(int roiNumber)
{
    finishRegionEdit(roiNumber, x2Coordinate);
}

void MainWindow::y1RoiUserValueChanged(int roiNumber)
{
    finishRegionEdit(roiNumber, y1Coordinate);
}

void MainWindow::y2RoiUserValueChanged(int roiNumber)
{
    finishRegionEdit(roiNumber, y2Coordinate);
}

void MainWindow::finishRegionEdit(int roiNumber, const RegionCoordinate &coordinate)
{
    // The box below takes the focus from the spin box, which then reports its edit a second time.
    if (regionBoxOpen) {
        return;
    }
    int pixels{0};
    if (roiNumber >= 0 && static_cast<std::uint32_t>(roiNumber) < regionCount) {
        const RegionWidgets widgets{regionWidgets(*ui, static_cast<Region>(roiNumber))};
        QSpinBox *const first{widgets.*coordinate.first};
        const int last{(widgets.*coordinate.second)->value()};
        // What is sent is the value as the operator left it, also when the check moves the first one.
        pixels = (widgets.*coordinate.spinBox)->value();
        if (first->value() > last) {
            first->setValue(last);
            const QScopedValueRollback<bool> whileShown{regionBoxOpen, true};
            const SilentFocusLoss silence{focusWidget()};
            const ClickBehindBox click;
            // The number is looked up in the translation like the texts around it: one may have it in other
            // digits.
            showAboutBox(this, tr("ROI"),
                         tr("ROI ") + tr(QByteArray::number(roiNumber)) + tr(coordinate.orderText));
            click.boxClosed();
        }
    }
    if (isDeviceOpen()) {
        lastCommandOk = sendRegionCoordinate(coordinate, pixels, roiNumber);
        const std::string name{coordinate.name};
        appendLog(lastCommandOk ? joinText("Set ROI ", roiNumber, ' ', name, " value OK")
                                : "Set ROI " + name + " value KO");
    }
}

bool MainWindow::sendRegionCoordinate(const RegionCoordinate &coordinate, int pixels, int roiNumber)
{
    return (device->*coordinate.set)(static_cast<std::uint32_t>(pixels), roiNumber,
                                     ui->roi1IncEnable->isChecked(), ui->roi0ExcEnable->isChecked(),
                                     ui->roi1ExcEnable->isChecked());
}
