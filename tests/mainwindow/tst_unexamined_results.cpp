// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Reads whose result is false although the record was filled in: the program goes by the record where the
// contract says that the result is not examined.
#include "camerapage.h"
#include "filledblendunit.h"
#include "testclass.h"

#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTest>

#include <optional>
#include <vector>

using veltrix_simulator::Fault;
using veltrix_simulator::Value;
using Values = std::vector<Value>;

Q_DECLARE_METATYPE(Fault)

namespace
{

/// The call in the journal, refused in the words of its result only.
QStringList callsOf(const QStringList &calls, const Fault &fault)
{
    return calls.filter(QRegularExpression{'^' + QString::fromStdString(fault.operation) + R"(\()"});
}

} // namespace

class UnexaminedResultsTest : public QObject
{
    Q_OBJECT

private slots:
    void cameraIsReadAllTheSame_data();
    void cameraIsReadAllTheSame();
    void blendUnitIsReadAllTheSame_data();
    void blendUnitIsReadAllTheSame();
    void windowConnectsAllTheSame();
    void windowOpensWithAnSdkThatDidNotInitialize();
};

void UnexaminedResultsTest::cameraIsReadAllTheSame_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("line");
    const auto row = [](const char *operation, const Values &answer, const char *call, const char *line) {
        QTest::newRow(operation) << Fault{operation, 1, 0, answer} << QString{call} << QString{line};
    };
    row("getFirmwareVersions", {false, 0x0123, 0x3456},
        "getFirmwareVersions() -> false {processor=291, fpga=13398}",
        "RISC-V version = 1.2.3\nFPGA version = 4.5.6 MIPI 9Hz");
    row("startReading", {false}, "startReading() -> false", "Start reading camera parameters");
    row("getOperatingInfo", {false, 123456, 789},
        "getOperatingInfo() -> false {operatingMinutes=123456, startupCount=789}",
        "Operating time = 123456 min\nStartup number = 789");
}

void UnexaminedResultsTest::cameraIsReadAllTheSame()
{
    QFETCH(const Fault, fault);
    QFETCH(const QString, call);
    QFETCH(const QString, line);
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.addFault(fault);

    QVERIFY(readCamera(test));

    QCOMPARE(callsOf(test.takeCalls(), fault), QStringList{call});
    const QString log{test.takeLog().join('\n')};
    QVERIFY2(log.contains('\n' + line + '\n') || log.startsWith(line + '\n'), qPrintable(log));
    QVERIFY2(log.endsWith("End reading camera parameters"), qPrintable(log));
}

void UnexaminedResultsTest::blendUnitIsReadAllTheSame_data()
{
    QTest::addColumn<Fault>("fault");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("line");
    const auto row = [](const char *operation, const Values &answer, const char *call, const char *line) {
        QTest::newRow(operation) << Fault{operation, 1, 0, answer} << QString{call} << QString{line};
    };
    row("getFirmwareVersions", {false, 0x1204, 0x2A01},
        "getFirmwareVersions() -> false {processor=4612, fpga=10753}",
        "RISC-V version = 1.2.0 Beta4\nFPGA version = 2.a.0.1");
    row("startReading", {false}, "startReading() -> false", "Start reading Fusion parameters");
    row("getZoomConfig", {false, 2.5, 1234, 1000, 0},
        "getZoomConfig() -> false {factor=2.5, xCenter=1234, yCenter=1000, method=0}",
        "Fusion X zoom center = 1234\nFusion Y zoom center = 1000");
    row("getZoomResolution", {false, 1920, 1080}, "getZoomResolution() -> false {x=1920, y=1080}",
        "Fusion X zoom resolution = 1920\nFusion Y zoom resolution = 1080");
}

void UnexaminedResultsTest::blendUnitIsReadAllTheSame()
{
    QFETCH(const Fault, fault);
    QFETCH(const QString, call);
    QFETCH(const QString, line);
    TestWindow test;
    test.beConnected();
    test.simulator.addFault(fault);

    QVERIFY(readBlendUnit(test));

    QCOMPARE(callsOf(test.takeCalls(), fault), QStringList{call});
    const QString log{test.takeLog().join('\n')};
    QVERIFY2(log.contains('\n' + line + '\n') || log.startsWith(line + '\n'), qPrintable(log));
    QVERIFY2(log.endsWith("End reading Fusion parameters"), qPrintable(log));
}

void UnexaminedResultsTest::windowConnectsAllTheSame()
{
    TestWindow test;
    test.simulator.addFault({"getFirmwareVersions", 1, 0, Values{false, 0x0123, 0x3456}});
    test.simulator.addFault({"startReading", 1, 0, Values{false}});
    test.simulator.addFault({"getOperatingInfo", 1, 0, Values{false, 123456, 789}});
    test.simulator.addFault({"getTemperatures", 1, 0, Values{false, 310150.0, 314500.0}});

    test.beConnected();

    QCOMPARE(test.boxes.takeShown(), QStringList{});
    QCOMPARE(test.child<QPlainTextEdit>("FpgaTempTextEdit").toPlainText(), QStringLiteral("41.5C"));
    QCOMPARE(test.child<QPlainTextEdit>("SensorTempTextEdit").toPlainText(), QStringLiteral("37.15C"));
    QCOMPARE(test.child<QPlainTextEdit>("FusionFpgaTempTextEdit").toPlainText(), QStringLiteral("41.5C"));
}

void UnexaminedResultsTest::windowOpensWithAnSdkThatDidNotInitialize()
{
    TestWindow test{[](veltrix_simulator::Simulator &simulator) {
        simulator.addFault({"initialize"});
    }};

    QCOMPARE(test.takeCalls().filter("initialize"), QStringList{"initialize() -> false"});
    test.beConnected();
}

PILOTEL_TEST_CLASS(UnexaminedResultsTest)
#include "tst_unexamined_results.moc"
