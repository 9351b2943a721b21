// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Bad pixels: the transfer of the replacement table and the declaration of pixels, lines and columns.
#include "logtext.h"
#include "mainwindow.h"
#include "messageboxes.h"
#include "sequence.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/numbers.h"

#include <QSpinBox>
#include <QtGlobal>

#include <cstdint>

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

constexpr BprTransfer readTable{
    &IDeviceControl::readBprTable,
    bprReadCode,
    QT_TRANSLATE_NOOP("MainWindow", "BPR table not read correctly"),
    "BPR table correctly saved to ",
    ".",
};
// The text's slip is part of the product.
constexpr BprTransfer writeTable{
    &IDeviceControl::writeBprTable,
    bprWriteCode,
    QT_TRANSLATE_NOOP("MainWindow", "BPR table not write correctly"),
    "BPR table ",
    " correctly written.",
};

constexpr PixelDeclaration addPixel{&IDeviceControl::addBadPixel, " correctly added.",
                                    "Unable to add pixel X:"};
constexpr PixelDeclaration removePixel{&IDeviceControl::removeBadPixel, " correctly removed.",
                                       "Unable to remove pixel X:"};

std::uint32_t chosenColumn(const Ui_MainWindow &ui)
{
    return static_cast<std::uint32_t>(ui.xBadPixelCoordinate->value());
}

std::uint32_t chosenRow(const Ui_MainWindow &ui)
{
    return static_cast<std::uint32_t>(ui.yBadPixelCoordinate->value());
}

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
    const Sequence sequence{*this};
    if (tellNotConnected()) {
        return;
    }
    if (!(device->*transfer.transfer)(bprFirstNumber, bprSecondNumber, transfer.code)) {
        showAboutBox(this, tr("BPR table"), tr(transfer.failure));
        if (!isDeviceOpen()) {
            return;
        }
    }
    // After a failure, this line follows the box all the same.
    appendLog(joinText(transfer.beforeFileName, bprFileNameBegin, device->getSerialNumber(), bprFileNameEnd,
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
        declarePixel(declaration, chosenColumn(*ui), chosenRow(*ui));
    }
}

void MainWindow::declareLine(const PixelDeclaration &declaration)
{
    const Sequence sequence{*this};
    if (tellNotConnected()) {
        return;
    }
    for (std::uint32_t column{0}; column < sensorColumns; ++column) {
        declarePixel(declaration, column, chosenRow(*ui));
    }
}

void MainWindow::declareColumn(const PixelDeclaration &declaration)
{
    const Sequence sequence{*this};
    if (tellNotConnected()) {
        return;
    }
    for (std::uint32_t row{0}; row < sensorRows; ++row) {
        declarePixel(declaration, chosenColumn(*ui), row);
    }
}

void MainWindow::declarePixel(const PixelDeclaration &declaration, std::uint32_t column, std::uint32_t row)
{
    const bool ok{(device->*declaration.declare)(column, row)};
    appendLog(ok ? joinText("Pixel X:", column, " Y: ", row, declaration.accepted)
                 : joinText(declaration.refused, column, " Y: ", row, '.'));
}
