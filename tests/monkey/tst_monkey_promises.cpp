// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Each kind of command is compared with the window: as it is sent it is right, and beside a window that shows
// something else it is wrong.
#include "controls.h"
#include "panel.h"
#include "sentby.h"
#include "sentcommand.h"
#include "tables.h"
#include "testclass.h"
#include "testwindow.h"

#include <QByteArray>
#include <QMetaObject>
#include <QObject>
#include <QString>
#include <QTest>
#include <QVariant>
#include <QWidget>

#include <cstdint>
#include <tuple>
#include <vector>

using veltrix_simulator::Call;
using veltrix_simulator::Value;

class MonkeyPromisesTest : public QObject
{
    Q_OBJECT

private slots:
    void everyCommandIsComparedWithTheWindow_data();
    void everyCommandIsComparedWithTheWindow();
    void whatTheBoxAboutTheOrderRaisedIsComparedAsFarAsItIsShown();
};

namespace
{

/// Runs a handler by its name, with a number where it takes one.
void run(TestWindow &test, const QString &handler, int number)
{
    const QByteArray name{handler.toLatin1()};
    const bool takesNumber{test.window().metaObject()->indexOfMethod(name + "(int)") >= 0};
    QVERIFY(takesNumber ? QMetaObject::invokeMethod(&test.window(), name.constData(), Q_ARG(int, number))
                        : QMetaObject::invokeMethod(&test.window(), name.constData()));
}

/// What is wrong with the calls since the journal was cleared, beside that panel.
QString wrongBeside(const TestWindow &test, const Panel &panel, const Asked &asked,
                    bool boxesWereShown = false)
{
    const std::vector<Call> &journal{test.simulator.journal()};
    const QString wrong{wronglySent({0, journal.size(), panel}, journal, {asked, boxesWereShown, false})};
    return wrong.isEmpty() ? wronglyDeclared(journal, panel, asked) : wrong;
}

} // namespace

void MonkeyPromisesTest::everyCommandIsComparedWithTheWindow_data()
{
    QTest::addColumn<QString>("handler");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("other");
    const auto row = [](const QString &handler, const QString &property, const QVariant &other) {
        QTest::addRow("%s, %s", qPrintable(handler), qPrintable(property)) << handler << property << other;
    };
    for (const Pair &pair : pairs) {
        row(named(pair.sendSlot), named(pair.box) + QStringLiteral(".value"), pair.otherValue);
    }
    for (const ToggleRow &toggle : toggleRows) {
        row(named(toggle.slot), named(toggle.button) + QStringLiteral(".checked"), {});
    }
    for (const ChoiceRow &choice : choiceRows) {
        row(named(choice.slot), named(choice.comboBox) + QStringLiteral(".currentIndex"), 2);
    }
    for (const BoxRow &box : boxRows) {
        row(named(box.sendSlot), named(box.box) + QStringLiteral(".value"), box.otherValue);
    }
    for (const VideoModeRow &mode : videoModeRows) {
        row(named(mode.slot), named(mode.button) + QStringLiteral(".checked"), {});
    }
    for (const CorrectionRow &correction : correctionRows) {
        const QString property{named(correction.checkBox) + QStringLiteral(".checked")};
        row(QStringLiteral("ApplyParamsExpert"), property, {});
        if (correction.slot != nullptr) {
            row(named(correction.slot), property, {});
        }
    }
    for (const RegionRow &region : regionRows) {
        if (region.enable != nullptr) {
            const QString property{named(region.enable) + QStringLiteral(".checked")};
            row(named(region.enableSlot), property, {});
            row(QStringLiteral("y2RoiUserValueChanged"), property, {});
        }
    }
    for (const char *const coordinate : {"X1", "X2", "Y1", "Y2"}) {
        row(named(coordinate).toLower() + QStringLiteral("RoiUserValueChanged"),
            QStringLiteral("Roi0Inc%1.value").arg(named(coordinate)), 77);
    }
    for (const char *const coefficient : {"11", "21", "12", "22", "13", "23"}) {
        row(QStringLiteral("fusionWarpClicked"),
            QStringLiteral("WarpA%1CoeffSB.value").arg(named(coefficient)), 5);
    }
    for (const auto &[handler, property, other] :
         std::vector<std::tuple<const char *, const char *, QVariant>>{
             {"fusionWarpClicked", "FusionWarpCB.currentIndex", 2},
             {"configureZoomClicked", "FusionZoomFactorSB.value", 3.5},
             {"configureZoomClicked", "FusionZoomMethod.currentIndex", 1},
             {"startingModeChanged", "startingModeCB.currentIndex", 1},
             {"krBaudRateChanged", "BaudRateCB.currentIndex", 3},
             {"krBaudRateChanged", "PermanentButton.checked", {}},
             {"ApplyParamsExpert", "BaudRateCB.currentIndex", 3},
             {"ApplyParamsUser", "lutColorEdit.currentIndex", 4},
             {"ApplyParamsUser", "gammaEdit.value", 2.2},
             {"ChangeBaudRate", "BaudRateConnectCB.currentIndex", 0},
             {"targetChanged", "Principal_tab.currentIndex", 1},
             {"addBadPixelClicked", "xBadPixelCoordinate.value", 7},
             {"addBadPixelLineClicked", "yBadPixelCoordinate.value", 7},
             {"removeBadPixelColumnClicked", "xBadPixelCoordinate.value", 7},
         }) {
        row(named(handler), named(property), other);
    }
}

