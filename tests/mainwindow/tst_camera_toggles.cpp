// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the camera's toggle buttons: what a click sends, tells and shows.
#include "camerapage.h"
#include "testclass.h"

#include <QPushButton>
#include <QTest>

#include <array>

namespace
{

struct Toggle
{
    const char *button;
    const char *page;
    const char *key;
    const char *handler;
    const char *operation;
    const char *action;
    const char *activated;
    const char *deactivated;
};

constexpr std::array<Toggle, 7> toggles{{
    {"ColumnCorrectionButton", "ImageProcSection", "camera.columnCorrection", "columnCorrectionClicked",
     "setColumnCorrection", "Set column correction value", "Column Correction: Activated",
     "Column Correction: Deactivated"},
    {"VignettingCorrectionButton", "ImageProcSection", "camera.vignettingCorrection",
     "vignettingCorrectionClicked", "setVignettingCorrection", "Set vignetting correction value",
     "Vignetting Correction: Activated", "Vignetting Correction: Deactivated"},
    {"sdiOutputButton", "ImageProcSection", "camera.sdiOutput", "sdiOutputClicked", "setSdiOutput",
     "Set BT656/SDI OUTPUT value", "BT656/SDI Output: Activated", "BT656/SDI Output: Deactivated"},
    {"parallelOutputButton", "ImageProcSection", "camera.parallelOutput", "parallelOutputClicked",
     "setParallelOutput", "Set PARALLEL OUTPUT value", "Parallel Output: Activated",
     "Parallel Output: Deactivated"},
    {"mipiOutputButton", "ImageProcSection", "camera.mipiOutput", "mipiOutputClicked", "setMipiOutput",
     "Set MIPI OUTPUT value", "MIPI Output: Activated", "MIPI Output: Deactivated"},
    {"polarityButton", "LutSection", "camera.polarity", "polarityClicked", "setPolarity",
     "Set POLARITY value", "Invert Polarity: Activated", "Invert Polarity: Deactivated"},
    {"horizontalFlipButton", "ImageProcSection", "camera.horizontalFlip", "horizontalFlipClicked",
     "setHorizontalFlip", "Set HORIZONTAL FLIP value", "Horizontal Flip: Activated",
     "Horizontal Flip: Deactivated"},
}};

void addToggles()
{
    QTest::addColumn<std::size_t>("place");
    for (std::size_t place{0}; place < toggles.size(); ++place) {
        QTest::newRow(toggles.at(place).button) << place;
    }
}

/// The journal of one click.
QStringList told(const Toggle &toggle, bool sent, bool accepted)
{
    return {QStringLiteral("%1(%2) -> %3")
                .arg(toggle.operation, sent ? "true" : "false", accepted ? "true" : "false"),
            QStringLiteral("log(2, \"%1 %2\")").arg(toggle.action, accepted ? "OK" : "KO")};
}

QString line(const Toggle &toggle, const char *outcome)
{
    return QStringLiteral("%1 %2").arg(toggle.action, outcome);
}

const char *textOf(const Toggle &toggle, bool activated)
{
    return activated ? toggle.activated : toggle.deactivated;
}

/// Connects to a camera of which the setting has that state, and shows its page.
void openToggle(TestWindow &test, const Toggle &toggle, bool state)
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
    void withoutADeviceNothingHappens_data() { addToggles(); }
    void withoutADeviceNothingHappens();
};

void CameraTogglesTest::aClickSendsTheNewState()
{
    QFETCH(const std::size_t, place);
    const Toggle &toggle{toggles.at(place)};
    TestWindow test;
    openToggle(test, toggle, false);
    const auto &button = test.child<QPushButton>(toggle.button);

    for (const bool state : {true, false, true}) {
        test.click(toggle.button);
        QCOMPARE(test.takeCallsAndRecords(), told(toggle, state, true));
        QCOMPARE(test.takeLog(), QStringList{line(toggle, "OK")});
        QCOMPARE(button.isChecked(), state);
        QCOMPARE(button.text(), textOf(toggle, state));
        QVERIFY(test.lastCommandOk());
        QCOMPARE(std::get<bool>(test.simulator.get(toggle.key)), state);
    }
}

void CameraTogglesTest::theSpaceKeyTogglesToo()
{
    QFETCH(const std::size_t, place);
    const Toggle &toggle{toggles.at(place)};
    TestWindow test;
    openToggle(test, toggle, true);
    auto &button = test.child<QPushButton>(toggle.button);

    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Space);
    QCOMPARE(test.takeCallsAndRecords(), told(toggle, false, true));
    QCOMPARE(button.text(), toggle.deactivated);
}

void CameraTogglesTest::aRefusalLeavesTheTextAndTheNewState_data()
{
    QTest::addColumn<std::size_t>("place");
    QTest::addColumn<bool>("before");
    for (std::size_t place{0}; place < toggles.size(); ++place) {
        for (const bool before : {false, true}) {
            QTest::addRow("%s", textOf(toggles.at(place), before)) << place << before;
        }
    }
}

