// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of a sequence of commands: the pointer, the log while it runs, and what is clicked and typed
// meanwhile.
#include "boxpresser.h"
#include "camerapage.h"
#include "operatorwindow.h"
#include "testclass.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QCursor>
#include <QElapsedTimer>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTextDocument>
#include <QTimer>
#include <QTouchDevice>
#include <QTouchEvent>
#include <QVector>

#include <algorithm>
#include <functional>
#include <iterator>
#include <memory>

namespace
{

/// Runs once at the first line that is logged from now on: in the midst of a sequence.
void duringTheSequence(OperatorWindow &test, const std::function<void()> &deed)
{
    const auto connection = std::make_shared<QMetaObject::Connection>();
    *connection = QObject::connect(test.child<QPlainTextEdit>("logView").document(),
                                   &QTextDocument::contentsChanged, &test.window(), [connection, deed] {
                                       QObject::disconnect(*connection);
                                       deed();
                                   });
}

/// Runs once when the sequence that runs now has ended, while what waits is worked off, and behind all that
/// is in the queue already.
void whileTheRestIsDropped(OperatorWindow &test, const std::function<void()> &deed)
{
    // Timers come in the order in which they were started: this one before the one that drops, and the one
    // that it starts behind that.
    auto *const before = new QTimer{&test.window()};
    before->setSingleShot(true);
    QObject::connect(before, &QTimer::timeout, before, [before, deed] {
        auto *const meanwhile = new QTimer{before};
        meanwhile->setSingleShot(true);
        QObject::connect(meanwhile, &QTimer::timeout, meanwhile, deed);
        meanwhile->start(0);
    });
    before->start(0);
}

/// Puts a mouse event into the queue that is worked off when control returns to the event loop.
void queueMouse(OperatorWindow &test, QEvent::Type type, const QPoint &place)
{
    const Qt::MouseButtons held{type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton};
    QCoreApplication::postEvent(test.window().windowHandle(),
                                new QMouseEvent{type, QPointF{place}, QPointF{place},
                                                QPointF{test.window().mapToGlobal(place)}, Qt::LeftButton,
                                                held, Qt::NoModifier});
}

void queueClick(OperatorWindow &test, const QPoint &place)
{
    queueMouse(test, QEvent::MouseButtonPress, place);
    queueMouse(test, QEvent::MouseButtonRelease, place);
}

void queueKey(OperatorWindow &test, QEvent::Type type, Qt::Key key, const QString &text = {},
              bool repeated = false)
{
    QCoreApplication::postEvent(test.window().windowHandle(),
                                new QKeyEvent{type, key, Qt::NoModifier, text, repeated});
}

void rest()
{
    QCoreApplication::processEvents();
}

bool saysBusy()
{
    const QCursor *const cursor{QApplication::overrideCursor()};
    return cursor != nullptr && cursor->shape() == Qt::WaitCursor;
}

/// How often something is painted or happens while it lives.
class EventCounter : public QObject
{
public:
    EventCounter(QObject &watched, QEvent::Type itsType) : type{itsType} { watched.installEventFilter(this); }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        count += event->type() == type ? 1 : 0;
        return false;
    }

    int count{0};

private:
    QEvent::Type type;
};

/// What an object is told while it lives, in order.
class EventRecorder : public QObject
{
public:
    explicit EventRecorder(QObject &watched) { watched.installEventFilter(this); }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        told.append(event->type());
        return false;
    }
    QVector<int> typesAmong(const QVector<int> &types) const
    {
        QVector<int> found;
        std::copy_if(told.begin(), told.end(), std::back_inserter(found),
                     [&](int type) { return types.contains(type); });
        return found;
    }

private:
    QVector<int> told;
};

/// Makes each painting of a widget slow while it lives.
class SlowPainting : public QObject
{
public:
    explicit SlowPainting(QWidget &painted) { painted.installEventFilter(this); }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            QTest::qSleep(100);
        }
        return false;
    }
};

int timesRead(const QStringList &calls)
{
    // Once for each unit.
    return calls.count("startReading() -> true") / 2;
}

} // namespace

