// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A command of each family that the window can send, with the same calls of the device without the window.
#include "operatorcommands.h"

#include "encodings.h"
#include "operatedwindow.h"
#include "veltrix_sdk/configuration.h"
#include "veltrix_sdk/device_manager.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_sdk/records.h"
#include "veltrix_sdk/sdk.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QMetaMethod>
#include <QMetaObject>
#include <QSlider>

#include <cstdint>

using namespace veltrix_sdk;

namespace
{

using Action = std::function<void(int turn)>;

bool isEven(int turn)
{
    return turn % 2 == 0;
}

/// One of two numbers, so that each action changes something.
int oneOf(int first, int second, int turn)
{
    return isEven(turn) ? first : second;
}

Action presses(const OperatedWindow &operated, const char *name)
{
    return [&button = operated.child<QAbstractButton>(name)](int /*turn*/) {
        pressUnpainted(button);
    };
}

Action eitherPressed(const OperatedWindow &operated, const char *first, const char *second)
{
    return [&one = operated.child<QAbstractButton>(first),
            &other = operated.child<QAbstractButton>(second)](int turn) {
        pressUnpainted(isEven(turn) ? one : other);
    };
}

Action toggle(const OperatedWindow &operated, const char *name)
{
    return [&button = operated.child<QAbstractButton>(name)](int turn) {
        button.setChecked(!isEven(turn));
        pressUnpainted(button);
    };
}

Action check(const OperatedWindow &operated, const char *name)
{
    return [&box = operated.child<QCheckBox>(name)](int turn) {
        box.setChecked(isEven(turn));
    };
}

Action choose(const OperatedWindow &operated, const char *name)
{
    return [&box = operated.child<QComboBox>(name)](int turn) {
        box.setCurrentIndex(oneOf(0, 1, turn));
    };
}

Action slide(const OperatedWindow &operated, const char *name, int first, int second)
{
    return [&slider = operated.child<QSlider>(name), first, second](int turn) {
        slideTo(slider, oneOf(first, second, turn));
    };
}

Action edit(const OperatedWindow &operated, const char *name, int first, int second)
{
    return [&box = operated.child<QAbstractSpinBox>(name), first, second](int turn) {
        finishEdit(box, oneOf(first, second, turn));
    };
}

/// A handler that is run without its control. Looked up once: that is not what is measured.
QMetaMethod slotOf(const MainWindow &window, const char *signature)
{
    const int place{window.metaObject()->indexOfSlot(signature)};
    if (place < 0) {
        qFatal("the window has no handler %s", signature);
    }
    return window.metaObject()->method(place);
}

} // namespace

