// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Temperatures read again and again: the lines, the file, the clock.
#include "ctlrun.h"
#include "testclass.h"

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTest>

#if defined(Q_OS_UNIX)
#include <csignal>
#include <sys/types.h>
#endif

class CtlWatchTest : public QObject
{
    Q_OBJECT

private slots:
    void writesALineForEachReading();
    void writesAFile();
    void keepsToTheClock();
    void leavesOutTimesThatHavePassed();
    void refusesWrongTimes_data();
    void refusesWrongTimes();
    void tellsALostAnswer();
    void endsWithoutACable();
    void saysThatItHasNoPictures();
#if defined(Q_OS_UNIX)
    void endsWithCtrlC();
    void endsWithItsReader();
    void endsWhenItCannotWrite();
#endif
};

namespace
{

const char *const heading{
    "TIME                      BLEND UNIT SENSOR    FPGA  CAMERA SENSOR    FPGA  (degrees C)"};

/// The times of the readings.
QVector<QDateTime> timesOf(const QStringList &rows)
{
    QVector<QDateTime> times;
    for (const QString &row : rows) {
        times.append(QDateTime::fromString(row.left(24), Qt::ISODateWithMs));
    }
    return times;
}

} // namespace

void CtlWatchTest::writesALineForEachReading()
{
    CtlFolder folder;
    const QDateTime before{QDateTime::currentDateTimeUtc()};
    const Outcome outcome{folder.run({"watch", "temperatures", "--every", "10ms", "--count", "3"})};
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.status, 0);
    const QStringList rows{outcome.output.split('\n')};
    QCOMPARE(rows.size(), 5);
    QCOMPARE(rows[0], QString{heading});
    for (int row{1}; row <= 3; ++row) {
        QCOMPARE(rows[row].mid(24), QString{"              27.80   48.40          23.50   41.10"});
    }
    const QVector<QDateTime> times{timesOf(rows.mid(1, 3))};
    QVERIFY(times[0] >= before && times[2] <= QDateTime::currentDateTimeUtc());
    QCOMPARE(times[0].timeSpec(), Qt::UTC);
}

void CtlWatchTest::writesAFile()
{
    CtlFolder folder;
    folder.play("[camera]\ntemperatures.sensorMillikelvin = 301150.5\n");
    const Outcome outcome{
        folder.run({"watch", "temperatures", "--every", "10ms", "--count", "2", "--csv", "t.csv"})};
    QCOMPARE(outcome.status, 0);
    const QStringList rows{QString::fromUtf8(folder.read("t.csv")).split('\n')};
    QCOMPARE(rows.size(), 4);
    const QString names{
        "time,blendUnit.temperatures.sensorMillikelvin,blendUnit.temperatures.fpgaMillikelvin,"
        "camera.temperatures.sensorMillikelvin,camera.temperatures.fpgaMillikelvin"};
    QCOMPARE(rows[0], names);
    for (int row{1}; row <= 2; ++row) {
        QVERIFY(timesOf({rows[row]}).first().isValid());
        QCOMPARE(rows[row].mid(24), QString{",300950,321550,301150.5,314250"});
    }
    const QStringList alone{
        folder.run({"watch", "temperatures", "--count", "1", "--csv", "-"}).output.split('\n')};
    QCOMPARE(alone.size(), 3);
    QCOMPARE(alone[0], names);
    QVERIFY(!folder.has("-"));
}

void CtlWatchTest::keepsToTheClock()
{
    CtlFolder folder;
    // A clock that waited after each reading would go wrong by 40 ms each time.
    folder.play("[link]\nkind = \"fixed\"\nmillisecondsPerCall = 10\n");
    const Outcome outcome{folder.run({"watch", "temperatures", "--every", "200ms", "--count", "16"})};
    const QVector<QDateTime> times{timesOf(outcome.output.split('\n').mid(1, 16))};
    QCOMPARE(times.size(), 16);
    // A busy machine makes single readings late, or leaves some out, but not most of them.
    int onTime{0};
    for (const QDateTime &time : times) {
        onTime += times.first().msecsTo(time) % 200 < 50 || times.first().msecsTo(time) % 200 > 190 ? 1 : 0;
    }
    QVERIFY2(onTime >= 11, qPrintable(outcome.output));
    QVERIFY(times.first().msecsTo(times.last()) >= 2900);
}

void CtlWatchTest::leavesOutTimesThatHavePassed()
{
    CtlFolder folder;
    folder.play("[link]\nkind = \"fixed\"\nmillisecondsPerCall = 40\n");
    const Outcome outcome{folder.run({"watch", "temperatures", "--every", "100ms", "--count", "4"})};
    const QVector<QDateTime> times{timesOf(outcome.output.split('\n').mid(1, 4))};
    QCOMPARE(times.size(), 4);
    // A reading takes 160 ms, so that every second time is left out.
    QVERIFY2(times[1].msecsTo(times[3]) >= 380, qPrintable(outcome.output));
}

