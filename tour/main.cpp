// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The guided tour: a whole session in the real window, with a picture of each stage.
#include "mainwindow.h"
#include "sdkentry.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStringList>
#include <QStyleFactory>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextStream>
#include <QTimer>

#include <cstdlib>
#include <functional>
#include <vector>

namespace
{

/// One stage: what the operator does, and the log line by which it is known to have worked.
struct Stage
{
    QString picture;
    QString told;
    QString expectedLine; ///< Empty: the stage logs nothing.
    std::function<void()> act;
};

template <typename Widget>
Widget &child(const MainWindow &window, const char *name)
{
    auto *const found = window.findChild<Widget *>(QLatin1String{name});
    if (found == nullptr) {
        qFatal("the window has no %s", name);
    }
    return *found;
}

void click(const MainWindow &window, const char *button)
{
    QTest::mouseClick(&child<QPushButton>(window, button), Qt::LeftButton);
}

/// Chooses the next item of a combo box with the keyboard, or the one before where there is no next.
void chooseAnother(const MainWindow &window, const char *comboBox)
{
    auto &widget = child<QComboBox>(window, comboBox);
    widget.setFocus();
    const bool last{widget.currentIndex() == widget.count() - 1};
    QTest::keyClick(&widget, last ? Qt::Key_Up : Qt::Key_Down);
}

void showPage(const MainWindow &window, const char *tabWidget, const char *page)
{
    QTabBar *const bar{child<QTabWidget>(window, tabWidget).tabBar()};
    const int index{child<QTabWidget>(window, tabWidget).indexOf(&child<QWidget>(window, page))};
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(index).center());
}

/// Replaces the text of a spin box and finishes the edit.
void type(const MainWindow &window, const char *spinBox, const QString &text)
{
    auto &widget = child<QAbstractSpinBox>(window, spinBox);
    widget.setFocus();
    widget.selectAll();
    QTest::keyClicks(&widget, text);
    QTest::keyClick(&widget, Qt::Key_Tab);
}

std::vector<Stage> stages(const MainWindow &window)
{
    const auto clicking = [&window](const char *button) {
        return [&window, button] {
            click(window, button);
        };
    };
    const auto showing = [&window](const char *tabWidget, const char *page) {
        return [&window, tabWidget, page] {
            showPage(window, tabWidget, page);
        };
    };
    const auto choosing = [&window](const char *comboBox) {
        return [&window, comboBox] {
            chooseAnother(window, comboBox);
        };
    };
    const auto typing = [&window](const char *spinBox, const char *text) {
        return [&window, spinBox, text] {
            type(window, spinBox, QLatin1String{text});
        };
    };
    // The last port of the scan is the simulator's own where the host has others.
    const auto scanAndPickLast = [&window] {
        click(window, "scanDeviceButton");
        auto &ports = child<QComboBox>(window, "selectDeviceComboBox");
        ports.setCurrentIndex(ports.count() - 1);
    };
    const QString targetLine{QStringLiteral("target correctly changed")};
    return {
        {"start",
         "the window as it opens: only scanning is possible",
         {},
         [] {
         }},
        {"scan", "Scan Devices lists the ports", {}, scanAndPickLast},
        {"connect", "Connect opens the port and reads both units", targetLine,
         clicking("connectDeviceButton")},
        {"video-mode", "Visible mode", "Visible mode activated", clicking("BU_VISIBLE_MODE_PB")},
        {"fusion-mode", "Fusion mode", "Fusion mode activated", clicking("BU_FUSION_MODE_PB")},
        {"camera", "the camera page: the device target follows", targetLine,
         showing("Principal_tab", "Veltrix_KR_tab")},
        {"video-output", "another video output", "Set VIDEO OUTPUT value OK", choosing("VideoOutputCB")},
        {"lut", "the LUT page", {}, showing("KR_tab", "LutSection")},
        {"colour", "another colour table", "Set COLOR LUT value OK", choosing("lutColorEdit")},
        {"gamma", "a gamma typed in", "Set GAMMA value OK", typing("gammaEdit", "2.2")},
        {"region", "a region's left edge typed in", "Set ROI 0 X1 value OK", typing("Roi0IncX1", "100")},
        {"edge", "the edge page", {}, showing("KR_tab", "EdgeSection")},
        {"reset", "Reset brings the camera's defaults back", "End applying camera parameters",
         clicking("resetParamButtonUser")},
        {"expert", "the expert page", {}, showing("KR_tab", "ExpertMode")},
        {"expert-read", "the expert parameters read again", targetLine, clicking("readParamButtonExpert")},
        {"blend-unit", "back to the Blend Unit", targetLine, showing("Principal_tab", "Fusion_tab")},
        {"visible", "the visible page, which is no target of its own", "Could not changed target",
         showing("Principal_tab", "Visible_tab")},
        {"visible-agc", "an AGC target typed in", "Visible AGC configuration applied correctly",
         [&window] {
             type(window, "VisAgcTargetSB", "42");
         }},
        {"save", "Save keeps the Blend Unit's parameters", "Blend unit parameters have been saved",
         clicking("saveParamButtonUser")},
        {"read", "Read fills everything again", "Could not changed target", clicking("readParamButtonUser")},
        {"disconnect", "Disconnect locks the controls", {}, clicking("disconnectDeviceButton")},
        {"connect-again", "Connect once more", "Could not changed target", clicking("connectDeviceButton")},
        {"end", "Disconnect ends the session", {}, clicking("disconnectDeviceButton")},
    };
}