std::vector<OperatorCommand> operatorCommands(MainWindow &window)
{
    const OperatedWindow operated{window};
    return {
        {"number, slider let go (gamma)", slide(operated, "gammaSlider", 3, 17),
         [](IDeviceControl &device, int turn) {
             device.setGamma(static_cast<std::uint32_t>(oneOf(52428, 144179, turn)));
         }},
        {"number, edit finished (CLHE)", edit(operated, "clheEdit", 1000, 7654),
         [](IDeviceControl &device, int turn) {
             device.setClhe(static_cast<std::uint32_t>(oneOf(1000, 7654, turn)));
         }},
        {"number, slider let go (LUT filter)", slide(operated, "TempoFilterSlider", 1, 7),
         [](IDeviceControl &device, int turn) {
             device.setLutTemporalFilter(static_cast<std::uint8_t>(oneOf(1, 7, turn)));
         }},
        {"expert number, slider let go (GFID)", slide(operated, "gfidSlider", 100, 777),
         [](IDeviceControl &device, int turn) {
             device.setGfid(static_cast<std::uint32_t>(oneOf(100, 777, turn)));
         }},
        {"two numbers (AHC gain limits)", slide(operated, "AhcBlackGainLimSlider", 33, 44),
         [](IDeviceControl &device, int turn) {
             device.setAhcGainLimitation(static_cast<std::uint8_t>(oneOf(33, 44, turn)), 80);
         }},
        {"three numbers (edge correction)", slide(operated, "sharpeningGainSlider", 29, 57),
         [](IDeviceControl &device, int turn) {
             device.configureEdgeCorrection(0, static_cast<std::uint32_t>(oneOf(2, 5, turn)), 20);
         }},
        {"choice (colour table)", choose(operated, "lutColorEdit"),
         [](IDeviceControl &device, int turn) {
             device.setColorLut(static_cast<std::uint8_t>(oneOf(0, 1, turn)));
         }},
        {"choice (contrast)", choose(operated, "contrastTypeEdit"),
         [](IDeviceControl &device, int turn) {
             device.configureContrastType(static_cast<std::uint8_t>(oneOf(0, 1, turn)));
         }},
        {"choice (video output)", choose(operated, "VideoOutputCB"),
         [](IDeviceControl &device, int turn) {
             device.setVideoOutput(static_cast<std::uint8_t>(oneOf(0, 1, turn)));
         }},
        {"frame rate, two calls", choose(operated, "frameRateCB"),
         [](IDeviceControl &device, int turn) {
             device.getFrameRate();
             device.setFrameRate(frameRateHz(oneOf(0, 1, turn)));
         }},
        {"toggle button (polarity)", toggle(operated, "polarityButton"),
         [](IDeviceControl &device, int turn) {
             device.setPolarity(isEven(turn));
         }},
        {"check box (bad-pixel replacement)", check(operated, "BPRCheckBox"),
         [](IDeviceControl &device, int turn) { device.setBprEnable(isEven(turn)); }, 0},
        {"coordinate of a region", edit(operated, "Roi0IncX1", 7, 17),
         [](IDeviceControl &device, int turn) {
             device.setRoiX1(static_cast<std::uint32_t>(oneOf(7, 17, turn)), 0, false, false, false);
         }},
        {"region switched, four calls", check(operated, "roi1IncEnable"),
         [](IDeviceControl &device, int turn) {
             const bool on{isEven(turn)};
             device.setRoiX1(on ? 160 : 0, 1, on, false, false);
             device.setRoiX2(on ? 480 : 0, 1, on, false, false);
             device.setRoiY1(on ? 120 : 0, 1, on, false, false);
             device.setRoiY2(on ? 360 : 0, 1, on, false, false);
         },
         0},
        {"a bad pixel", presses(operated, "addBadPixelButton"),
         [](IDeviceControl &device, int /*turn*/) {
             device.addBadPixel(0, 0);
         }},
        {"a bad pixel withdrawn", presses(operated, "removeBadPixelButton"),
         [](IDeviceControl &device, int /*turn*/) {
             device.removeBadPixel(0, 0);
         }},
        {"correction of the image (NUC)",
         [&window, slot = slotOf(window, "ApplyNucRequest()")](int /*turn*/) {
             slot.invoke(&window, Qt::DirectConnection);
         },
         [](IDeviceControl &device, int /*turn*/) { device.processNucRequest(); }, 0},
        {"MAVLink rate", choose(operated, "BaudRateCB"),
         [](IDeviceControl &device, int turn) {
             device.setMavlinkBaudRate(oneOf(9600, 115200, turn), false);
             VeltrixSdk::get_instance()->getConfiguration();
         }},
        {"baud rate of the link", choose(operated, "BaudRateConnectCB"),
         [](IDeviceControl & /*device*/, int turn) {
             VeltrixSdk::get_instance()->getConfiguration()->setBaudRate(oneOf(9600, 115200, turn));
         },
         0},
        // The first page is shown all the while: to show another one is Qt's work. One or two temperatures
        // are shown.
        {"target, and its temperatures",
         [&window, slot = slotOf(window, "targetChanged(int)")](int turn) {
             slot.invoke(&window, Qt::DirectConnection,
                         Q_ARG(int, oneOf(targetCamera, targetBlendUnit, turn)));
         },
         [](IDeviceControl &device, int turn) {
             device.setTarget(oneOf(targetCamera, targetBlendUnit, turn));
             Temperatures temperatures{};
             device.getTemperatures(&temperatures);
         },
         1, false},
        {"video mode", eitherPressed(operated, "BU_IR_MODE_PB", "BU_FUSION_MODE_PB"),
         [](IDeviceControl &device, int turn) {
             device.setVideoMode(static_cast<std::uint8_t>(oneOf(0, 2, turn)));
         }},
        {"starting mode", choose(operated, "startingModeCB"),
         [](IDeviceControl &device, int turn) {
             device.setStartingMode(static_cast<std::uint32_t>(oneOf(0, 1, turn)));
         }},
        {"zoom, two calls", presses(operated, "FusionConfigureZoomPB"),
         [](IDeviceControl &device, int /*turn*/) {
             ZoomConfig zoom{};
             device.getZoomConfig(&zoom);
             device.configureZoom(&zoom);
         }},
        {"warp", presses(operated, "FusionWarpPB"),
         [](IDeviceControl &device, int /*turn*/) {
             device.setWarp(1, 1, 0, 0, 1, 0, 0);
         }},
        {"warp of another stream, shown", choose(operated, "FusionWarpCB"),
         [](IDeviceControl &device, int turn) {
             Warp warp{};
             warp.stream = static_cast<std::uint8_t>(oneOf(0, 1, turn));
             device.getWarp(&warp);
         },
         0, false},
        {"visible AGC", edit(operated, "VisAgcTargetSB", 3, 17),
         [](IDeviceControl &device, int turn) {
             device.setVisibleAgc(oneOf(3, 17, turn), 10, 20);
         }},
        {"visible CLHE", edit(operated, "VisClheTHSB", 300, 1700),
         [](IDeviceControl &device, int turn) {
             device.setVisibleClhe(oneOf(300, 1700, turn), 30);
         }},
        {"save in the Blend Unit", presses(operated, "saveParamButtonUser"),
         [](IDeviceControl &device, int /*turn*/) {
             device.saveBlendUnitParameters(saveUserParameters);
         }},
        {"factory save in the Blend Unit", presses(operated, "saveParamFactoryPB"),
         [](IDeviceControl &device, int /*turn*/) {
             device.saveBlendUnitParameters(saveExpertParameters);
         }},
    };
}
