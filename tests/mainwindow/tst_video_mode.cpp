// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the Blend Unit's video mode.
#include "controls.h"
#include "testclass.h"
#include "testwindow.h"

#include <QAbstractButton>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

#include <vector>

using veltrix_simulator::Simulator;
using veltrix_simulator::Value;

namespace
{

/// A mode that no button stands for: a window that reads it shows none.
constexpr int unknownMode{255};

QStringList checkedButtons(const TestWindow &test)
{
    QStringList checked;
    for (const VideoModeRow &mode : videoModeRows) {
        if (test.child<QAbstractButton>(mode.button).isChecked()) {
            checked.append(mode.button);
        }
    }
    return checked;
}

/// What the buttons look like after the device has reported that mode.
QStringList buttonsOf(int mode)
{
    return mode == unknownMode ? QStringList{} : QStringList{videoModeAt(mode).button};
}

TestWindow::Preparation withVideoMode(int mode)
{
    return [mode](Simulator &simulator) {
        simulator.set("blendUnit.videoMode", mode);
    };
}

void addEveryCombination()
{
    QTest::addColumn<int>("shown");
    QTest::addColumn<int>("pressed");

    for (const int shown : {unknownMode, 0, 1, 2}) {
        const char *const shownName{shown == unknownMode ? "nothing" : videoModeAt(shown).name};
        for (const int pressed : {0, 1, 2}) {
            QTest::addRow("%s shown, %s pressed", shownName, videoModeAt(pressed).name) << shown << pressed;
        }
    }
}

} // namespace

class VideoModeTest : public QObject
{
    Q_OBJECT

private slots:
    void acceptedClickChecksExactlyItsButton_data() { addEveryCombination(); }
    void acceptedClickChecksExactlyItsButton();
    void refusedClickShowsWhatWasShown_data() { addEveryCombination(); }
    void refusedClickShowsWhatWasShown();
    void acceptedHandlerByNameChecksExactlyItsButton_data() { addEveryCombination(); }
    void acceptedHandlerByNameChecksExactlyItsButton();
    void refusedHandlerByNameTouchesNoButton_data() { addEveryCombination(); }
    void refusedHandlerByNameTouchesNoButton();
    void refusedSpaceKeyShowsWhatWasShown();
    void eachSwitchIsTheLastCommand();
    void readShowsTheMode_data();
    void readShowsTheMode();
};

void VideoModeTest::acceptedClickChecksExactlyItsButton()
{
    QFETCH(const int, shown);
    QFETCH(const int, pressed);
    TestWindow test{withVideoMode(shown)};
    test.beConnected();
    QCOMPARE(checkedButtons(test), buttonsOf(shown));

    test.click(videoModeAt(pressed).button);

    QCOMPARE(test.takeCalls(), QStringList{QString{"setVideoMode(%1) -> true"}.arg(pressed)});
    QCOMPARE(test.takeLog(), QStringList{videoModeAt(pressed).success});
    QCOMPARE(checkedButtons(test), buttonsOf(pressed));
    QVERIFY(test.lastCommandOk());
}

void VideoModeTest::refusedClickShowsWhatWasShown()
{
    QFETCH(const int, shown);
    QFETCH(const int, pressed);
    TestWindow test{withVideoMode(shown)};
    test.beConnected();
    test.simulator.addFault({"setVideoMode"});

    test.click(videoModeAt(pressed).button);

    QCOMPARE(test.takeCalls(), QStringList{QString{"setVideoMode(%1) -> false"}.arg(pressed)});
    QCOMPARE(test.takeLog(), QStringList{videoModeAt(pressed).failure});
    QCOMPARE(checkedButtons(test), buttonsOf(shown));
    QVERIFY(!test.lastCommandOk());
}

void VideoModeTest::acceptedHandlerByNameChecksExactlyItsButton()
{
    QFETCH(const int, shown);
    QFETCH(const int, pressed);
    TestWindow test{withVideoMode(shown)};
    test.beConnected();

    test.invoke(videoModeAt(pressed).slot);

    QCOMPARE(test.takeCalls(), QStringList{QString{"setVideoMode(%1) -> true"}.arg(pressed)});
    QCOMPARE(test.takeLog(), QStringList{videoModeAt(pressed).success});
    QCOMPARE(checkedButtons(test), buttonsOf(pressed));
}

