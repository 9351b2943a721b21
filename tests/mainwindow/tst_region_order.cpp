// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the regions of interest: coordinates in the wrong order are told and corrected, and sent as
// edited.
#include "mouse.h"
#include "regioncoordinates.h"
#include "testclass.h"

#include <QByteArray>
#include <QCheckBox>
#include <QCoreApplication>
#include <QDialog>
#include <QMetaObject>
#include <QObject>
#include <QRegularExpression>
#include <QSpinBox>
#include <QString>
#include <QStringList>
#include <QTest>

#include <cstddef>

class RegionOrderTest : public QObject
{
    Q_OBJECT

private slots:
    void equalCoordinatesAreInOrder_data() { addCoordinates(); }
    void equalCoordinatesAreInOrder();
    void wrongOrderMovesTheFirstAndSendsTheEdited_data() { addCoordinates(); }
    void wrongOrderMovesTheFirstAndSendsTheEdited();
    void wrongOrderIsToldInTheseWords_data();
    void wrongOrderIsToldInTheseWords();
    void oneCommandHoweverTheEditEnds_data();
    void oneCommandHoweverTheEditEnds();
    void theBoxComesBeforeTheCommand();
    void anEditThatIsToldWhileTheBoxIsShownSendsNothing();
    void aReadWhileTheBoxIsShownIsFollowed();
    void leavingAfterTheCorrectionSendsWhatIsShown();
    void aRefusalAfterTheCorrectionKeepsIt();
    void disconnectingFinishesTheEditFirst();
    void aDeviceThatIsClosedMeanwhileGetsNothing();
    void withoutADeviceOnlyTheOrderIsChecked_data() { addCoordinates(); }
    void withoutADeviceOnlyTheOrderIsChecked();
};

void RegionOrderTest::equalCoordinatesAreInOrder()
{
    QFETCH(const std::size_t, place);
    const Coordinate &coordinate{coordinates.at(place)};
    TestWindow test;
    openRegion(test, coordinate.number);
    show(test, coordinate.first, 100);
    show(test, coordinate.second, 100);

    type(test, coordinate.box, 100);
    press(test, coordinate.box, Qt::Key_Return);

    QCOMPARE(test.takeCalls(),
             QStringList{sent(coordinate.name, 100, coordinate.number,
                              flagsOfOnly.at(static_cast<std::size_t>(coordinate.number)))});
    QCOMPARE(test.boxes.takeShown(), QStringList{});
}

void RegionOrderTest::wrongOrderMovesTheFirstAndSendsTheEdited()
{
    QFETCH(const std::size_t, place);
    const Coordinate &coordinate{coordinates.at(place)};
    const bool firstEdited{qstrcmp(coordinate.box, coordinate.first) == 0};
    TestWindow test;
    openRegion(test, coordinate.number);
    show(test, coordinate.first, 150);
    show(test, coordinate.second, 200);
    const int edited{firstEdited ? 300 : 100};
    const int second{firstEdited ? 200 : 100};

    type(test, coordinate.box, edited);
    test.boxes.expect();
    press(test, coordinate.box, Qt::Key_Return);

    const QByteArray firstName{QByteArray{coordinate.first}.right(2)};
    QCOMPARE(test.boxes.takeShown(), QStringList{orderBox(coordinate.number, firstName)});
    QCOMPARE(shown(test, coordinate.first), second);
    QCOMPARE(shown(test, coordinate.second), second);
    const QString line{QStringLiteral("Set ROI %1 %2 value OK").arg(coordinate.number).arg(coordinate.name)};
    const QString call{sent(coordinate.name, edited, coordinate.number,
                            flagsOfOnly.at(static_cast<std::size_t>(coordinate.number)))};
    QCOMPARE(test.takeCallsAndRecords(), (QStringList{call, record(line)}));
    QCOMPARE(test.takeLog(), QStringList{line});
    QVERIFY(test.lastCommandOk());
}

