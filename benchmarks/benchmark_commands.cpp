// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The program's own time for a command of each family, beside the bare call, and for a read and a reset.
#include "appearance.h"
#include "mainwindow.h"
#include "operatorinput.h"
#include "veltrix_sdk/device_control.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"
#include "veltrix_sdk/sdk.h"
#include "veltrix_simulator/simulator.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QMetaObject>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QString>
#include <QTextStream>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <vector>

using namespace veltrix_sdk;
using veltrix_simulator::Simulator;

namespace
{

constexpr int actionsInBatch{200};
constexpr int batchesOfCommands{20};

/// Done so often, with another number each time.
using Action = std::function<void(int turn)>;

struct Command
{
    const char *name;
    Action operate;             ///< What the operator's hand makes the controls do.
    Action call;                ///< The same calls without the program.
    bool tellsItsOutcome{true}; ///< In the log and in lastCommandOk.
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

/// One of two numbers, so that each action changes something.
int oneOf(int first, int second, int turn)
{
    return turn % 2 == 0 ? first : second;
}

class Session
{
public:
    explicit Session(MainWindow &itsWindow) : window{itsWindow}, log{child<QPlainTextEdit>(window, "logView")}
    {}

    void connectDevice()
    {
        press("scanDeviceButton");
        child<QComboBox>(window, "selectDeviceComboBox").setCurrentText(QStringLiteral("SIM1"));
        press("connectDeviceButton");
    }
    /// Takes the device from the window, for the calls without the program.
    void takeDevice()
    {
        press("disconnectDeviceButton");
        device = VeltrixSdk::get_instance()->getDeviceManager()->openDevice("SIM1");
        if (device == nullptr) {
            qFatal("the device cannot be opened");
        }
    }

    std::vector<Command> commands()
    {
        return {
            {"number, slider let go (gamma)", slide("gammaSlider", 3, 17),
             [this](int turn) {
                 device->setGamma(static_cast<std::uint32_t>(oneOf(52429, 144179, turn)));
             }},
            {"number, edit finished (CLHE)", edit("clheEdit", 1000, 7654),
             [this](int turn) {
                 device->setClhe(static_cast<std::uint32_t>(oneOf(1000, 7654, turn)));
             }},
            {"number, slider let go (LUT filter)", slide("TempoFilterSlider", 1, 7),
             [this](int turn) {
                 device->setLutTemporalFilter(static_cast<std::uint8_t>(oneOf(1, 7, turn)));
             }},
            {"expert number, slider let go (GFID)", slide("gfidSlider", 100, 777),
             [this](int turn) {
                 device->setGfid(static_cast<std::uint32_t>(oneOf(100, 777, turn)));
             }},
            {"two numbers (AHC gain limits)", slide("AhcBlackGainLimSlider", 33, 44),
             [this](int turn) {
                 device->setAhcGainLimitation(static_cast<std::uint8_t>(oneOf(33, 44, turn)), 80);
             }},
            {"three numbers (edge correction)", slide("sharpeningGainSlider", 29, 57),
             [this](int turn) {
                 device->configureEdgeCorrection(0, static_cast<std::uint32_t>(oneOf(2, 5, turn)), 20);
             }},
            {"choice (colour table)", choose("lutColorEdit"),
             [this](int turn) {
                 device->setColorLut(static_cast<std::uint8_t>(oneOf(0, 1, turn)));
             }},
            {"toggle button (polarity)", toggle("polarityButton"),
             [this](int turn) {
                 device->setPolarity(turn % 2 == 0);
             }},
            {"check box (bad-pixel replacement)", check("BPRCheckBox"),
             [this](int turn) { device->setBprEnable(turn % 2 == 0); }, false},
            {"coordinate of a region", edit("Roi0IncX1", 3, 17),
             [this](int turn) {
                 device->setRoiX1(static_cast<std::uint32_t>(oneOf(3, 17, turn)), 0, false, false, false);
             }},
            {"region switched, four calls", check("roi1IncEnable"),
             [this](int /*turn*/) {
                 device->setRoiX1(0, 1, true, false, false);
                 device->setRoiX2(0, 1, true, false, false);
                 device->setRoiY1(0, 1, true, false, false);
                 device->setRoiY2(0, 1, true, false, false);
             },
             false},
            {"a bad pixel", presses("addBadPixelButton"),
             [this](int /*turn*/) {
                 device->addBadPixel(0, 0);
             }},
            {"video mode", eitherPressed("BU_IR_MODE_PB", "BU_FUSION_MODE_PB"),
             [this](int turn) {
                 device->setVideoMode(static_cast<std::uint8_t>(oneOf(0, 2, turn)));
             }},
            {"starting mode", choose("startingModeCB"),
             [this](int turn) {
                 device->setStartingMode(static_cast<std::uint32_t>(oneOf(0, 1, turn)));
             }},
            {"zoom, two calls", presses("FusionConfigureZoomPB"),
             [this](int /*turn*/) {
                 ZoomConfig zoom{};
                 device->getZoomConfig(&zoom);
                 device->configureZoom(&zoom);
             }},
            {"warp", presses("FusionWarpPB"),
             [this](int /*turn*/) {
                 device->setWarp(0, 1, 0, 0, 1, 0, 0);
             }},
            {"visible AGC", edit("VisAgcTargetSB", 3, 17),
             [this](int turn) {
                 device->setVisibleAgc(oneOf(3, 17, turn), 1, 1);
             }},
            {"visible CLHE", edit("VisClheTHSB", 300, 1700),
             [this](int turn) {
                 device->setVisibleClhe(oneOf(300, 1700, turn), 1);
             }},
            {"save in the Blend Unit", presses("saveParamButtonUser"),
             [this](int /*turn*/) {
                 device->saveBlendUnitParameters(saveUserParameters);
             }},
        };
    }

