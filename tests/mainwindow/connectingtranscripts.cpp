// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What is said while the window connects to a simulator in its power-on state.
#include "connectingtranscripts.h"

Transcript opening()
{
    return {
        call("get_instance() -> sdk"),
        call("getConfiguration() -> configuration"),
        call("getCommunicationType() -> \"UART\""),
        line("ALTERNATIVE SERIAL PORT : SIM1"),
        call("get_instance() -> sdk"),
        call("getDeviceManager() -> manager"),
        call("openDevice(\"SIM1\") -> device"),
    };
}

Transcript targetSwitchedTo(int target)
{
    if (target == 0) {
        return {
            call("setTarget(0) -> true"),
            call("getTemperatures() -> true {sensorMillikelvin=300950, fpgaMillikelvin=321550}"),
            line("target correctly changed"),
        };
    }
    return {
        call("setTarget(1) -> true"),
        call("getTemperatures() -> true {sensorMillikelvin=296650, fpgaMillikelvin=314250}"),
        line("target correctly changed"),
    };
}

Transcript identified()
{
    return {call("connect() -> 1 {identity=21}")};
}

Transcript blendUnitRead()
{
    return {
        line("Start reading Fusion parameters"),
        call("getFirmwareVersions() -> true {processor=4866, fpga=8452}"),
        call("startReading() -> true"),
        line("RISC-V version = 1.3.0 Beta2\nFPGA version = 2.1.0.4"),
        call("getSerialNumber() -> 2063"),
        line("Serial number = 2063"),
        call("getVideoMode() -> true {mode=2}"),
        line("Fusion mode activated"),
        call("getZoomConfig() -> true {factor=1, xCenter=320, yCenter=240, method=0}"),
        call("getZoomResolution() -> true {x=720, y=576}"),
        line("Fusion ZOOM factor value = 1"),
        line("Fusion X zoom resolution = 720"),
        line("Fusion Y zoom resolution = 576"),
        line("Fusion X zoom center = 320"),
        line("Fusion Y zoom center = 240"),
        call("getVisibleAgc() -> true {target=50, threshold=10, filterCoefficient=20}"),
        line("Visible AGC target = 50"),
        line("Visible AGC threshold = 10"),
        line("Visible AGC filter coefficient = 20"),
        call("getVisibleClhe() -> true {threshold=2000, filterCoefficient=30}"),
        line("Visible CLHE threshold = 2000"),
        line("Visible filter coefficient = 30"),
        call("getStartingMode() -> true {mode=2}"),
        writtenBack(call("setStartingMode(2) -> true")),
        writtenBack(line("Blend unit starting mode set")),
        call("getTemperatures() -> true {sensorMillikelvin=300950, fpgaMillikelvin=321550}"),
        line("End reading Fusion parameters"),
        call("getBitStatus() -> 1"),
    };
}