void RegionOrderTest::wrongOrderIsToldInTheseWords_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("edited");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("line");
    const auto row = [](int number, const char *edited, int first, int second, const char *box,
                        const char *call, const char *line) {
        QTest::newRow(call) << number << edited << first << second
                            << QStringLiteral("window icon \"ROI\" \"%1\" [OK]").arg(box) << call << line;
    };
    row(0, "Roi0IncX1", 300, 200, "ROI 0 X1 must be lower than ROI X2",
        "setRoiX1(300, 0, false, false, false) -> true", "Set ROI 0 X1 value OK");
    row(1, "Roi1IncY1", 51, 50, "ROI 1 Y1 must be lower than ROI Y2",
        "setRoiY1(51, 1, true, false, false) -> true", "Set ROI 1 Y1 value OK");
    row(2, "Roi0ExcY2", 475, 474, "ROI 2 Y1 must be lower than ROI Y2",
        "setRoiY2(474, 2, false, true, false) -> true", "Set ROI 2 Y2 value OK");
    row(3, "Roi1ExcX2", 150, 100, "ROI 3 X1 must be lower than ROI X2",
        "setRoiX2(100, 3, false, false, true) -> true", "Set ROI 3 X2 value OK");
}

void RegionOrderTest::wrongOrderIsToldInTheseWords()
{
    QFETCH(const int, number);
    QFETCH(const QString, edited);
    QFETCH(const int, first);
    QFETCH(const int, second);
    QFETCH(const QString, box);
    QFETCH(const QString, call);
    QFETCH(const QString, line);
    const QString pair{edited.chopped(1)};
    TestWindow test;
    openRegion(test, number);
    test.child<QSpinBox>(pair + '1').setValue(first);
    test.child<QSpinBox>(pair + '2').setValue(second);

    type(test, edited, edited.endsWith('1') ? first : second);
    test.boxes.expect();
    press(test, edited, Qt::Key_Enter);

    QCOMPARE(test.boxes.takeShown(), QStringList{box});
    QCOMPARE(test.takeCalls(), QStringList{call});
    QCOMPARE(test.takeLog(), QStringList{line});
    QCOMPARE(test.child<QSpinBox>(pair + '1').value(), second);
    QCOMPARE(test.child<QSpinBox>(pair + '2').value(), second);
}

void RegionOrderTest::oneCommandHoweverTheEditEnds_data()
{
    QTest::addColumn<QString>("edited");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("ending");
    QTest::addColumn<QString>("call");
    for (const char *const ending :
         {"Enter", "Tab", "Backtab", "click on logView", "click on Roi0IncY2", "click on clheEdit"}) {
        QTest::addRow("first, %s", ending)
            << "Roi0IncX1" << 300 << ending << "setRoiX1(300, 0, false, false, false) -> true";
        QTest::addRow("second, %s", ending)
            << "Roi0IncX2" << 90 << ending << "setRoiX2(90, 0, false, false, false) -> true";
    }
}

void RegionOrderTest::oneCommandHoweverTheEditEnds()
{
    QFETCH(const QString, edited);
    QFETCH(const int, value);
    QFETCH(const QString, ending);
    QFETCH(const QString, call);
    TestWindow test;
    openRegion(test, 0);
    show(test, "Roi0IncX1", 100);
    show(test, "Roi0IncX2", 200);
    type(test, edited, value);
    test.boxes.expect();

    if (ending == "Enter") {
        press(test, edited, Qt::Key_Enter);
    } else if (ending == "Tab") {
        press(test, edited, Qt::Key_Tab);
    } else if (ending == "Backtab") {
        press(test, edited, Qt::Key_Backtab);
    } else {
        pressMouseOn(test, ending.section(' ', -1));
        QCoreApplication::processEvents();
    }

    QCOMPARE(test.boxes.takeShown(), QStringList{orderBox(0, "X1")});
    // The message box takes the focus from the spin box that it went to; that must not count as a finished
    // edit.
    QCOMPARE(test.takeCalls(), QStringList{call});
    QCOMPARE(shown(test, "Roi0IncX1"), shown(test, "Roi0IncX2"));
}

