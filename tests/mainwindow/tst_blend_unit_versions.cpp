// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the firmware versions of the Blend Unit, which tell whether it answers at all.
#include "connectingtranscripts.h"
#include "filledblendunit.h"
#include "testclass.h"

#include <QAbstractButton>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTabWidget>
#include <QTest>

#include <string>
#include <vector>

using veltrix_simulator::Simulator;
using veltrix_simulator::Value;

namespace
{

void setVersions(Simulator &simulator, int processor, int fpga)
{
    simulator.set("blendUnit.firmwareVersions.processor", processor);
    simulator.set("blendUnit.firmwareVersions.fpga", fpga);
}

} // namespace

class BlendUnitVersionsTest : public QObject
{
    Q_OBJECT

private slots:
    void versionLines_data();
    void versionLines();
    void bothVersionsZeroEndTheRead_data();
    void bothVersionsZeroEndTheRead();
    void withoutADeviceTheReadFails();
    void withoutADeviceTheReadOfAllFails();
    void failedReadOfAllLeavesTheBlendUnitAddressed();
};

void BlendUnitVersionsTest::versionLines_data()
{
    QTest::addColumn<int>("processor");
    QTest::addColumn<int>("fpga");
    QTest::addColumn<QString>("processorLine");
    QTest::addColumn<QString>("fpgaLine");

    const auto row = [](const char *name, int processor, int fpga, const char *processorLine,
                        const char *fpgaLine) {
        QTest::newRow(name) << processor << fpga << QString{processorLine} << QString{fpgaLine};
    };
    row("Beta4 and a letter", 0x1204, 0x2A01, "RISC-V version = 1.2.0 Beta4", "FPGA version = 2.a.0.1");
    row("Beta0", 0x1000, 0x0001, "RISC-V version = 1.0.0 Beta0", "FPGA version = 0.0.0.1");
    row("only the processor is 0", 0, 0x0100, "RISC-V version = 0.0.0 Beta0", "FPGA version = 0.1.0.0");
    row("only the FPGA is 0", 0x0010, 0, "RISC-V version = 0.0.1 Beta0", "FPGA version = 0.0.0.0");
    row("every nibble its own", 0x1234, 0xABCD, "RISC-V version = 1.2.3 Beta4", "FPGA version = a.b.c.d");
    row("all ones", 0xFFFF, 0xFFFF, "RISC-V version = f.f.f Betaf", "FPGA version = f.f.f.f");
}

void BlendUnitVersionsTest::versionLines()
{
    QFETCH(const int, processor);
    QFETCH(const int, fpga);
    QFETCH(const QString, processorLine);
    QFETCH(const QString, fpgaLine);
    TestWindow test;
    test.beConnected();
    fillBlendUnit(test.simulator);
    setVersions(test.simulator, processor, fpga);

    QVERIFY(readBlendUnit(test));

    const QStringList expected{"Start reading Fusion parameters", processorLine, fpgaLine,
                               "Serial number = 4000000001"};
    QCOMPARE(test.takeLog().mid(0, 4), expected);
}

void BlendUnitVersionsTest::bothVersionsZeroEndTheRead_data()
{
    QTest::addColumn<bool>("ok");

    QTest::newRow("answered") << true;
    QTest::newRow("refused") << false;
}

void BlendUnitVersionsTest::bothVersionsZeroEndTheRead()
{
    QFETCH(const bool, ok);
    TestWindow test;
    test.beConnected();
    const QString bitsBefore{textOf(test, "BitTextEdit")};
    fillBlendUnit(test.simulator);
    test.simulator.addFault({"getFirmwareVersions", 1, 0, std::vector<Value>{ok, 0, 0}});
    test.boxes.expect();

    QVERIFY(!readBlendUnit(test));

    QCOMPARE(test.boxes.takeShown(), QStringList{notConnectedBox});
    const QString call{"getFirmwareVersions() -> %1 {processor=0, fpga=0}"};
    QCOMPARE(test.takeCalls(), QStringList{call.arg(ok ? "true" : "false")});
    const QStringList log{"Start reading Fusion parameters", "End Read camera parameters : COM Error"};
    QCOMPARE(test.takeLog(), log);
    QCOMPARE(textOf(test, "BitTextEdit"), bitsBefore);
    QVERIFY(test.child<QAbstractButton>("BU_FUSION_MODE_PB").isChecked());
}

void BlendUnitVersionsTest::withoutADeviceTheReadFails()
{
    TestWindow test;
    const QStringList line{"Could not read Fusion parameters"};
    const QStringList record{R"(log(2, "Could not read Fusion parameters"))"};
    test.takeCalls();

    QVERIFY(!readBlendUnit(test));
    QCOMPARE(test.takeCallsAndRecords(), record);
    QCOMPARE(test.takeLog(), line);

    test.beConnected();
    test.click("disconnectDeviceButton");
    test.takeCalls();
    QVERIFY(!readBlendUnit(test));
    QCOMPARE(test.takeCallsAndRecords(), record);
    QCOMPARE(test.takeLog(), line);
}

void BlendUnitVersionsTest::withoutADeviceTheReadOfAllFails()
{
    TestWindow test;
    test.takeCalls();

    test.invoke("readAllParameters");

    QCOMPARE(test.takeCalls(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{"Could not read Fusion parameters"});
}

void BlendUnitVersionsTest::failedReadOfAllLeavesTheBlendUnitAddressed()
{
    TestWindow test;
    test.beConnected();
    fillBlendUnit(test.simulator);
    test.showPage("Veltrix_KR_tab");
    test.takeCalls();
    test.takeLog();
    setVersions(test.simulator, 0, 0);
    test.boxes.expect();

    test.click("readParamButtonUser");

    QCOMPARE(test.boxes.takeShown(), QStringList{notConnectedBox});
    const QStringList calls{
        "setTarget(0) -> true",
        "getTemperatures() -> true {sensorMillikelvin=300950, fpgaMillikelvin=310150}",
        "getFirmwareVersions() -> true {processor=0, fpga=0}",
    };
    QCOMPARE(test.takeCalls(), calls);
    const QStringList log{"target correctly changed", "Start reading Fusion parameters",
                          "End Read camera parameters : COM Error"};
    QCOMPARE(test.takeLog(), log);
    QCOMPARE(test.child<QTabWidget>("Principal_tab").currentIndex(), 1);

    test.invoke("readVideoMode");
    QCOMPARE(test.simulator.journal().front().operation, std::string{"getVideoMode"});
    QCOMPARE(test.simulator.journal().front().target, 0);
}

PILOTEL_TEST_CLASS(BlendUnitVersionsTest)
#include "tst_blend_unit_versions.moc"
