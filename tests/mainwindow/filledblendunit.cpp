// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A Blend Unit with values of its own, and its reads as the tests of it call them.
#include "filledblendunit.h"

#include <QPlainTextEdit>
#include <QString>
#include <QTest>

#include <cstdint>
#include <string>
#include <utility>

using veltrix_simulator::Simulator;
using veltrix_simulator::Value;

void fillBlendUnit(Simulator &simulator)
{
    const std::pair<const char *, Value> values[]{
        {"firmwareVersions.processor", 0x1204},
        {"firmwareVersions.fpga", 0x2A01},
        {"serialNumber", std::int64_t{4000000001}},
        {"videoMode", 1},
        {"zoom.factor", 1.5},
        {"zoom.xCenter", 300},
        {"zoom.yCenter", 200},
        {"zoomResolution.x", 1024},
        {"zoomResolution.y", 768},
        {"visibleAgc.target", 42},
        {"visibleAgc.threshold", 11},
        {"visibleAgc.filterCoefficient", 22},
        {"visibleClhe.threshold", 1234},
        {"visibleClhe.filterCoefficient", 33},
        {"temperatures.sensorMillikelvin", 300950},
        {"temperatures.fpgaMillikelvin", 310150},
        {"bitStatus", 0xBEEF},
    };
    for (const auto &[key, value] : values) {
        simulator.set(std::string{"blendUnit."} + key, value);
    }
}

bool readBlendUnit(TestWindow &test)
{
    bool complete{false};
    if (!QMetaObject::invokeMethod(&test.window(), "readBlendUnitParameters", Qt::DirectConnection,
                                   Q_RETURN_ARG(bool, complete))) {
        QTest::qFail("the Blend Unit cannot be read", __FILE__, __LINE__);
    }
    return complete;
}

void readZoom(TestWindow &test, int selector)
{
    if (!QMetaObject::invokeMethod(&test.window(), "readZoom", Qt::DirectConnection, Q_ARG(int, selector))) {
        QTest::qFail("the zoom cannot be read", __FILE__, __LINE__);
    }
}

QString textOf(const TestWindow &test, const char *box)
{
    return test.child<QPlainTextEdit>(box).toPlainText();
}