QString lastLogLine(const MainWindow &window)
{
    return child<QPlainTextEdit>(window, "logView").toPlainText().trimmed().section(QLatin1Char{'\n'}, -1);
}

bool writeLog(const MainWindow &window, const QString &fileName)
{
    QFile file{fileName};
    return file.open(QIODevice::WriteOnly) &&
           file.write(child<QPlainTextEdit>(window, "logView").toPlainText().toUtf8()) >= 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application{argc, argv};
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(QFont{QStringLiteral("DejaVu Sans"), 9});
    QApplication::setCursorFlashTime(0);

    QTextStream out{stdout};
    QTextStream errors{stderr};
    out.setCodec("UTF-8");
    errors.setCodec("UTF-8");
    // As Qt reads them, so that a folder may have any letters on Windows too.
    const QStringList arguments{QApplication::arguments()};
    if (arguments.size() != 2) {
        errors << "usage: pilotel-tour DIRECTORY   (where the pictures and the log go)\n";
        return 2;
    }
    const QDir directory{arguments.at(1)};
    if (!directory.mkpath(QStringLiteral("."))) {
        errors << "pilotel-tour: cannot make the directory " << directory.path()
               << "; name one that can be written\n";
        return 2;
    }

    // Nobody is there to answer a box, and none is part of the tour.
    QTimer boxes;
    QObject::connect(&boxes, &QTimer::timeout, [&errors] {
        if (const QWidget *const box = QApplication::activeModalWidget()) {
            const auto *const messageBox = qobject_cast<const QMessageBox *>(box);
            errors << "pilotel-tour: a box ended the tour: "
                   << (messageBox != nullptr ? messageBox->text() : box->windowTitle()) << '\n';
            errors.flush();
            std::exit(1);
        }
    });
    boxes.start(100);

    recording::beginAsEnvironmentSays("pilotel-tour");
    MainWindow window;
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) {
        errors << "pilotel-tour: the window did not become active\n";
        return 1;
    }

    int number{0};
    for (const Stage &stage : stages(window)) {
        stage.act();
        QTest::qWait(0);
        const QString fileName{
            QStringLiteral("%1-%2.png").arg(++number, 2, 10, QLatin1Char{'0'}).arg(stage.picture)};
        if (!window.grab().save(directory.filePath(fileName))) {
            errors << "pilotel-tour: cannot write " << directory.filePath(fileName) << '\n';
            return 1;
        }
        if (!stage.expectedLine.isEmpty() && lastLogLine(window) != stage.expectedLine) {
            errors << "pilotel-tour: " << fileName << ": the log ends with \"" << lastLogLine(window)
                   << "\" instead of \"" << stage.expectedLine << "\"\n";
            return 1;
        }
        out << fileName << ": " << stage.told << '\n';
    }
    if (!writeLog(window, directory.filePath(QStringLiteral("log.txt")))) {
        errors << "pilotel-tour: cannot write " << directory.filePath(QStringLiteral("log.txt")) << '\n';
        return 1;
    }
    out << "log.txt: the operation log of the session\n" << directory.absolutePath() << '\n';
    return 0;
}
