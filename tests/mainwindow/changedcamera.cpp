// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A camera of which every value differs from the power-on state, and what is said while it is read.
#include "changedcamera.h"

#include <string>

using veltrix_simulator::Simulator;
using veltrix_simulator::Value;

void changeCamera(Simulator &simulator)
{
    const struct
    {
        const char *key;
        Value value;
    } values[]{
        {"firmwareVersions.processor", 0x0123},
        {"firmwareVersions.fpga", 0x3456},
        {"serialNumber", 4100200300},
        {"sensorSerialNumber", 3000000001},
        {"operatingInfo.operatingMinutes", 123456},
        {"operatingInfo.startupCount", 789},
        {"vignettingCorrection", false},
        {"columnCorrection", false},
        {"sdiOutput", false},
        {"parallelOutput", true},
        {"mipiOutput", false},
        {"videoOutput", 5},
        {"frameRate", 30},
        {"horizontalFlip", true},
        {"polarity", true},
        {"gamma", 144179},
        {"clhe", 4321},
        {"colorLut", 3},
        {"contrastType", 1},
        {"lutTemporalFilter", 4},
        {"ahcGainLimitation.black", 31},
        {"ahcGainLimitation.white", 62},
        {"temperatures.sensorMillikelvin", 310150.0},
        {"temperatures.fpgaMillikelvin", 273000.0},
        {"edgeCorrection.type", 1},
        {"edgeCorrection.gain", 3},
        {"edgeCorrection.firstThreshold", 5},
        {"edgeCorrection.secondThreshold", 60},
    };
    for (const auto &row : values) {
        simulator.set(std::string{"camera."} + row.key, row.value);
    }
    for (int region{0}; region < 4; ++region) {
        const std::string key{"camera.roi" + std::to_string(region)};
        simulator.set(key + ".x1", 100 + region);
        simulator.set(key + ".y1", 110 + region);
        simulator.set(key + ".x2", 120 + region);
        simulator.set(key + ".y2", 130 + region);
    }
}