void CameraTogglesTest::aRefusalLeavesTheTextAndTheNewState()
{
    QFETCH(const std::size_t, place);
    QFETCH(const bool, before);
    const Toggle &toggle{toggles.at(place)};
    TestWindow test;
    openToggle(test, toggle, before);
    QVERIFY(test.lastCommandOk());
    test.simulator.addFault({toggle.operation});

    test.click(toggle.button);
    QCOMPARE(test.takeCallsAndRecords(), told(toggle, !before, false));
    QCOMPARE(test.takeLog(), QStringList{line(toggle, "KO")});
    QVERIFY(!test.lastCommandOk());
    QCOMPARE(test.child<QPushButton>(toggle.button).isChecked(), !before);
    QCOMPARE(test.child<QPushButton>(toggle.button).text(), textOf(toggle, before));
}

void CameraTogglesTest::theTextCatchesUpWithTheNextClicks()
{
    QFETCH(const std::size_t, place);
    const Toggle &toggle{toggles.at(place)};
    TestWindow test;
    openToggle(test, toggle, false);
    const auto &button = test.child<QPushButton>(toggle.button);
    test.simulator.addFault({toggle.operation, 1, 1});
    test.click(toggle.button);
    QCOMPARE(button.isChecked(), true);
    QCOMPARE(button.text(), toggle.deactivated);

    test.click(toggle.button);
    QCOMPARE(button.isChecked(), false);
    QCOMPARE(button.text(), toggle.deactivated);
    test.click(toggle.button);
    QCOMPARE(button.isChecked(), true);
    QCOMPARE(button.text(), toggle.activated);
    QCOMPARE(test.takeLog(), (QStringList{line(toggle, "KO"), line(toggle, "OK"), line(toggle, "OK")}));
}

void CameraTogglesTest::onlyTheOppositeWordChanges()
{
    QFETCH(const std::size_t, place);
    const Toggle &toggle{toggles.at(place)};
    TestWindow test;
    openToggle(test, toggle, false);
    auto &button = test.child<QPushButton>(toggle.button);

    for (const QString &text : {QString{"Something else"}, QString{toggle.deactivated}.toUpper()}) {
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
        QTest::newRow(toggles.at(place).button) << place << atTheStart << whenUnchecked << whenChecked;
    };
    row(0, "Column Correction: Deactivated", "Column Correction: Deactivated",
        "Column Correction: Activated");
    row(1, "Vignetting Correction: Deactivated", "Vignetting Correction: Deactivated",
        "Vignetting Correction: Activated");
    row(2, "BT656/SDI Output: Activated", "BT656/SDI Output: Deactivated", "BT656/SDI Output: Activated");
    row(3, "Parallel Output: Activated", "Parallel Output: Deactivated", "Parallel Output: Activated");
    // The form spells it in a way of its own, so it is neither of the two words.
    row(4, "Mipi Output: Activated", "Mipi Output: Activated", "Mipi Output: Activated");
    row(5, "Invert Polarity: Deactivated", "Invert Polarity: Deactivated", "Invert Polarity: Activated");
    row(6, "Horizontal Flip: Deactivated", "Horizontal Flip: Deactivated", "Horizontal Flip: Activated");
}

void CameraTogglesTest::beforeAnyReadTheFormsTextsCount()
{
    QFETCH(const std::size_t, place);
    QFETCH(const QString, atTheStart);
    QFETCH(const QString, whenUnchecked);
    QFETCH(const QString, whenChecked);
    const Toggle &toggle{toggles.at(place)};
    TestWindow test;
    openWithoutReading(test);
    auto &button = test.child<QPushButton>(toggle.button);
    QCOMPARE(button.text(), atTheStart);
    QCOMPARE(button.isChecked(), false);

    test.invoke(toggle.handler);
    QCOMPARE(test.takeCallsAndRecords(), told(toggle, false, true));
    QCOMPARE(button.text(), whenUnchecked);
    button.setChecked(true);
    test.invoke(toggle.handler);
    QCOMPARE(test.takeCallsAndRecords(), told(toggle, true, true));
    QCOMPARE(button.text(), whenChecked);
}

void CameraTogglesTest::withoutADeviceNothingHappens()
{
    QFETCH(const std::size_t, place);
    const Toggle &toggle{toggles.at(place)};
    TestWindow test;
    for (const bool connectedBefore : {false, true}) {
        if (connectedBefore) {
            test.beConnected();
            test.click("disconnectDeviceButton");
        }
        test.simulator.clearJournal();
        const auto &button = test.child<QPushButton>(toggle.button);
        const QString text{button.text()};
        const bool lastCommandOk{test.lastCommandOk()};

        test.invoke(toggle.handler);
        QCOMPARE(test.takeCallsAndRecords(), QStringList{});
        QCOMPARE(test.takeLog(), QStringList{});
        QCOMPARE(button.text(), text);
        QCOMPARE(test.lastCommandOk(), lastCommandOk);
        QVERIFY(!button.isEnabled());
    }
}

PILOTEL_TEST_CLASS(CameraTogglesTest)
#include "tst_camera_toggles.moc"
