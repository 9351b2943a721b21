// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The operation log and the temperature read-outs.
#include "testclass.h"
#include "testwindow.h"

#include <QObject>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QTextCursor>

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <vector>

using Answer = std::optional<std::vector<veltrix_simulator::Value>>;
Q_DECLARE_METATYPE(Answer)

namespace
{

void appendLog(TestWindow &test, const QString &line)
{
    QVERIFY(QMetaObject::invokeMethod(&test.window(), "appendLog", Qt::DirectConnection,
                                      Q_ARG(std::string, line.toStdString())));
}

QPlainTextEdit &logView(const TestWindow &test)
{
    return test.child<QPlainTextEdit>("logView");
}

void readTemp(TestWindow &test, int fpgaType)
{
    QVERIFY(
        QMetaObject::invokeMethod(&test.window(), "readTemp", Qt::DirectConnection, Q_ARG(int, fpgaType)));
}

/// Texts of the three boxes: the Blend Unit's FPGA, the camera's FPGA, the camera's sensor.
QStringList temperatureBoxes(const TestWindow &test)
{
    QStringList texts;
    for (const char *const box : {"FusionFpgaTempTextEdit", "FpgaTempTextEdit", "SensorTempTextEdit"}) {
        texts.append(test.child<QPlainTextEdit>(box).toPlainText());
    }
    return texts;
}

void fillTemperatureBoxes(TestWindow &test, const QString &text)
{
    for (const char *const box : {"FusionFpgaTempTextEdit", "FpgaTempTextEdit", "SensorTempTextEdit"}) {
        test.child<QPlainTextEdit>(box).setPlainText(text);
    }
}

} // namespace

class OperationLogTest : public QObject
{
    Q_OBJECT

private slots:
    void appendsLinesToTheViewAndTheSdkLog_data();
    void appendsLinesToTheViewAndTheSdkLog();
    void recordsTheWholeOfALine();
    void appendsInOrder();
    void appendsAtTheEndWhereverTheCursorIs();
    void keepsTextThatTheOperatorSelected();
    void showsTheNewestLine();
    void takesNothingBackWhenTheLogIsCleared();
    void showsTheTemperaturesOfAUnit_data();
    void showsTheTemperaturesOfAUnit();
    void formatsTemperatures_data();
    void formatsTemperatures();
    void showsWhatAFailedReadLeaves_data();
    void showsWhatAFailedReadLeaves();
    void replacesWhatTheOperatorTyped();
    void leavesTheLastResultAlone();
    void readsNoTemperatureWithoutADevice_data();
    void readsNoTemperatureWithoutADevice();
};

void OperationLogTest::appendsLinesToTheViewAndTheSdkLog_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("view");
    QTest::addColumn<QString>("record");
    const auto row = [](const char *name, const char *line, const char *view, const char *record) {
        QTest::newRow(name) << QString::fromUtf8(line) << QString::fromUtf8(view)
                            << QString::fromUtf8(record);
    };
    row("a line", "Set GAMMA value OK", "Set GAMMA value OK\n", "log(2, \"Set GAMMA value OK\")");
    row("an empty line", "", "\n", "log(2, \"\")");
    row("two lines, one record", "first\nsecond", "first\nsecond\n", R"(log(2, "first\nsecond"))");
    row("a line feed at the end", "first\n", "first\n\n", R"(log(2, "first\n"))");
    row("blanks", "  a  ", "  a  \n", "log(2, \"  a  \")");
    row("markup", "<b>bold</b> &amp;", "<b>bold</b> &amp;\n", "log(2, \"<b>bold</b> &amp;\")");
    row("placeholders", "100% %1 %s", "100% %1 %s\n", "log(2, \"100% %1 %s\")");
    row("UTF-8",
        "37 \xC2\xB0"
        "C \xE2\x82\xAC",
        "37 \xC2\xB0"
        "C \xE2\x82\xAC\n",
        "log(2, \"37 \xC2\xB0"
        "C \xE2\x82\xAC\")");
}

void OperationLogTest::appendsLinesToTheViewAndTheSdkLog()
{
    QFETCH(QString, line);
    QFETCH(QString, view);
    QFETCH(QString, record);
    TestWindow test;
    test.takeCalls();

    appendLog(test, line);

    QCOMPARE(logView(test).toPlainText(), view);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{record});
}