    /// Microseconds an action in the quickest of several batches; the log is emptied, and what is
    /// left to the event loop is done, between them.
    double microseconds(const Action &action, int actions, int batchCount = batchesOfCommands)
    {
        double quickest{std::numeric_limits<double>::max()};
        for (int batch{0}; batch < batchCount; ++batch) {
            QElapsedTimer timer;
            timer.start();
            for (int turn{0}; turn < actions; ++turn) {
                action(turn);
            }
            quickest = std::min(quickest, static_cast<double>(timer.nsecsElapsed()) / 1000.0 / actions);
            lines = log.blockCount() - 1;
            log.clear();
            QCoreApplication::processEvents();
        }
        return quickest;
    }
    /// Lines that the latest batch has logged.
    int linesLogged() const { return lines; }

    /// Microseconds of a handler that runs a sequence, in the quickest of several runs. Before each run other
    /// values are shown.
    double microsecondsOf(const char *handler, const std::vector<Command> &commands)
    {
        double quickest{std::numeric_limits<double>::max()};
        for (int run{0}; run < batchesOfCommands; ++run) {
            for (const Command &command : commands) {
                command.operate(0);
                command.operate(1);
            }
            log.clear();
            QCoreApplication::processEvents();
            quickest =
                std::min(quickest, microseconds([this, handler](int /*turn*/) { invoke(handler); }, 1, 1));
        }
        return quickest;
    }
    void invoke(const char *handler) { QMetaObject::invokeMethod(&window, handler, Qt::DirectConnection); }

private:
    /// As a click, without the painting that QAbstractButton::click() does at once.
    static void press(QAbstractButton &button)
    {
        if (button.isCheckable()) {
            button.setChecked(!button.isChecked());
        }
        emit button.clicked(button.isChecked());
    }
    void press(const char *name) { press(child<QAbstractButton>(window, name)); }
    Action presses(const char *name)
    {
        return [&button = child<QAbstractButton>(window, name)](int /*turn*/) {
            press(button);
        };
    }
    Action toggle(const char *name) { return presses(name); }
    Action eitherPressed(const char *first, const char *second)
    {
        return [&one = child<QAbstractButton>(window, first),
                &other = child<QAbstractButton>(window, second)](int turn) {
            press(turn % 2 == 0 ? one : other);
        };
    }
    Action check(const char *name)
    {
        return [&box = child<QCheckBox>(window, name)](int turn) {
            box.setChecked(turn % 2 == 0);
        };
    }
    Action choose(const char *name)
    {
        return [&box = child<QComboBox>(window, name)](int turn) {
            box.setCurrentIndex(oneOf(0, 1, turn));
        };
    }
    Action slide(const char *name, int first, int second)
    {
        return [&slider = child<QSlider>(window, name), first, second](int turn) {
            slider.setSliderDown(true);
            slider.setSliderPosition(oneOf(first, second, turn));
            slider.setSliderDown(false);
        };
    }
    Action edit(const char *name, int first, int second)
    {
        return [&box = child<QAbstractSpinBox>(window, name), first, second](int turn) {
            box.setProperty("value", oneOf(first, second, turn));
            emit box.editingFinished();
        };
    }