void RegionOrderTest::theBoxComesBeforeTheCommand()
{
    TestWindow test;
    openRegion(test, 0);
    show(test, "Roi0IncX2", 200);
    type(test, "Roi0IncX1", 300);

    QStringList callsBefore;
    int firstBefore{0};
    test.boxes.expect([&](QDialog &box) {
        callsBefore = test.takeCallsAndRecords();
        firstBefore = shown(test, "Roi0IncX1");
        BoxWatcher::pressOk(box);
    });
    press(test, "Roi0IncX1", Qt::Key_Return);

    QCOMPARE(callsBefore, QStringList{});
    QCOMPARE(firstBefore, 200);
    QCOMPARE(test.takeCalls(), QStringList{"setRoiX1(300, 0, false, false, false) -> true"});
}

void RegionOrderTest::anEditThatIsToldWhileTheBoxIsShownSendsNothing()
{
    TestWindow test;
    openRegion(test, 0);
    test.child<QSpinBox>("Roi0IncX1").setValue(100);
    test.child<QSpinBox>("Roi0IncX2").setValue(90);
    test.takeCalls();
    test.boxes.expect([&test](QDialog &box) {
        // As a script would: it runs handlers by their names.
        QMetaObject::invokeMethod(&test.window(), "y1RoiUserValueChanged", Q_ARG(int, 0));
        BoxWatcher::pressOk(box);
    });
    QMetaObject::invokeMethod(&test.window(), "x1RoiUserValueChanged", Q_ARG(int, 0));
    QCOMPARE(test.boxes.takeShown().size(), 1);
    QCOMPARE(test.takeCalls(), QStringList{"setRoiX1(100, 0, false, false, false) -> true"});
}

void RegionOrderTest::aReadWhileTheBoxIsShownIsFollowed()
{
    TestWindow test;
    openRegion(test, 3);
    show(test, "Roi1ExcY1", 100);
    type(test, "Roi1ExcY2", 50);
    test.simulator.set("camera.roi3.x1", 0);
    test.boxes.expect([&test](QDialog &box) {
        // As a script would. The enable box has the focus, and the read switches it off.
        test.invoke("readCameraParameters");
        BoxWatcher::pressOk(box);
    });

    press(test, "Roi1ExcY2", Qt::Key_Tab);

    QCOMPARE(test.boxes.takeShown(), QStringList{orderBox(3, "Y1")});
    QVERIFY(!test.child<QCheckBox>("roi1ExcEnable").isChecked());
    QCOMPARE(test.enabledOf({"Roi1ExcX1", "Roi1ExcX2", "Roi1ExcY1", "Roi1ExcY2"}), QStringList{});
    const QStringList calls{test.takeCalls()};
    QCOMPARE(calls.filter(QRegularExpression{"^setRoi"}),
             (QStringList{
                 "setRoiX1(0, 3, false, false, false) -> true", "setRoiX2(0, 3, false, false, false) -> true",
                 "setRoiY1(0, 3, false, false, false) -> true", "setRoiY2(0, 3, false, false, false) -> true",
                 "setRoiY2(50, 3, false, false, false) -> true"}));
}

void RegionOrderTest::leavingAfterTheCorrectionSendsWhatIsShown()
{
    TestWindow test;
    openRegion(test, 0);
    show(test, "Roi0IncX2", 200);
    type(test, "Roi0IncX1", 300);
    test.boxes.expect();
    press(test, "Roi0IncX1", Qt::Key_Return);
    test.takeCalls();
    test.window().activateWindow();
    QTRY_VERIFY(test.child<QSpinBox>("Roi0IncX1").hasFocus());

    press(test, "Roi0IncX1", Qt::Key_Tab);
    QCOMPARE(test.takeCalls(), QStringList{"setRoiX1(200, 0, false, false, false) -> true"});
    QCOMPARE(test.boxes.takeShown().size(), 1);
}