Transcript cameraRead()
{
    return {
        line("Start reading camera parameters"),
        call("getFirmwareVersions() -> true {processor=532, fpga=8966}"),
        call("startReading() -> true"),
        line("RISC-V version = 2.1.4\nFPGA version = 3.0.6 MIPI 60Hz"),
        call("getSerialNumber() -> 10417"),
        line("Serial number = 10417"),
        call("getSensorSerialNumber() -> 558201"),
        line("Sensor serial number = 558201"),
        call("getOperatingInfo() -> true {operatingMinutes=73415, startupCount=412}"),
        line("Operating time = 73415 min"),
        line("Startup number = 412"),
        call("getVignettingCorrection() -> true"),
        line("Vignetting Correction state = Enabled"),
        call("getColumnCorrection() -> true"),
        line("Column Correction state = Enabled"),
        call("getSdiOutput() -> true"),
        line("BT656/SDI output value = Enabled"),
        call("getParallelOutput() -> false"),
        line("Parallel output value = Disabled"),
        call("getMipiOutput() -> true"),
        line("MIPI output value = Enabled"),
        call("getVideoOutput() -> 8"),
        writtenBack(call("setVideoOutput(8) -> true")),
        writtenBack(line("Set VIDEO OUTPUT value OK")),
        line("Video output = BT656"),
        call("getFrameRate() -> 60"),
        // The camera runs at that rate already, so the box that changed sends nothing.
        writtenBack(call("getFrameRate() -> 60")),
        line("Frame rate = 60Hz"),
        call("getHorizontalFlip() -> false"),
        line("Horizontal flip value = 0"),
        call("getPolarity() -> false"),
        line("Polarity value = 0"),
        call("getGamma() -> 65536"),
        line("Gamma value = 1"),
        call("getRoiX1(0) -> 5"),
        call("getRoiY1(0) -> 5"),
        call("getRoiX2(0) -> 635"),
        call("getRoiY2(0) -> 475"),
        call("getRoiX1(1) -> 0"),
        call("getRoiY1(1) -> 0"),
        call("getRoiX2(1) -> 0"),
        call("getRoiY2(1) -> 0"),
        call("getRoiX1(2) -> 0"),
        call("getRoiY1(2) -> 0"),
        call("getRoiX2(2) -> 0"),
        call("getRoiY2(2) -> 0"),
        call("getRoiX1(3) -> 0"),
        call("getRoiY1(3) -> 0"),
        call("getRoiX2(3) -> 0"),
        call("getRoiY2(3) -> 0"),
        line("ROI0 inclusive X1 value = 5"),
        line("ROI0 inclusive Y1 value = 5"),
        line("ROI0 inclusive X2 value = 635"),
        line("ROI0 inclusive Y2 value = 475"),
        line("ROI0 exclusive X1 value = 0"),
        line("ROI0 exclusive Y1 value = 0"),
        line("ROI0 exclusive X2 value = 0"),
        line("ROI0 exclusive Y2 value = 0"),
        line("ROI1 inclusive X1 value = 0"),
        line("ROI1 inclusive Y1 value = 0"),
        line("ROI1 inclusive X2 value = 0"),
        line("ROI1 inclusive Y2 value = 0"),
        line("ROI1 exclusive X1 value = 0"),
        line("ROI1 exclusive Y1 value = 0"),
        line("ROI1 exclusive X2 value = 0"),
        line("ROI1 exclusive Y2 value = 0"),
        call("getClhe() -> 2000"),
        line("CLHE value = 2000"),
        call("getColorLut() -> 0"),
        line("Color Lut = GREYSCALE"),
        call("getContrastType() -> 0"),
        line("Contrast type = CLHE (ROI)"),
        call("getLutTemporalFilter() -> 2"),
        line("LUT temporal filter = 2"),
        call("getAhcGainLimitation() -> 1 {black=20, white=80}"),
        line("AHC black gain limitation = 20"),
        line("AHC white gain limitation = 80"),
        call("getTemperatures() -> true {sensorMillikelvin=296650, fpgaMillikelvin=314250}"),
        call("getEdgeCorrection() -> {type=0, gain=64, firstThreshold=20, secondThreshold=60}"),
        line("Correction type = 0\nCorrection gain = 64\nFirst threshold = 20\nSecond threshold = 60"),
        line("End reading camera parameters"),
    };
}

Transcript rangesTaken(bool expertMode)
{
    return {
        call("get_instance() -> sdk"),
        call("getConfiguration() -> configuration"),
        call("get_instance() -> sdk"),
        call("getConfiguration() -> configuration"),
        call(expertMode ? "isExpertMode() -> true" : "isExpertMode() -> false"),
    };
}

Transcript expertRead(int page)
{
    const Transcript warp{
        call("getWarp(0) -> true {a11=1, a21=0, a12=0, a22=1, a13=0, a23=0}"),
    };
    const Transcript camera{
        line("Start reading camera expert parameters"),
        call("getGsk() -> 2"),
        line("GSK value = 2"),
        call("getGfid() -> 250"),
        line("GFID value = 250"),
        call("getGms() -> 1024"),
        line("GMS value = 1024"),
        call("getTint() -> 10"),
        line("TINT value = 10"),
        call("getBprEnable() -> true"),
        line("BPR state = Enabled"),
        call("getOffsetCorrection() -> true"),
        line("OFFSET state = Enabled"),
        call("getGainCorrection() -> true"),
        line("GAIN state = Enabled"),
        call("getVerticalFlip() -> false"),
        line("Vertical flip state = Disabled"),
        line("End reading camera expert parameters"),
    };
    return targetSwitchedTo(0) + warp + targetSwitchedTo(1) + camera + targetSwitchedTo(page);
}

Transcript returned()
{
    return {
        call("closeDevice(device)"),
        call("get_instance() -> sdk"),
        call("releaseDeviceManager(manager)"),
    };
}

Transcript connecting(bool expertMode)
{
    const Transcript always{opening() + targetSwitchedTo(0) + identified() +           //
                            targetSwitchedTo(0) + blendUnitRead() +                    //
                            targetSwitchedTo(1) + cameraRead() + targetSwitchedTo(0) + //
                            rangesTaken(expertMode)};
    return expertMode ? always + expertRead() : always;
}
