// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the table of bad pixels: its transfer from and to the camera.
#include "camerapage.h"
#include "owndirectory.h"
#include "testclass.h"

#include <QAbstractButton>
#include <QByteArray>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QWidget>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace
{

struct Transfer
{
    const char *button;
    const char *handler;
    const char *operation;
    const char *arguments;
    const char *failureBox;
    const char *lineBegin;
    const char *lineEnd;
};

constexpr std::array<Transfer, 2> transfers{{
    {"readBPRTableButton", "readBprTableClicked", "readBprTable", "(4096, 16384, 9)",
     R"(window icon "BPR table" "BPR table not read correctly" [OK])", "BPR table correctly saved to ", "."},
    {"writeBPRTableButton", "writeBprTableClicked", "writeBprTable", "(4096, 16384, 8)",
     R"(window icon "BPR table" "BPR table not write correctly" [OK])", "BPR table ", " correctly written."},
}};

void addTransfers()
{
    QTest::addColumn<std::size_t>("place");
    for (std::size_t place{0}; place < transfers.size(); ++place) {
        QTest::newRow(transfers.at(place).operation) << place;
    }
}

QString callOf(const Transfer &transfer, bool accepted)
{
    return QString{transfer.operation} + transfer.arguments + (accepted ? " -> true" : " -> false");
}

QString lineOf(const Transfer &transfer, const char *fileName)
{
    return QString{transfer.lineBegin} + fileName + transfer.lineEnd;
}

} // namespace

class BprTableTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { directory.emplace(); }
    void cleanup() { directory.reset(); }
    void readingSavesTheTable();
    void writingSendsTheFile();
    void writingWithoutAFileIsToldInABox();
    void aFailureIsToldInABoxBeforeTheLine_data() { addTransfers(); }
    void aFailureIsToldInABoxBeforeTheLine();
    void aDeviceThatIsClosedMeanwhileIsNotAsked_data() { addTransfers(); }
    void aDeviceThatIsClosedMeanwhileIsNotAsked();
    void theFileIsNamedAfterTheSerialNumber_data();
    void theFileIsNamedAfterTheSerialNumber();
    void theSerialNumberIsAskedEachTime();
    void theUnitInViewIsTheOneTransferred();
    void theLastResultIsLeft_data() { addTransfers(); }
    void theLastResultIsLeft();
    void withoutADeviceOnlyTheBoxIsShown_data() { addTransfers(); }
    void withoutADeviceOnlyTheBoxIsShown();
    void otherButtonsDoNothing_data();
    void otherButtonsDoNothing();

private:
    std::optional<OwnDirectory> directory;
};

void BprTableTest::readingSavesTheTable()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    clickHidden(test, "readBPRTableButton");
    QCOMPARE(test.takeCallsAndRecords(),
             (QStringList{"readBprTable(4096, 16384, 9) -> true", "getSerialNumber() -> 10417",
                          "log(2, \"BPR table correctly saved to bpr_SN10417.bin.\")"}));
    QCOMPARE(test.takeLog(), QStringList{"BPR table correctly saved to bpr_SN10417.bin."});
    QCOMPARE(QDir{}.entryList(QDir::Files), QStringList{"bpr_SN10417.bin"});
    QVERIFY(QFileInfo{"bpr_SN10417.bin"}.size() > 640 * 480 / 8);
}

void BprTableTest::writingSendsTheFile()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    clickHidden(test, "readBPRTableButton");
    test.takeLog();
    test.takeCalls();

    clickHidden(test, "writeBPRTableButton");
    QCOMPARE(test.takeCallsAndRecords(),
             (QStringList{"writeBprTable(4096, 16384, 8) -> true", "getSerialNumber() -> 10417",
                          "log(2, \"BPR table bpr_SN10417.bin correctly written.\")"}));
    QCOMPARE(test.takeLog(), QStringList{"BPR table bpr_SN10417.bin correctly written."});
}

void BprTableTest::writingWithoutAFileIsToldInABox()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.boxes.expect();
    clickHidden(test, "writeBPRTableButton");
    QCOMPARE(test.boxes.takeShown(),
             QStringList{R"(window icon "BPR table" "BPR table not write correctly" [OK])"});
    QCOMPARE(test.takeLog(), QStringList{"BPR table bpr_SN10417.bin correctly written."});
}

void BprTableTest::aFailureIsToldInABoxBeforeTheLine()
{
    QFETCH(const std::size_t, place);
    const Transfer &transfer{transfers.at(place)};
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.addFault({transfer.operation});

    QStringList callsBefore;
    QStringList linesBefore;
    const QWidget *parent{nullptr};
    test.boxes.expect([&](QDialog &box) {
        parent = box.parentWidget();
        callsBefore = test.takeCallsAndRecords();
        linesBefore = test.takeLog();
        BoxWatcher::pressOk(box);
    });
    clickHidden(test, transfer.button);
    QCOMPARE(test.boxes.takeShown(), QStringList{transfer.failureBox});
    QVERIFY(parent == &test.window());
    QCOMPARE(callsBefore, QStringList{callOf(transfer, false)});
    QCOMPARE(linesBefore, QStringList{});
    QCOMPARE(test.takeCalls(), QStringList{"getSerialNumber() -> 10417"});
    QCOMPARE(test.takeLog(), QStringList{lineOf(transfer, "bpr_SN10417.bin")});
}

