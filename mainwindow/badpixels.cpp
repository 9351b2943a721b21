// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Bad pixels: the transfer of the replacement table and the declaration of pixels, lines and columns.
#include "logtext.h"
#include "mainwindow.h"
#include "messageboxes.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/device_control.h"

using namespace veltrix_sdk;

/// A transfer of the bad pixel replacement table between the camera and the file beside the program.
struct BprTransfer
{
    bool (IDeviceControl::*transfer)(std::uint32_t, std::uint32_t, std::uint8_t);
    std::uint8_t code;
    const char *failure;
    const char *beforeFileName;
    const char *afterFileName;
};

/// Declaring bad pixels, or withdrawing them.
struct PixelDeclaration
{
    bool (IDeviceControl::*declare)(std::uint32_t, std::uint32_t);
    const char *accepted; ///< Ends the line about a pixel that was accepted.
    const char *refused;  ///< Begins the line about a pixel that was refused.
};

namespace
{

constexpr int sensorColumns{640};
constexpr int sensorRows{480};
constexpr std::uint32_t firstTransferNumber{4096};
constexpr std::uint32_t secondTransferNumber{16384};

constexpr BprTransfer readTable{
    &IDeviceControl::readBprTable,   9,   QT_TRANSLATE_NOOP("MainWindow", "BPR table not read correctly"),
    "BPR table correctly saved to ", ".",
};
constexpr BprTransfer writeTable{
    &IDeviceControl::writeBprTable,
    8,
    QT_TRANSLATE_NOOP("MainWindow", "BPR table not write correctly"),
    "BPR table ",
    " correctly written.",
};

constexpr PixelDeclaration addPixel{&IDeviceControl::addBadPixel, " correctly added.",
                                    "Unable to add pixel X:"};
constexpr PixelDeclaration removePixel{&IDeviceControl::removeBadPixel, " correctly removed.",
                                       "Unable to remove pixel X:"};

} // namespace

void MainWindow::readBprTableClicked()
{
    transferBprTable(readTable);
}

void MainWindow::writeBprTableClicked()
{
    transferBprTable(writeTable);
}

void MainWindow::transferBprTable(const BprTransfer &transfer)
{
    if (tellNotConnected()) {
        return;
    }
    if (!(device->*transfer.transfer)(firstTransferNumber, secondTransferNumber, transfer.code)) {
        showAboutBox(this, tr("BPR table"), tr(transfer.failure));
        if (!isDeviceOpen()) {
            return;
        }
    }
    // Told also after a failure, which the box has told before.
    appendLog(joinText(transfer.beforeFileName, "bpr_SN", device->getSerialNumber(), ".bin",
                       transfer.afterFileName));
}

void MainWindow::addBadPixelClicked()
{
    declareSingle(addPixel);
}

void MainWindow::addBadPixelLineClicked()
{
    declareLine(addPixel);
}

void MainWindow::addBadPixelColumnClicked()
{
    declareColumn(addPixel);
}

void MainWindow::removeBadPixelClicked()
{
    declareSingle(removePixel);
}

void MainWindow::removeBadPixelLineClicked()
{
    declareLine(removePixel);
}

void MainWindow::removeBadPixelColumnClicked()
{
    declareColumn(removePixel);
}

void MainWindow::declareSingle(const PixelDeclaration &declaration)
{
    if (!tellNotConnected()) {
        declarePixel(declaration, ui->xBadPixelCoordinate->value(), ui->yBadPixelCoordinate->value());
    }
}

void MainWindow::declareLine(const PixelDeclaration &declaration)
{
    if (tellNotConnected()) {
        return;
    }
    for (int column{0}; column < sensorColumns; ++column) {
        declarePixel(declaration, column, ui->yBadPixelCoordinate->value());
    }
}

void MainWindow::declareColumn(const PixelDeclaration &declaration)
{
    if (tellNotConnected()) {
        return;
    }
    for (int row{0}; row < sensorRows; ++row) {
        declarePixel(declaration, ui->xBadPixelCoordinate->value(), row);
    }
}

void MainWindow::declarePixel(const PixelDeclaration &declaration, int column, int row)
{
    const bool ok{
        (device->*declaration.declare)(static_cast<std::uint32_t>(column), static_cast<std::uint32_t>(row))};
    appendLog(ok ? joinText("Pixel X:", column, " Y: ", row, declaration.accepted)
                 : joinText(declaration.refused, column, " Y: ", row, '.'));
}