void RegionOrderTest::aRefusalAfterTheCorrectionKeepsIt()
{
    TestWindow test;
    openRegion(test, 1);
    show(test, "Roi1IncY1", 40);
    show(test, "Roi1IncY2", 60);
    test.simulator.addFault({"setRoiY2"});
    type(test, "Roi1IncY2", 30);
    test.boxes.expect();
    press(test, "Roi1IncY2", Qt::Key_Return);

    QCOMPARE(test.boxes.takeShown(), QStringList{orderBox(1, "Y1")});
    QCOMPARE(test.takeCalls(), QStringList{"setRoiY2(30, 1, true, false, false) -> false"});
    QCOMPARE(test.takeLog(), QStringList{"Set ROI Y2 value KO"});
    QVERIFY(!test.lastCommandOk());
    QCOMPARE(shown(test, "Roi1IncY1"), 30);
    QCOMPARE(shown(test, "Roi1IncY2"), 30);
}

void RegionOrderTest::disconnectingFinishesTheEditFirst()
{
    TestWindow test;
    openRegion(test, 0);
    show(test, "Roi0IncX2", 200);
    type(test, "Roi0IncX1", 300);

    test.boxes.expect();
    test.invoke("disconnectDevice");
    QCOMPARE(test.boxes.takeShown(), QStringList{orderBox(0, "X1")});
    QCOMPARE(test.takeCalls(),
             (QStringList{"setRoiX1(300, 0, false, false, false) -> true", "closeDevice(device)",
                          "get_instance() -> sdk", "releaseDeviceManager(manager)"}));
    QCOMPARE(test.takeLog(), QStringList{"Set ROI 0 X1 value OK"});
}

void RegionOrderTest::aDeviceThatIsClosedMeanwhileGetsNothing()
{
    TestWindow test;
    openRegion(test, 0);
    show(test, "Roi0IncX2", 200);
    type(test, "Roi0IncX1", 300);
    test.boxes.expect([&](QDialog &box) {
        test.invoke("disconnectDevice");
        BoxWatcher::pressOk(box);
    });

    press(test, "Roi0IncX1", Qt::Key_Return);

    QCOMPARE(test.boxes.takeShown(), QStringList{orderBox(0, "X1")});
    QCOMPARE(test.takeCalls(),
             (QStringList{"closeDevice(device)", "get_instance() -> sdk", "releaseDeviceManager(manager)"}));
    QCOMPARE(test.takeLog(), QStringList{});
    QCOMPARE(shown(test, "Roi0IncX1"), 200);
}

void RegionOrderTest::withoutADeviceOnlyTheOrderIsChecked()
{
    QFETCH(const std::size_t, place);
    const Coordinate &coordinate{coordinates.at(place)};
    TestWindow test;
    for (const bool connectedBefore : {false, true}) {
        if (connectedBefore) {
            test.beConnected();
            test.click("disconnectDeviceButton");
        }
        test.takeCallsAndRecords();
        test.takeLog();
        const bool lastCommandOk{test.lastCommandOk()};
        show(test, coordinate.first, 300);
        show(test, coordinate.second, 200);

        test.boxes.expect();
        finishEdit(test, coordinate.name, coordinate.number);
        QCOMPARE(test.boxes.takeShown(),
                 QStringList{orderBox(coordinate.number, QByteArray{coordinate.first}.right(2))});
        QCOMPARE(shown(test, coordinate.first), 200);
        QCOMPARE(test.takeCallsAndRecords(), QStringList{});
        QCOMPARE(test.takeLog(), QStringList{});
        QCOMPARE(test.lastCommandOk(), lastCommandOk);

        finishEdit(test, coordinate.name, coordinate.number);
        QCOMPARE(test.boxes.takeShown(), QStringList{});
        QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    }
}

PILOTEL_TEST_CLASS(RegionOrderTest)
#include "tst_region_order.moc"