void VideoModeTest::refusedHandlerByNameTouchesNoButton()
{
    QFETCH(const int, shown);
    QFETCH(const int, pressed);
    TestWindow test{withVideoMode(shown)};
    test.beConnected();
    test.simulator.addFault({"setVideoMode"});

    test.invoke(videoModeAt(pressed).slot);

    QCOMPARE(test.takeCalls(), QStringList{QString{"setVideoMode(%1) -> false"}.arg(pressed)});
    QCOMPARE(test.takeLog(), QStringList{videoModeAt(pressed).failure});
    QCOMPARE(checkedButtons(test), buttonsOf(shown));
}

void VideoModeTest::refusedSpaceKeyShowsWhatWasShown()
{
    TestWindow test{withVideoMode(2)};
    test.beConnected();
    test.simulator.addFault({"setVideoMode"});

    auto &button = test.child<QAbstractButton>("BU_IR_MODE_PB");
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Space);

    QCOMPARE(test.takeLog(), QStringList{"Could not configure IR mode"});
    QCOMPARE(checkedButtons(test), QStringList{"BU_FUSION_MODE_PB"});
}

void VideoModeTest::eachSwitchIsTheLastCommand()
{
    TestWindow test;
    test.beConnected();
    for (const VideoModeRow &mode : videoModeRows) {
        test.simulator.addFault({"setVideoMode"});
        test.click(mode.button);
        QVERIFY(!test.lastCommandOk());

        test.simulator.clearFaults();
        test.click(mode.button);
        QVERIFY(test.lastCommandOk());
    }
}

void VideoModeTest::readShowsTheMode_data()
{
    QTest::addColumn<int>("shown");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<int>("answered");
    QTest::addColumn<int>("shownAfterwards");
    QTest::addColumn<QString>("line");

    const auto row = [](const char *name, int shown, bool ok, int answered, int shownAfterwards,
                        const char *line) {
        QTest::newRow(name) << shown << ok << answered << shownAfterwards << QString{line};
    };
    const char *const unknown{"Could not get current video mode"};
    row("0 is infrared", 2, true, 0, 0, "IR mode activated");
    row("1 is visible", 2, true, 1, 1, "Visible mode activated");
    row("2 is fusion", 0, true, 2, 2, "Fusion mode activated");
    row("the mode that is shown", 1, true, 1, 1, "Visible mode activated");
    row("a mode where none was shown", unknownMode, true, 0, 0, "IR mode activated");
    row("3 is no mode", 2, true, 3, 2, unknown);
    row("255 is no mode", 1, true, 255, 1, unknown);
    row("3 where none was shown", unknownMode, true, 3, unknownMode, unknown);
    row("refused", 2, false, 0, 2, unknown);
    row("refused with a mode", 0, false, 1, 0, unknown);
}

void VideoModeTest::readShowsTheMode()
{
    QFETCH(const int, shown);
    QFETCH(const bool, ok);
    QFETCH(const int, answered);
    QFETCH(const int, shownAfterwards);
    QFETCH(const QString, line);
    TestWindow test{withVideoMode(shown)};
    test.beConnected();
    test.simulator.addFault({"getVideoMode", 1, 0, std::vector<Value>{ok, answered}});

    test.invoke("readVideoMode");

    QCOMPARE(test.takeCalls(),
             QStringList{QString{"getVideoMode() -> %1 {mode=%2}"}.arg(ok ? "true" : "false").arg(answered)});
    QCOMPARE(test.takeLog(), QStringList{line});
    QCOMPARE(checkedButtons(test), buttonsOf(shownAfterwards));
    QCOMPARE(test.lastCommandOk(), ok);
}

PILOTEL_TEST_CLASS(VideoModeTest)
#include "tst_video_mode.moc"
