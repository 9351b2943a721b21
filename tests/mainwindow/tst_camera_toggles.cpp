// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the camera's toggle buttons: what a click sends, tells and shows.
#include "camerapage.h"
#include "controls.h"
#include "testclass.h"

#include <QObject>
#include <QPushButton>
#include <QString>
#include <QStringList>
#include <QTest>

#include <cstddef>
#include <string>

namespace
{

void addToggles()
{
    QTest::addColumn<std::size_t>("place");
    for (std::size_t place{0}; place < toggleRows.size(); ++place) {
        QTest::newRow(toggleRows.at(place).button) << place;
    }
}

std::string commandOf(const ToggleRow &toggle)
{
    return std::string{"set"} + toggle.operation;
}

/// The journal of one click.
QStringList told(const ToggleRow &toggle, bool sent, bool accepted)
{
    return {QStringLiteral("set%1(%2) -> %3")
                .arg(toggle.operation, sent ? "true" : "false", accepted ? "true" : "false"),
            QStringLiteral("log(2, \"%1 %2\")").arg(toggle.action, accepted ? "OK" : "KO")};
}

QString lineOf(const ToggleRow &toggle, const char *outcome)
{
    return QStringLiteral("%1 %2").arg(toggle.action, outcome);
}

QString textOf(const ToggleRow &toggle, bool activated)
{
    return QStringLiteral("%1: %2").arg(toggle.caption, activated ? "Activated" : "Deactivated");
}

/// Connects to a camera of which the setting has that state, and shows its page.
void openToggle(TestWindow &test, const ToggleRow &toggle, bool state)
{
    test.simulator.set(toggle.key, state);
    openCameraPage(test, toggle.page);
    QCOMPARE(test.child<QPushButton>(toggle.button).isChecked(), state);
    QCOMPARE(test.child<QPushButton>(toggle.button).text(), textOf(toggle, state));
}

/// Leaves the device open with nothing read from it: the Blend Unit does not answer for its versions.
void openWithoutReading(TestWindow &test)
{
    test.simulator.addFault({"getFirmwareVersions", 1, 1});
    test.boxes.expect();
    test.scanAndConnect();
    QCOMPARE(test.boxes.takeShown(),
             QStringList{R"(window icon "Camera not connected" "Unable to connect to SIM1" [OK])"});
    QVERIFY(test.simulator.isDeviceOpen());
    test.takeLog();
    test.simulator.clearJournal();
}

} // namespace

class CameraTogglesTest : public QObject
{
    Q_OBJECT

private slots:
    void aClickSendsTheNewState_data() { addToggles(); }
    void aClickSendsTheNewState();
    void theSpaceKeyTogglesToo_data() { addToggles(); }
    void theSpaceKeyTogglesToo();
    void aRefusalLeavesTheTextAndTheNewState_data();
    void aRefusalLeavesTheTextAndTheNewState();
    void theTextCatchesUpWithTheNextClicks_data() { addToggles(); }
    void theTextCatchesUpWithTheNextClicks();
    void onlyTheOppositeWordChanges_data() { addToggles(); }
    void onlyTheOppositeWordChanges();
    void beforeAnyReadTheFormsTextsCount_data();
    void beforeAnyReadTheFormsTextsCount();
};

void CameraTogglesTest::aClickSendsTheNewState()
{
    QFETCH(const std::size_t, place);
    const ToggleRow &toggle{toggleRows.at(place)};
    TestWindow test;
    openToggle(test, toggle, false);
    const auto &button = test.child<QPushButton>(toggle.button);

    for (const bool state : {true, false, true}) {
        test.click(toggle.button);
        QCOMPARE(test.takeCallsAndRecords(), told(toggle, state, true));
        QCOMPARE(test.takeLog(), QStringList{lineOf(toggle, "OK")});
        QCOMPARE(button.isChecked(), state);
        QCOMPARE(button.text(), textOf(toggle, state));
        QVERIFY(test.lastCommandOk());
        QCOMPARE(std::get<bool>(test.simulator.get(toggle.key)), state);
    }
}

void CameraTogglesTest::theSpaceKeyTogglesToo()
{
    QFETCH(const std::size_t, place);
    const ToggleRow &toggle{toggleRows.at(place)};
    TestWindow test;
    openToggle(test, toggle, true);
    auto &button = test.child<QPushButton>(toggle.button);

    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Space);
    QCOMPARE(test.takeCallsAndRecords(), told(toggle, false, true));
    QCOMPARE(button.text(), textOf(toggle, false));
}

void CameraTogglesTest::aRefusalLeavesTheTextAndTheNewState_data()
{
    QTest::addColumn<std::size_t>("place");
    QTest::addColumn<bool>("before");
    for (std::size_t place{0}; place < toggleRows.size(); ++place) {
        for (const bool before : {false, true}) {
            QTest::newRow(qPrintable(textOf(toggleRows.at(place), before))) << place << before;
        }
    }
}