class SequencesTest : public QObject
{
    Q_OBJECT

private slots:
    void impatientClicksRunNothing();
    void whatIsTypedMeanwhileIsDropped();
    void aTurnOfTheWheelMeanwhileIsDropped();
    void otherInputMeanwhileIsDropped_data();
    void otherInputMeanwhileIsDropped();
    void whatAnInputMethodComposesMeanwhileIsDropped();
    void aReleaseIsDroppedWithItsPress();
    void aKeyThatIsHeldBeyondTheEndIsDroppedWhole();
    void aKeyIsTheSameWhateverShiftMakesOfIt();
    void aReleaseWhosePressWasDeliveredIsDelivered();
    void aSequenceAmongWhatWaitsDropsItsOwnInput();
    void aBoxAmongWhatWaitsIsAnswered();
    void afterwardsEverythingWorks();
    void theWindowCanBeClosedMeanwhile();
    void noEventIsProcessedMeanwhile();
    void thePointerSaysBusy_data();
    void thePointerSaysBusy();
    void aBoxHasTheOrdinaryPointerAndIsAnswered();
    void theFirstLineIsPaintedBeforeTheSecondCommandEnds();
    void aSlowPaintingKeepsNoLaterSequenceWaiting();
    void aQuickSequencePaintsNothing();
    void lineAfterLineIsPaintedOnASlowLink();
    void aSingleCommandPaintsNothingByItself();
    void nothingRunsWhileNobodyTouchesTheProgram();
};

void SequencesTest::impatientClicksRunNothing()
{
    OperatorWindow test;
    test.beConnected();
    const QPoint read{test.middleOf("readParamButtonUser")};
    const QPoint disconnect{test.middleOf("disconnectDeviceButton")};
    duringTheSequence(test, [&] {
        for (int click{0}; click < 4; ++click) {
            queueClick(test, read);
        }
        queueClick(test, disconnect);
    });

    test.clickAt(read);
    rest();
    const QStringList calls{test.takeCalls()};
    QCOMPARE(timesRead(calls), 1);
    QVERIFY(!calls.contains("closeDevice(device)"));
    QVERIFY(test.child<QWidget>("paramSection").isEnabled());
    QVERIFY(!test.child<QAbstractButton>("disconnectDeviceButton").isDown());
}

void SequencesTest::whatIsTypedMeanwhileIsDropped()
{
    OperatorWindow test;
    openCameraPage(test, "LutSection");
    auto &box = test.child<QSpinBox>("Roi0IncX1");
    box.setFocus();
    const QString before{box.text()};
    duringTheSequence(test, [&] {
        queueKey(test, QEvent::KeyPress, Qt::Key_9, "9");
        queueKey(test, QEvent::KeyRelease, Qt::Key_9, "9");
        queueKey(test, QEvent::KeyPress, Qt::Key_Return);
        queueKey(test, QEvent::KeyRelease, Qt::Key_Return);
        queueKey(test, QEvent::KeyPress, Qt::Key_Tab);
    });

    test.invoke("readAllParameters");
    rest();
    QCOMPARE(box.text(), before);
    QVERIFY(box.hasFocus());
    QVERIFY(!test.takeCalls().join(' ').contains("setRoi"));
}

void SequencesTest::aTurnOfTheWheelMeanwhileIsDropped()
{
    OperatorWindow test;
    openCameraPage(test, "LutSection");
    auto &box = test.child<QSpinBox>("Roi0IncX1");
    box.setFocus();
    const int before{box.value()};
    const QPoint place{test.middleOf("Roi0IncX1")};
    duringTheSequence(test, [&] {
        QCoreApplication::postEvent(test.window().windowHandle(),
                                    new QWheelEvent{QPointF{place}, QPointF{test.window().mapToGlobal(place)},
                                                    QPoint{}, QPoint{0, 120}, Qt::NoButton, Qt::NoModifier,
                                                    Qt::NoScrollPhase, false});
    });

    test.invoke("readAllParameters");
    rest();
    QCOMPARE(box.value(), before);
    test.turn(place, 1);
    QCOMPARE(box.value(), before + 1);
}