Transcript changedCameraRead()
{
    return {
        line("Start reading camera parameters"),
        call("getFirmwareVersions() -> true {processor=291, fpga=13398}"),
        call("startReading() -> true"),
        line("RISC-V version = 1.2.3\nFPGA version = 4.5.6 MIPI 9Hz"),
        call("getSerialNumber() -> 4100200300"),
        line("Serial number = 4100200300"),
        call("getSensorSerialNumber() -> 3000000001"),
        line("Sensor serial number = 3000000001"),
        call("getOperatingInfo() -> true {operatingMinutes=123456, startupCount=789}"),
        line("Operating time = 123456 min"),
        line("Startup number = 789"),
        call("getVignettingCorrection() -> false"),
        line("Vignetting Correction state = Disabled"),
        call("getColumnCorrection() -> false"),
        line("Column Correction state = Disabled"),
        call("getSdiOutput() -> false"),
        line("BT656/SDI output value = Disabled"),
        call("getParallelOutput() -> true"),
        line("Parallel output value = Enabled"),
        call("getMipiOutput() -> false"),
        line("MIPI output value = Disabled"),
        call("getVideoOutput() -> 5"),
        writtenBack(call("setVideoOutput(5) -> true")),
        writtenBack(line("Set VIDEO OUTPUT value OK")),
        line("Video output = LUT CORRECTION"),
        call("getFrameRate() -> 30"),
        writtenBack(call("getFrameRate() -> 30")),
        line("Frame rate = 30Hz"),
        call("getHorizontalFlip() -> true"),
        line("Horizontal flip value = 1"),
        call("getPolarity() -> true"),
        line("Polarity value = 1"),
        call("getGamma() -> 144179"),
        line("Gamma value = 2.2"),
        call("getRoiX1(0) -> 100"),
        call("getRoiY1(0) -> 110"),
        call("getRoiX2(0) -> 120"),
        call("getRoiY2(0) -> 130"),
        call("getRoiX1(1) -> 101"),
        call("getRoiY1(1) -> 111"),
        call("getRoiX2(1) -> 121"),
        call("getRoiY2(1) -> 131"),
        call("getRoiX1(2) -> 102"),
        call("getRoiY1(2) -> 112"),
        call("getRoiX2(2) -> 122"),
        call("getRoiY2(2) -> 132"),
        call("getRoiX1(3) -> 103"),
        call("getRoiY1(3) -> 113"),
        call("getRoiX2(3) -> 123"),
        call("getRoiY2(3) -> 133"),
        line("ROI0 inclusive X1 value = 100"),
        line("ROI0 inclusive Y1 value = 110"),
        line("ROI0 inclusive X2 value = 120"),
        line("ROI0 inclusive Y2 value = 130"),
        // An enable box is set before its coordinates, so what goes back are those shown until now.
        writtenBack(call("setRoiX1(5, 2, false, true, false) -> true")),
        writtenBack(call("setRoiX2(5, 2, false, true, false) -> true")),
        writtenBack(call("setRoiY1(5, 2, false, true, false) -> true")),
        writtenBack(call("setRoiY2(5, 2, false, true, false) -> true")),
        line("ROI0 exclusive X1 value = 101"),
        line("ROI0 exclusive Y1 value = 111"),
        line("ROI0 exclusive X2 value = 121"),
        line("ROI0 exclusive Y2 value = 131"),
        writtenBack(call("setRoiX1(5, 1, true, true, false) -> true")),
        writtenBack(call("setRoiX2(5, 1, true, true, false) -> true")),
        writtenBack(call("setRoiY1(5, 1, true, true, false) -> true")),
        writtenBack(call("setRoiY2(5, 1, true, true, false) -> true")),
        line("ROI1 inclusive X1 value = 102"),
        line("ROI1 inclusive Y1 value = 112"),
        line("ROI1 inclusive X2 value = 122"),
        line("ROI1 inclusive Y2 value = 132"),
        writtenBack(call("setRoiX1(5, 3, true, true, true) -> true")),
        writtenBack(call("setRoiX2(5, 3, true, true, true) -> true")),
        writtenBack(call("setRoiY1(5, 3, true, true, true) -> true")),
        writtenBack(call("setRoiY2(5, 3, true, true, true) -> true")),
        line("ROI1 exclusive X1 value = 103"),
        line("ROI1 exclusive Y1 value = 113"),
        line("ROI1 exclusive X2 value = 123"),
        line("ROI1 exclusive Y2 value = 133"),
        call("getClhe() -> 4321"),
        line("CLHE value = 4321"),
        call("getColorLut() -> 3"),
        writtenBack(call("setColorLut(3) -> true")),
        writtenBack(line("Set COLOR LUT value OK")),
        line("Color Lut = RAINBOW"),
        call("getContrastType() -> 1"),
        writtenBack(call("configureContrastType(1) -> true")),
        writtenBack(line("Configure contrast type OK")),
        line("Contrast type = CLAHE (LOCAL)"),
        call("getLutTemporalFilter() -> 4"),
        line("LUT temporal filter = 4"),
        call("getAhcGainLimitation() -> 1 {black=31, white=62}"),
        line("AHC black gain limitation = 31"),
        line("AHC white gain limitation = 62"),
        call("getTemperatures() -> true {sensorMillikelvin=310150, fpgaMillikelvin=273000}"),
        call("getEdgeCorrection() -> {type=1, gain=3, firstThreshold=5, secondThreshold=60}"),
        // The type is set before the sliders.
        writtenBack(call("configureEdgeCorrection(1, 64, 20) -> true")),
        writtenBack(line("Configure EDGE CORRECTION OK")),
        line("Correction type = 1\nCorrection gain = 3\nFirst threshold = 20\nSecond threshold = 60"),
        line("End reading camera parameters"),
    };
}