void BprTableTest::aDeviceThatIsClosedMeanwhileIsNotAsked()
{
    QFETCH(const std::size_t, place);
    const Transfer &transfer{transfers.at(place)};
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.addFault({transfer.operation});
    test.boxes.expect([&](QDialog &box) {
        test.invoke("disconnectDevice");
        BoxWatcher::pressOk(box);
    });

    clickHidden(test, transfer.button);

    QCOMPARE(test.boxes.takeShown(), QStringList{transfer.failureBox});
    QCOMPARE(test.takeCalls(), (QStringList{callOf(transfer, false), "closeDevice(device)",
                                            "get_instance() -> sdk", "releaseDeviceManager(manager)"}));
    QCOMPARE(test.takeLog(), QStringList{});
}

void BprTableTest::theFileIsNamedAfterTheSerialNumber_data()
{
    QTest::addColumn<std::size_t>("place");
    QTest::addColumn<qlonglong>("serialNumber");
    QTest::addColumn<QByteArray>("fileName");
    for (std::size_t place{0}; place < transfers.size(); ++place) {
        const auto row = [place](qlonglong serialNumber, const char *fileName) {
            QTest::addRow("%s: %s", transfers.at(place).operation, fileName)
                << place << serialNumber << QByteArray{fileName};
        };
        row(0, "bpr_SN0.bin");
        row(1234, "bpr_SN1234.bin");
        row(2147483648, "bpr_SN2147483648.bin");
        row(4294967295, "bpr_SN4294967295.bin");
    }
}

void BprTableTest::theFileIsNamedAfterTheSerialNumber()
{
    QFETCH(const std::size_t, place);
    QFETCH(const qlonglong, serialNumber);
    QFETCH(const QByteArray, fileName);
    TestWindow test;
    openCameraPage(test, "LutSection");
    test.simulator.set("camera.serialNumber", std::int64_t{serialNumber});
    clickHidden(test, "readBPRTableButton");
    test.takeLog();

    clickHidden(test, transfers.at(place).button);
    QCOMPARE(test.takeLog(), QStringList{lineOf(transfers.at(place), fileName)});
    QCOMPARE(QDir{}.entryList(QDir::Files), QStringList{QString{fileName}});
}

void BprTableTest::theSerialNumberIsAskedEachTime()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    for (const int serialNumber : {1, 22, 333}) {
        test.simulator.set("camera.serialNumber", std::int64_t{serialNumber});
        clickHidden(test, "readBPRTableButton");
        QCOMPARE(test.takeLog(),
                 QStringList{QStringLiteral("BPR table correctly saved to bpr_SN%1.bin.").arg(serialNumber)});
    }
}

void BprTableTest::theUnitInViewIsTheOneTransferred()
{
    TestWindow test;
    test.beConnected();
    clickHidden(test, "readBPRTableButton");
    QCOMPARE(test.takeCalls(),
             (QStringList{"readBprTable(4096, 16384, 9) -> true", "getSerialNumber() -> 2063"}));
    QCOMPARE(test.takeLog(), QStringList{"BPR table correctly saved to bpr_SN2063.bin."});
}

void BprTableTest::theLastResultIsLeft()
{
    QFETCH(const std::size_t, place);
    const Transfer &transfer{transfers.at(place)};
    TestWindow test;
    openCameraPage(test, "LutSection");
    clickHidden(test, "readBPRTableButton");
    QVERIFY(test.lastCommandOk());
    test.simulator.addFault({transfer.operation});
    test.boxes.expect();
    clickHidden(test, transfer.button);
    QVERIFY(test.lastCommandOk());
    test.simulator.clearFaults();
    test.boxes.takeShown();

    letACommandFail(test);
    clickHidden(test, transfer.button);
    QCOMPARE(test.takeCalls().first(), callOf(transfer, true));
    QVERIFY(!test.lastCommandOk());
}

void BprTableTest::withoutADeviceOnlyTheBoxIsShown()
{
    QFETCH(const std::size_t, place);
    const Transfer &transfer{transfers.at(place)};
    TestWindow test;
    for (const bool connectedBefore : {false, true}) {
        if (connectedBefore) {
            test.beConnected();
            test.click("disconnectDeviceButton");
        }
        test.simulator.clearJournal();
        test.boxes.expect();
        test.invoke(transfer.handler);
        QCOMPARE(
            test.boxes.takeShown(),
            QStringList{QStringLiteral(R"(window icon "Camera not connected" "Unable to connect to %1" [OK])")
                            .arg(connectedBefore ? "SIM1" : "")});
        QCOMPARE(test.takeCallsAndRecords(), QStringList{});
        QCOMPARE(test.takeLog(), QStringList{});
    }
    QCOMPARE(QDir{}.entryList(QDir::Files), QStringList{});
}

void BprTableTest::otherButtonsDoNothing_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("reset of the table") << "resetBPRTableButton";
    QTest::newRow("graphic editor") << "bpGraphicEditorButton";
}

void BprTableTest::otherButtonsDoNothing()
{
    QFETCH(const QString, button);
    TestWindow test;
    openCameraPage(test, "LutSection");
    clickHidden(test, button);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
    QCOMPARE(QDir{}.entryList(QDir::Files), QStringList{});
    QVERIFY(test.child<QAbstractButton>(button).isEnabled());
}

PILOTEL_TEST_CLASS(BprTableTest)
#include "tst_bpr_table.moc"