    MainWindow &window;
    QPlainTextEdit &log;
    IDeviceControl *device{nullptr};
    int lines{0};
};

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application{argc, argv};
    setAppearance();
    OperatorInput operatorInput;
    MainWindow window;
    window.setSequenceObserver([&operatorInput](bool running) { operatorInput.sequenceRuns(running); });
    window.show();
    Session session{window};
    session.connectDevice();
    Simulator::instance().setJournalEnabled(false);
    QCoreApplication::processEvents();

    const std::vector<Command> commands{session.commands()};
    std::vector<double> own;
    std::vector<double> drawn;
    for (const Command &command : commands) {
        drawn.push_back(session.microseconds(command.operate, actionsInBatch));
        if (command.tellsItsOutcome &&
            (!window.wasLastCommandOk() || session.linesLogged() != actionsInBatch)) {
            qFatal("%s: %d lines for %d commands, the last one %s; the figures would mean nothing",
                   command.name, session.linesLogged(), actionsInBatch,
                   window.wasLastCommandOk() ? "accepted" : "refused");
        }
        // The pixels of the log are not moved up then, nor is anything marked as to be painted.
        window.setUpdatesEnabled(false);
        own.push_back(session.microseconds(command.operate, actionsInBatch));
        window.setUpdatesEnabled(true);
    }

    QTextStream out{stdout};
    out.setRealNumberNotation(QTextStream::FixedNotation);
    out.setRealNumberPrecision(2);
    out << "a sequence, with the calls of the simulated library in it\n";
    for (const char *const handler : {"readAllParameters", "ResetParamsUser", "ApplyParamsUser"}) {
        const double whole{session.microsecondsOf(handler, commands)};
        const int lines{session.linesLogged()};
        for (const Command &command : commands) {
            command.operate(1);
        }
        Simulator::instance().setJournalEnabled(true);
        Simulator::instance().clearJournal();
        session.invoke(handler);
        const auto calls = Simulator::instance().journal().size() - static_cast<std::size_t>(lines);
        Simulator::instance().setJournalEnabled(false);
        out << handler << ": " << whole << " us, " << lines << " lines, " << calls << " calls" << Qt::endl;
    }

    session.takeDevice();
    out << "\nus a command                          bare call   own time   with the log's pixels moved\n";
    for (std::size_t place{0}; place < commands.size(); ++place) {
        const double bare{session.microseconds(commands[place].call, actionsInBatch)};
        out << qSetFieldWidth(36) << Qt::left << commands[place].name << Qt::right << qSetFieldWidth(11)
            << bare << own[place] - bare << qSetFieldWidth(30) << drawn[place] - bare << qSetFieldWidth(0)
            << Qt::endl;
    }
    return 0;
}