void CtlWatchTest::refusesWrongTimes_data()
{
    QTest::addColumn<QString>("time");
    for (const char *const time : {"", "1", "s", "1 s", "1x", "9ms", "25h", "-1s", "nan", "1e9h"}) {
        QTest::addRow("\"%s\"", time) << QString{time};
    }
}

void CtlWatchTest::refusesWrongTimes()
{
    QFETCH(const QString, time);
    CtlFolder folder;
    const Outcome outcome{folder.run({"watch", "temperatures", "--count", "1", "--every=" + time})};
    QCOMPARE(outcome.status, 2);
    QVERIFY2(time.isEmpty() || outcome.errors.startsWith("pilotel-ctl: --every: \"" + time +
                                                         "\" is no time such as 500ms, 1s, 2min or 1h\n"),
             qPrintable(outcome.errors));
    QCOMPARE(folder.calls().filter("openDevice"), QStringList{});
}

void CtlWatchTest::tellsALostAnswer()
{
    CtlFolder folder;
    folder.play(
        "[[fault]]\noperation = \"getTemperatures\"\ntarget = \"camera\"\nonCall = 2\neffect = \"refuse\"\n");
    const Outcome outcome{folder.run({"watch", "temperatures", "--every", "10ms", "--count", "3"})};
    QCOMPARE(
        outcome.errors,
        lines(
            {"pilotel-ctl: camera.temperatures sensor answers 0; 200000 to 400000 is allowed, fpga answers 0; 200000 to 400000 is allowed"}));
    QCOMPARE(outcome.status, 1);
    const QStringList rows{outcome.output.split('\n')};
    QCOMPARE(rows[2].mid(24), QString{"              27.80   48.40              ?       ?"});
    QCOMPARE(rows[3].mid(24), QString{"              27.80   48.40          23.50   41.10"});
}

void CtlWatchTest::endsWithoutACable()
{
    CtlFolder folder;
    folder.play("[[fault]]\noperation = \"getTemperatures\"\nonCall = 5\neffect = \"cableOut\"\n");
    const Outcome outcome{folder.run({"watch", "temperatures", "--every", "10ms", "--csv", "t.csv"})};
    QCOMPARE(outcome.errors,
             lines({"pilotel-ctl: No answer from the Blend Unit: look at its power and its cable."}));
    QCOMPARE(outcome.status, 3);
    // The file has what was read until then.
    QCOMPARE(folder.read("t.csv").count('\n'), 3);
}

void CtlWatchTest::saysThatItHasNoPictures()
{
    CtlFolder folder;
#if defined(Q_OS_WIN)
    const QString program{CTL};
#else
    // The program that draws is not beside it.
    const QString program{folder.path("pilotel-ctl")};
    QVERIFY(QFile::copy(CTL, program));
    folder.environment.insert("LD_LIBRARY_PATH", DEVICE_LIBRARY_FOLDER);
#endif
    const Outcome outcome{
        run(program, {"watch", "temperatures", "--plot", "t.png"}, folder.environment, folder.path("."))};
    QCOMPARE(
        outcome.errors,
        lines(
            {"pilotel-ctl: --plot: this build has no pictures of curves; --csv writes the readings into a file instead."}));
    QCOMPARE(outcome.status, 2);
    QCOMPARE(outcome.output, QString{});
    QVERIFY(!folder.has("t.png"));
}

#if defined(Q_OS_UNIX)
void CtlWatchTest::endsWithCtrlC()
{
    CtlFolder folder;
    QProcess process;
    process.setProcessEnvironment(folder.environment);
    process.start(CTL, {"watch", "temperatures", "--every", "1h"});
    QByteArray output;
    QTRY_VERIFY_WITH_TIMEOUT((output += process.readAllStandardOutput()).count('\n') == 2, 30000);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(folder.calls().last(), QString{"releaseDeviceManager(\"manager\")"});
}

void CtlWatchTest::endsWithItsReader()
{
    CtlFolder folder;
    const Outcome outcome{
        run("bash",
            {"-c", R"("$0" watch temperatures --every 10ms --csv t.csv | head -n 3; exit "${PIPESTATUS[0]}")",
             CTL},
            folder.environment, folder.path("."))};
    QCOMPARE(outcome.errors, QString{});
    QVERIFY(outcome.exited);
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.output.count('\n'), 3);
    QVERIFY(folder.read("t.csv").endsWith('\n'));
    QCOMPARE(folder.calls().last(), QString{"releaseDeviceManager(\"manager\")"});
}

void CtlWatchTest::endsWhenItCannotWrite()
{
    CtlFolder folder;
    const Outcome outcome{run("bash", {"-c", R"("$0" watch temperatures --every 10ms >/dev/full)", CTL},
                              folder.environment, folder.path("."))};
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: Standard output could not be written."}));
    QCOMPARE(outcome.status, 2);
}
#endif

PILOTEL_TEST_CLASS(CtlWatchTest)
#include "tst_ctl_watch.moc"