void SequencesTest::otherInputMeanwhileIsDropped_data()
{
    QTest::addColumn<QVector<int>>("types");
    const auto row = [](const char *name, const QVector<int> &types) {
        QTest::newRow(name) << types;
    };
    row("a finger on the screen", {QEvent::TouchBegin, QEvent::TouchUpdate, QEvent::TouchEnd});
    row("a finger that the system takes back", {QEvent::TouchBegin, QEvent::TouchCancel});
    row("a shortcut", {QEvent::ShortcutOverride});
    row("a menu's key", {QEvent::ContextMenu});
}

void SequencesTest::otherInputMeanwhileIsDropped()
{
    QFETCH(const QVector<int>, types);
    OperatorWindow test;
    test.beConnected();
    QWindow &native{test.native()};
    QTouchDevice screen;
    screen.setType(QTouchDevice::TouchScreen);
    const auto queue = [&native, &screen](QEvent::Type type) {
        QEvent *event{nullptr};
        if (type == QEvent::ShortcutOverride) {
            event = new QKeyEvent{type, Qt::Key_C, Qt::ControlModifier};
        } else if (type == QEvent::ContextMenu) {
            event = new QContextMenuEvent{QContextMenuEvent::Keyboard, {5, 5}};
        } else {
            event = new QTouchEvent{type, &screen};
        }
        QCoreApplication::postEvent(&native, event);
    };
    EventRecorder recorder{native};
    duringTheSequence(test, [&] {
        for (const int type : types) {
            queue(static_cast<QEvent::Type>(type));
        }
    });

    test.invoke("readAllParameters");
    rest();
    QCOMPARE(recorder.typesAmong(types), QVector<int>{});
    for (const int type : types) {
        queue(static_cast<QEvent::Type>(type));
    }
    rest();
    QCOMPARE(recorder.typesAmong(types), types);
}

void SequencesTest::whatAnInputMethodComposesMeanwhileIsDropped()
{
    OperatorWindow test;
    openCameraPage(test, "LutSection");
    auto &box = test.child<QSpinBox>("Roi0IncX1");
    box.setValue(5);
    box.setFocus();
    const auto compose = [&box] {
        auto *const event = new QInputMethodEvent;
        event->setCommitString("7");
        QCoreApplication::postEvent(box.findChild<QLineEdit *>(), event);
    };
    duringTheSequence(test, compose);
    test.invoke("readAllParameters");
    box.selectAll();
    const QString before{box.text()};
    rest();
    QCOMPARE(box.text(), before);
    compose();
    rest();
    QCOMPARE(box.text(), "7");
}

void SequencesTest::aReleaseIsDroppedWithItsPress()
{
    OperatorWindow test;
    test.beConnected();
    const QPoint disconnect{test.middleOf("disconnectDeviceButton")};
    duringTheSequence(test, [&] { queueMouse(test, QEvent::MouseButtonPress, disconnect); });

    test.clickAt(test.middleOf("readParamButtonUser"));
    rest();
    QVERIFY(!test.child<QAbstractButton>("disconnectDeviceButton").isDown());
    const QWidget *const focus{QApplication::focusWidget()};
    test.takeCalls();
    test.release(disconnect);
    QCOMPARE(test.takeCalls(), QStringList{});
    QCOMPARE(QApplication::focusWidget(), focus);

    test.clickAt(disconnect);
    QVERIFY(test.takeCalls().contains("closeDevice(device)"));
}