void MonkeyPromisesTest::everyCommandIsComparedWithTheWindow()
{
    QFETCH(const QString, handler);
    QFETCH(const QString, property);
    QFETCH(const QVariant, other);
    TestWindow test{{}, TestWindow::Drawing::Off};
    test.beConnected();
    // A rate that the camera has already is not sent.
    test.simulator.addFault({"getFrameRate", 1, 0, std::vector<Value>{std::int64_t{9}}});
    test.simulator.clearJournal();
    run(test, handler, 0);
    const Asked asked{handler == QStringLiteral("targetChanged") ? askedFrom(QStringLiteral("Principal_tab"))
                                                                 : askedFromHandler(handler, 0)};
    Panel panel{panelOf(test.window())};
    QVERIFY(needPicture(test.simulator.journal(), 0));
    QCOMPARE(wrongBeside(test, panel, asked), QString{});

    QVERIFY2(panel.contains(property), qPrintable(property));
    const QVariant changed{other.isValid() ? other : QVariant{!panel.value(property).toBool()}};
    QVERIFY2(panel.value(property) != changed, "the row changes nothing");
    panel[property] = changed;
    QVERIFY2(!wrongBeside(test, panel, asked).isEmpty(), "nobody noticed");
}

void MonkeyPromisesTest::whatTheBoxAboutTheOrderRaisedIsComparedAsFarAsItIsShown()
{
    TestWindow test{{}, TestWindow::Drawing::Off};
    test.beConnected();
    test.child<QWidget>("Roi0IncX2").setProperty("value", 100);
    test.child<QWidget>("Roi0IncX1").setProperty("value", 200);
    test.simulator.clearJournal();
    test.boxes.expect();
    run(test, QStringLiteral("x1RoiUserValueChanged"), 0);
    test.boxes.takeShown();
    const Asked asked{askedFromHandler(QStringLiteral("x1RoiUserValueChanged"), 0)};
    Panel panel{panelOf(test.window())};
    QCOMPARE(panel.value(QStringLiteral("Roi0IncX1.value")).toInt(), 100);
    QCOMPARE(wrongBeside(test, panel, asked, true), QString{});
    // Without a box it would have to be what is shown.
    QVERIFY(!wrongBeside(test, panel, asked, false).isEmpty());
    panel[QStringLiteral("Roi0IncX1.value")] = 201;
    QVERIFY(!wrongBeside(test, panel, asked, true).isEmpty());
}

PILOTEL_TEST_CLASS(MonkeyPromisesTest)
#include "tst_monkey_promises.moc"