void CameraTogglesTest::aRefusalLeavesTheTextAndTheNewState()
{
    QFETCH(const std::size_t, place);
    QFETCH(const bool, before);
    const ToggleRow &toggle{toggleRows.at(place)};
    TestWindow test;
    openToggle(test, toggle, before);
    QVERIFY(test.lastCommandOk());
    test.simulator.addFault({commandOf(toggle)});

    test.click(toggle.button);
    QCOMPARE(test.takeCallsAndRecords(), told(toggle, !before, false));
    QCOMPARE(test.takeLog(), QStringList{lineOf(toggle, "KO")});
    QVERIFY(!test.lastCommandOk());
    QCOMPARE(test.child<QPushButton>(toggle.button).isChecked(), !before);
    QCOMPARE(test.child<QPushButton>(toggle.button).text(), textOf(toggle, before));
}

void CameraTogglesTest::theTextCatchesUpWithTheNextClicks()
{
    QFETCH(const std::size_t, place);
    const ToggleRow &toggle{toggleRows.at(place)};
    TestWindow test;
    openToggle(test, toggle, false);
    const auto &button = test.child<QPushButton>(toggle.button);
    test.simulator.addFault({commandOf(toggle), 1, 1});
    test.click(toggle.button);
    QCOMPARE(button.isChecked(), true);
    QCOMPARE(button.text(), textOf(toggle, false));

    test.click(toggle.button);
    QCOMPARE(button.isChecked(), false);
    QCOMPARE(button.text(), textOf(toggle, false));
    test.click(toggle.button);
    QCOMPARE(button.isChecked(), true);
    QCOMPARE(button.text(), textOf(toggle, true));
    QCOMPARE(test.takeLog(), (QStringList{lineOf(toggle, "KO"), lineOf(toggle, "OK"), lineOf(toggle, "OK")}));
}

void CameraTogglesTest::onlyTheOppositeWordChanges()
{
    QFETCH(const std::size_t, place);
    const ToggleRow &toggle{toggleRows.at(place)};
    TestWindow test;
    openToggle(test, toggle, false);
    auto &button = test.child<QPushButton>(toggle.button);

    for (const QString &text : {QString{"Something else"}, textOf(toggle, false).toUpper()}) {
        button.setText(text);
        for (const bool state : {true, false}) {
            test.click(toggle.button);
            QCOMPARE(test.takeCallsAndRecords(), told(toggle, state, true));
            QCOMPARE(button.text(), text);
        }
    }
}

void CameraTogglesTest::beforeAnyReadTheFormsTextsCount_data()
{
    QTest::addColumn<std::size_t>("place");
    QTest::addColumn<QString>("atTheStart");
    QTest::addColumn<QString>("whenUnchecked");
    QTest::addColumn<QString>("whenChecked");
    const auto row = [](std::size_t place, const char *atTheStart, const char *whenUnchecked,
                        const char *whenChecked) {
        QTest::newRow(toggleRows.at(place).button) << place << atTheStart << whenUnchecked << whenChecked;
    };
    row(0, "Vignetting Correction: Deactivated", "Vignetting Correction: Deactivated",
        "Vignetting Correction: Activated");
    row(1, "Column Correction: Deactivated", "Column Correction: Deactivated",
        "Column Correction: Activated");
    row(2, "BT656/SDI Output: Activated", "BT656/SDI Output: Deactivated", "BT656/SDI Output: Activated");
    row(3, "Parallel Output: Activated", "Parallel Output: Deactivated", "Parallel Output: Activated");
    // The form spells it in a way of its own, so it is neither of the two words.
    row(4, "Mipi Output: Activated", "Mipi Output: Activated", "Mipi Output: Activated");
    row(5, "Horizontal Flip: Deactivated", "Horizontal Flip: Deactivated", "Horizontal Flip: Activated");
    row(6, "Invert Polarity: Deactivated", "Invert Polarity: Deactivated", "Invert Polarity: Activated");
}

void CameraTogglesTest::beforeAnyReadTheFormsTextsCount()
{
    QFETCH(const std::size_t, place);
    QFETCH(const QString, atTheStart);
    QFETCH(const QString, whenUnchecked);
    QFETCH(const QString, whenChecked);
    const ToggleRow &toggle{toggleRows.at(place)};
    TestWindow test;
    openWithoutReading(test);
    auto &button = test.child<QPushButton>(toggle.button);
    QCOMPARE(button.text(), atTheStart);
    QCOMPARE(button.isChecked(), false);

    test.invoke(toggle.slot);
    QCOMPARE(test.takeCallsAndRecords(), told(toggle, false, true));
    QCOMPARE(button.text(), whenUnchecked);
    button.setChecked(true);
    test.invoke(toggle.slot);
    QCOMPARE(test.takeCallsAndRecords(), told(toggle, true, true));
    QCOMPARE(button.text(), whenChecked);
}

PILOTEL_TEST_CLASS(CameraTogglesTest)
#include "tst_camera_toggles.moc"