void SequencesTest::aKeyThatIsHeldBeyondTheEndIsDroppedWhole()
{
    OperatorWindow test;
    openCameraPage(test, "ExpertMode");
    auto &slider = test.child<QSlider>("gfidSlider");
    slider.setFocus();
    duringTheSequence(test, [&] {
        queueKey(test, QEvent::KeyPress, Qt::Key_Right);
        queueKey(test, QEvent::KeyPress, Qt::Key_Right, {}, true);
    });

    test.invoke("readAllParameters");
    rest();
    test.takeCalls();
    const int before{slider.value()};
    test.key(QEvent::KeyRelease, Qt::Key_Right, true);
    test.key(QEvent::KeyPress, Qt::Key_Right, true);
    test.key(QEvent::KeyRelease, Qt::Key_Right);
    QCOMPARE(slider.value(), before);
    QCOMPARE(test.takeCalls(), QStringList{});

    test.key(QEvent::KeyPress, Qt::Key_Right);
    test.key(QEvent::KeyRelease, Qt::Key_Right);
    QCOMPARE(slider.value(), before + 1);
    QCOMPARE(test.takeCalls().size(), 1);
}

void SequencesTest::aKeyIsTheSameWhateverShiftMakesOfIt()
{
    OperatorWindow test;
    test.beConnected();
    QWindow &native{test.native()};
    constexpr quint32 keyOfTheKeyboard{14};
    const auto queue = [&native](QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QCoreApplication::postEvent(&native, new QKeyEvent{type, key, modifiers, keyOfTheKeyboard, 0, 0});
    };
    const QVector<int> types{QEvent::KeyPress, QEvent::KeyRelease};
    EventRecorder recorder{native};
    duringTheSequence(test, [&] { queue(QEvent::KeyPress, Qt::Key_Percent, Qt::ShiftModifier); });

    test.invoke("readAllParameters");
    rest();
    // Shift was let go first.
    queue(QEvent::KeyRelease, Qt::Key_5, Qt::NoModifier);
    rest();
    QCOMPARE(recorder.typesAmong(types), QVector<int>{});
    queue(QEvent::KeyPress, Qt::Key_5, Qt::NoModifier);
    queue(QEvent::KeyRelease, Qt::Key_5, Qt::NoModifier);
    rest();
    QCOMPARE(recorder.typesAmong(types), types);
}

void SequencesTest::aReleaseWhosePressWasDeliveredIsDelivered()
{
    OperatorWindow test;
    openCameraPage(test, "ExpertMode");
    auto &slider = test.child<QSlider>("gfidSlider");
    const QPoint place{test.middleOf("gfidSlider")};
    test.press(place);
    QVERIFY(slider.isSliderDown());
    duringTheSequence(test, [&] { queueMouse(test, QEvent::MouseButtonRelease, place); });

    test.invoke("readAllParameters");
    test.takeCalls();
    rest();
    QVERIFY(!slider.isSliderDown());
    QCOMPARE(test.takeCalls(), QStringList{QStringLiteral("setGfid(%1) -> true").arg(slider.value())});
}

void SequencesTest::aSequenceAmongWhatWaitsDropsItsOwnInput()
{
    OperatorWindow test;
    test.beConnected();
    const QPoint disconnect{test.middleOf("disconnectDeviceButton")};
    duringTheSequence(test, [&] {
        whileTheRestIsDropped(test, [&] {
            duringTheSequence(test, [&] { queueClick(test, disconnect); });
            test.invoke("readAllParameters");
        });
    });

    test.invoke("readAllParameters");
    for (int round{0}; round < 5; ++round) {
        rest();
    }
    const QStringList calls{test.takeCalls()};
    QCOMPARE(timesRead(calls), 2);
    QVERIFY(!calls.contains("closeDevice(device)"));

    test.clickAt(disconnect);
    QVERIFY(test.takeCalls().contains("closeDevice(device)"));
}

void SequencesTest::aBoxAmongWhatWaitsIsAnswered()
{
    OperatorWindow test;
    test.beConnected();
    const QPoint read{test.middleOf("readParamButtonUser")};
    test.press(read);
    duringTheSequence(test, [&] {
        test.simulator.addFault({"getFirmwareVersions"});
        whileTheRestIsDropped(test, [&] { test.release(read); });
    });
    bool answered{false};
    test.boxes.expect([&](QDialog &box) {
        // The operator needs a moment to read it.
        QTimer::singleShot(200, &box, [&] {
            sendKey(*box.windowHandle(), QEvent::KeyPress, Qt::Key_Return);
            answered = !box.isVisible();
            box.accept();
        });
    });

    test.invoke("ApplyParamsUser");
    for (int round{0}; round < 5; ++round) {
        rest();
    }
    QCOMPARE(test.boxes.takeShown().size(), 1);
    QVERIFY(answered);
}