void OperationLogTest::recordsTheWholeOfALine()
{
    // A record takes the line as a text object: one that is taken up to its first zero would lose the rest.
    TestWindow test;
    test.takeCalls();

    QVERIFY(QMetaObject::invokeMethod(&test.window(), "appendLog", Qt::DirectConnection,
                                      Q_ARG(std::string, std::string("before\0after", 12))));

    QCOMPARE(test.takeCallsAndRecords(),
             QStringList{QStringLiteral("log(2, \"before") + QChar::Null + QStringLiteral("after\")")});
}

void OperationLogTest::appendsInOrder()
{
    TestWindow test;
    test.takeCalls();

    appendLog(test, "one");
    appendLog(test, "");
    appendLog(test, "two");

    QCOMPARE(logView(test).toPlainText(), QStringLiteral("one\n\ntwo\n"));
    const QStringList records{"log(2, \"one\")", "log(2, \"\")", "log(2, \"two\")"};
    QCOMPARE(test.takeCallsAndRecords(), records);
}

void OperationLogTest::appendsAtTheEndWhereverTheCursorIs()
{
    TestWindow test;
    appendLog(test, "first line");
    appendLog(test, "second line");
    QTextCursor cursor{logView(test).document()};
    cursor.setPosition(3);
    logView(test).setTextCursor(cursor);

    appendLog(test, "third line");

    QCOMPARE(logView(test).toPlainText(), QStringLiteral("first line\nsecond line\nthird line\n"));
    QVERIFY(logView(test).textCursor().atEnd());
}

void OperationLogTest::keepsTextThatTheOperatorSelected()
{
    TestWindow test;
    appendLog(test, "first line");
    appendLog(test, "second line");
    logView(test).setFocus();
    QTest::keyClick(&logView(test), Qt::Key_A, Qt::ControlModifier);
    QVERIFY(logView(test).textCursor().hasSelection());

    appendLog(test, "third line");

    QCOMPARE(logView(test).toPlainText(), QStringLiteral("first line\nsecond line\nthird line\n"));
    QVERIFY(!logView(test).textCursor().hasSelection());
    QVERIFY(logView(test).textCursor().atEnd());
}

void OperationLogTest::showsTheNewestLine()
{
    TestWindow test;
    for (int number{0}; number < 200; ++number) {
        appendLog(test, QString::number(number));
    }
    const QScrollBar *const scrollBar{logView(test).verticalScrollBar()};
    QVERIFY(scrollBar->maximum() > 0);
    QCOMPARE(scrollBar->value(), scrollBar->maximum());

    logView(test).verticalScrollBar()->setValue(0);
    appendLog(test, "the newest");
    QCOMPARE(scrollBar->value(), scrollBar->maximum());
}

void OperationLogTest::takesNothingBackWhenTheLogIsCleared()
{
    TestWindow test;
    appendLog(test, "before");
    test.takeCalls();

    test.click("clearLogButton");
    QCOMPARE(logView(test).toPlainText(), QString{});
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});

    appendLog(test, "after");
    QCOMPARE(logView(test).toPlainText(), QStringLiteral("after\n"));
}

void OperationLogTest::showsTheTemperaturesOfAUnit_data()
{
    QTest::addColumn<int>("fpgaType");
    QTest::addColumn<QStringList>("boxes");
    QTest::newRow("0: the Blend Unit's FPGA") << 0 << QStringList{"37.15C", "before", "before"};
    QTest::newRow("1: the camera's FPGA and sensor") << 1 << QStringList{"before", "37.15C", "0C"};
    for (const int other : {2, 3, -1, 256}) {
        QTest::addRow("%d: read, but not shown", other) << other << QStringList{"before", "before", "before"};
    }
}

void OperationLogTest::showsTheTemperaturesOfAUnit()
{
    QFETCH(int, fpgaType);
    QFETCH(QStringList, boxes);
    TestWindow test;
    test.beConnected();
    test.simulator.set("blendUnit.temperatures.sensorMillikelvin", 273000);
    test.simulator.set("blendUnit.temperatures.fpgaMillikelvin", 310150);
    fillTemperatureBoxes(test, "before");

    readTemp(test, fpgaType);

    QCOMPARE(test.takeCallsAndRecords(),
             QStringList{"getTemperatures() -> true {sensorMillikelvin=273000, fpgaMillikelvin=310150}"});
    QCOMPARE(temperatureBoxes(test), boxes);
    QCOMPARE(test.takeLog(), QStringList{});
}

