// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The operation log and the temperature read-outs.
#include "encodings.h"
#include "mainwindow.h"
#include "sdkentry.h"
#include "ui_mainwindow.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/logger.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"
#include "widgetvalues.h"

#include <QElapsedTimer>
#include <QScrollBar>
#include <QString>
#include <QTextCursor>
#include <QWidget>
#include <QtGlobal>

#include <string>

using namespace veltrix_sdk;

// By value as the signature of the slot says; callers hand over a temporary.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void MainWindow::appendLog(std::string line)
{
    // Inserted at the end, wherever the operator has clicked. The view's own cursor is moved only when it
    // stands elsewhere: one that stands at the end moves along with the text, and moving it costs the view a
    // layout of its own.
    const QTextCursor shown{ui->logView->textCursor()};
    QTextCursor end{ui->logView->document()};
    end.movePosition(QTextCursor::End);
    const bool follows{!shown.hasSelection() && shown.position() == end.position()};
    end.insertText(QString::fromStdString(line) + QLatin1Char{'\n'});
    if (!follows) {
        ui->logView->setTextCursor(end);
    }
    QScrollBar *const scrollBar{ui->logView->verticalScrollBar()};
    scrollBar->setValue(scrollBar->maximum());
    recording::LogRecord(severity_info).stream() << line;
    paintLog();
}

void MainWindow::paintLog()
{
    // Other lines are painted when control returns to the event loop, which is at once.
    if (sequenceDepth == 0) {
        return;
    }
    // A painting that takes a millisecond comes after at least this many without one, counted from the start
    // of the sequence. On a slow link that is less than a command takes, so each line is painted; without
    // latency a sequence has mostly ended by then, and a long one gives a twentieth of its time.
    constexpr qint64 pauseForEachPainting{20};
    if (sinceLogPainted.nsecsElapsed() < pauseForEachPainting * logPaintingTime) {
        return;
    }
    QElapsedTimer painting;
    painting.start();
    // Paints and shows it before it returns, without processing events.
    ui->logView->viewport()->repaint();
    logPaintingTime = painting.nsecsElapsed();
    sinceLogPainted.start();
}

void MainWindow::reportOutcome(bool ok, const char *success, const char *failure)
{
    lastCommandOk = ok;
    appendLog(ok ? success : failure);
}

void MainWindow::reportCommand(bool ok, const char *action)
{
    lastCommandOk = ok;
    appendLog(std::string{action} + (ok ? " OK" : " KO"));
}

void MainWindow::readTemp(int fpgaType)
{
    if (!isDeviceOpen()) {
        return;
    }
    Temperatures temperatures{};
    device->getTemperatures(&temperatures);
    const auto celsius = [](float millikelvin) {
        return QString::number(static_cast<double>(toCelsius(millikelvin)), 'g', 6) + QLatin1Char{'C'};
    };
    switch (fpgaType) {
    case targetBlendUnit:
        showText(*ui->FusionFpgaTempTextEdit, celsius(temperatures.fpgaMillikelvin));
        break;
    case targetCamera:
        showText(*ui->FpgaTempTextEdit, celsius(temperatures.fpgaMillikelvin));
        showText(*ui->SensorTempTextEdit, celsius(temperatures.sensorMillikelvin));
        break;
    default:
        break;
    }
}