void SequencesTest::afterwardsEverythingWorks()
{
    OperatorWindow test;
    test.beConnected();
    test.clickAt(test.middleOf("readParamButtonUser"));
    rest();
    QCOMPARE(timesRead(test.takeCalls()), 1);
    test.clickAt(test.middleOf("readParamButtonUser"));
    QCOMPARE(timesRead(test.takeCalls()), 1);
    test.clickAt(test.middleOf("disconnectDeviceButton"));
    QVERIFY(test.takeCalls().contains("closeDevice(device)"));
}

void SequencesTest::theWindowCanBeClosedMeanwhile()
{
    OperatorWindow test;
    test.beConnected();
    duringTheSequence(
        test, [&] { QCoreApplication::postEvent(test.window().windowHandle(), new QEvent{QEvent::Close}); });
    test.invoke("readAllParameters");
    QVERIFY(test.window().isVisible());
    rest();
    QVERIFY(!test.window().isVisible());
}

void SequencesTest::noEventIsProcessedMeanwhile()
{
    OperatorWindow test;
    test.beConnected();
    QStringList order;
    duringTheSequence(test, [&] {
        QTimer::singleShot(0, &test.window(), [&] { order.append("event"); });
        queueClick(test, test.placeOf("logView", {5, 5}));
    });
    EventCounter presses{test.child<QPlainTextEdit>("logView").viewport()[0], QEvent::MouseButtonPress};

    test.invoke("readAllParameters");
    order.append("end of the read");
    rest();
    QCOMPARE(order, (QStringList{"end of the read", "event"}));
    QCOMPARE(presses.count, 0);
}

void SequencesTest::thePointerSaysBusy_data()
{
    QTest::addColumn<QByteArray>("handler");
    for (const char *const handler :
         {"connectDevice", "readAllParameters", "readParamsExpert", "ResetParamsUser", "ApplyParamsUser",
          "ApplyParamsExpert", "readBprTableClicked", "addBadPixelLineClicked",
          "removeBadPixelColumnClicked"}) {
        QTest::newRow(handler) << QByteArray{handler};
    }
}

void SequencesTest::thePointerSaysBusy()
{
    QFETCH(const QByteArray, handler);
    OperatorWindow test;
    test.beConnected();
    bool busy{false};
    QVERIFY(!saysBusy());
    duringTheSequence(test, [&] { busy = saysBusy(); });

    test.invoke(handler);
    QVERIFY(busy);
    QCOMPARE(QApplication::overrideCursor(), nullptr);
}

void SequencesTest::aBoxHasTheOrdinaryPointerAndIsAnswered()
{
    OperatorWindow test;
    test.beConnected();
    test.simulator.addFault({"getFirmwareVersions"});
    bool busyInTheBox{true};
    bool busyAfterwards{false};
    test.boxes.expect([&](QDialog &box) {
        busyInTheBox = saysBusy();
        duringTheSequence(test, [&] { busyAfterwards = saysBusy(); });
        // By way of the window system, as the operator answers it.
        sendKey(*box.windowHandle(), QEvent::KeyPress, Qt::Key_Return);
    });

    test.clickAt(test.middleOf("readParamButtonUser"));
    QCOMPARE(test.boxes.takeShown().size(), 1);
    QVERIFY(!busyInTheBox);
    QVERIFY(busyAfterwards);
    QCOMPARE(test.takeLog().last(), "End Read camera parameters : COM Error");
    QCOMPARE(QApplication::overrideCursor(), nullptr);
}