void OperationLogTest::formatsTemperatures_data()
{
    QTest::addColumn<double>("millikelvin");
    QTest::addColumn<QString>("text");
    const auto row = [](double millikelvin, const char *text) {
        QTest::addRow("%g shows as %s", millikelvin, text) << millikelvin << QString{text};
    };
    row(273000, "0C");
    row(310150, "37.15C");
    row(314500, "41.5C");
    row(296650, "23.65C");
    row(273150, "0.15C");
    row(272850, "-0.15C");
    row(233000, "-40C");
    row(0, "-273C");
    row(-273000, "-546C");
    row(373000, "100C");
    row(1273000, "1000C");
    // Six significant digits.
    row(285345.625, "12.3456C");
    row(2000273000, "2e+06C");
    row(273000.03125, "3.125e-05C");
    row(std::numeric_limits<double>::infinity(), "infC");
    row(-std::numeric_limits<double>::infinity(), "-infC");
    row(std::numeric_limits<double>::quiet_NaN(), "nanC");
    row(static_cast<double>(std::numeric_limits<float>::max()), "3.40282e+35C");
}

void OperationLogTest::formatsTemperatures()
{
    QFETCH(double, millikelvin);
    QFETCH(QString, text);
    TestWindow test;
    test.beConnected();
    for (const char *const key : {"sensorMillikelvin", "fpgaMillikelvin"}) {
        test.simulator.set(std::string{"blendUnit.temperatures."} + key, millikelvin);
    }

    readTemp(test, 0);
    readTemp(test, 1);

    QCOMPARE(temperatureBoxes(test), (QStringList{text, text, text}));
}

void OperationLogTest::showsWhatAFailedReadLeaves_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QStringList>("boxes");
    QTest::newRow("nothing filled in: zero kelvin") << Answer{} << QStringList{"-273C", "-273C", "-273C"};
    QTest::newRow("filled in, result false")
        << Answer{{false, 273000.0, 310150.0}} << QStringList{"37.15C", "37.15C", "0C"};
}

void OperationLogTest::showsWhatAFailedReadLeaves()
{
    QFETCH(Answer, answer);
    QFETCH(QStringList, boxes);
    TestWindow test;
    test.beConnected();
    test.simulator.addFault({"getTemperatures", 1, 0, answer});

    readTemp(test, 0);
    readTemp(test, 1);

    QCOMPARE(temperatureBoxes(test), boxes);
}

void OperationLogTest::replacesWhatTheOperatorTyped()
{
    TestWindow test;
    test.beConnected();
    auto &box = test.child<QPlainTextEdit>("FusionFpgaTempTextEdit");
    box.setFocus();
    QTest::keyClicks(&box, "note");
    QVERIFY(box.toPlainText().contains("note"));

    readTemp(test, 0);

    QCOMPARE(box.toPlainText(), QStringLiteral("48.55C"));
}

void OperationLogTest::leavesTheLastResultAlone()
{
    TestWindow test;
    test.beConnected();
    const bool lastCommandOk{test.lastCommandOk()};
    QVERIFY(lastCommandOk);
    test.simulator.addFault({"getTemperatures"});

    readTemp(test, 0);

    QCOMPARE(test.lastCommandOk(), lastCommandOk);
    QCOMPARE(test.takeLog(), QStringList{});
}

void OperationLogTest::readsNoTemperatureWithoutADevice_data()
{
    QTest::addColumn<bool>("connectedBefore");
    QTest::newRow("before the first connect") << false;
    QTest::newRow("after a disconnection") << true;
}

void OperationLogTest::readsNoTemperatureWithoutADevice()
{
    QFETCH(bool, connectedBefore);
    TestWindow test;
    if (connectedBefore) {
        test.beConnected();
        test.click("disconnectDeviceButton");
    }
    test.takeCalls();
    fillTemperatureBoxes(test, "before");

    for (const int fpgaType : {0, 1, 2}) {
        readTemp(test, fpgaType);
    }

    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(temperatureBoxes(test), (QStringList{"before", "before", "before"}));
    QCOMPARE(test.takeLog(), QStringList{});
}

PILOTEL_TEST_CLASS(OperationLogTest)
#include "tst_operation_log.moc"