void SequencesTest::theFirstLineIsPaintedBeforeTheSecondCommandEnds()
{
    OperatorWindow test;
    test.click("scanDeviceButton");
    rest();
    auto &log = test.child<QPlainTextEdit>("logView");
    EventCounter paintings{*log.viewport(), QEvent::Paint};
    QVector<int> painted;
    QObject::connect(log.document(), &QTextDocument::contentsChanged, &paintings, [&] {
        painted.append(paintings.count);
        if (painted.size() == 1) {
            // The time of the first command, on a slow link.
            QTest::qSleep(500);
        }
    });

    test.click("connectDeviceButton");
    // The second line comes after the second command.
    QCOMPARE(painted.mid(0, 2), (QVector<int>{0, 1}));
}

void SequencesTest::aSlowPaintingKeepsNoLaterSequenceWaiting()
{
    OperatorWindow test;
    test.beConnected();
    rest();
    auto &log = test.child<QPlainTextEdit>("logView");
    QVector<int> painted;
    EventCounter paintings{*log.viewport(), QEvent::Paint};
    QObject::connect(log.document(), &QTextDocument::contentsChanged, &paintings, [&] {
        painted.append(paintings.count);
        if (painted.size() == 1) {
            // The time of the first command, on a slow link.
            QTest::qSleep(500);
        }
    });
    {
        const SlowPainting slow{*log.viewport()};
        test.invoke("readAllParameters");
        // Painted once at least, slowly, or nothing is shown below.
        QVERIFY(painted.size() > 1);
        QCOMPARE(painted.at(1), 1);
    }
    rest();

    painted.clear();
    paintings.count = 0;
    test.invoke("readAllParameters");
    QCOMPARE(painted.mid(0, 2), (QVector<int>{0, 1}));
}

void SequencesTest::aQuickSequencePaintsNothing()
{
    OperatorWindow test;
    openCameraPage(test, "LutSection");
    rest();
    EventCounter paintings{*test.child<QPlainTextEdit>("logView").viewport(), QEvent::Paint};
    // Nothing is painted before 20 ms; a machine that is busy may take longer now and then.
    bool quick{false};
    for (int run{0}; run < 20 && !quick; ++run) {
        paintings.count = 0;
        QElapsedTimer timer;
        timer.start();
        test.invoke("ApplyParamsUser");
        quick = timer.elapsed() < 20;
        if (quick) {
            QCOMPARE(paintings.count, 0);
        }
        rest();
        QVERIFY(paintings.count > 0);
    }
    if (!quick) {
        // Not QSKIP: clang finds its unused arguments pedantically wrong.
        QTest::qSkip("this machine takes 20 ms or more for a sequence, each of 20 times", __FILE__, __LINE__);
        return;
    }
}

void SequencesTest::lineAfterLineIsPaintedOnASlowLink()
{
    OperatorWindow test;
    test.beConnected();
    rest();
    auto &log = test.child<QPlainTextEdit>("logView");
    EventCounter paintings{*log.viewport(), QEvent::Paint};
    int lines{0};
    QObject::connect(log.document(), &QTextDocument::contentsChanged, &paintings, [&] {
        // Far longer than twenty paintings.
        if (++lines <= 5) {
            QTest::qSleep(500);
        }
    });

    test.invoke("readAllParameters");
    QVERIFY2(paintings.count >= 5, qPrintable(QString::number(paintings.count)));
}

void SequencesTest::aSingleCommandPaintsNothingByItself()
{
    OperatorWindow test;
    openCameraPage(test, "LutSection");
    rest();
    EventCounter paintings{*test.child<QPlainTextEdit>("logView").viewport(), QEvent::Paint};
    test.invoke("gammaUserSendCommand");
    QCOMPARE(paintings.count, 0);
}

void SequencesTest::nothingRunsWhileNobodyTouchesTheProgram()
{
    OperatorWindow test;
    test.beConnected();
    test.clickAt(test.middleOf("readParamButtonUser"));
    // A caret that blinks has a timer of its own.
    test.child<QWidget>("readParamButtonUser").setFocus();
    QTest::qWait(100);
    EventCounter timers{*QCoreApplication::instance(), QEvent::Timer};
    QTest::qWait(500);
    QCOMPARE(timers.count, 0);
}

PILOTEL_TEST_CLASS(SequencesTest)
#include "tst_sequences.moc"
