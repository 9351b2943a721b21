// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The same scenario and the same seed make the same trace, whatever goes wrong in it.
#include "testclass.h"
#include "tracedrun.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QList>
#include <QObject>
#include <QString>
#include <QTemporaryDir>
#include <QTest>

namespace
{

/// The trace of a process that calls every operation of the contract, without the times.
QByteArray checkOn(const QString &scenario)
{
    return withoutTimes(traceOfCheck(scenario));
}

/// Noise, chance and a link with jitter, drawn from the seed in front.
const char *const noise{R"(
[link]
kind = "fixed"
millisecondsPerCall = 0.01
jitterMilliseconds = 0.05

[life]
millisecondsPerCall = 10

[[life.drift]]
key = "camera.temperatures.sensorMillikelvin"
end = 310150
halfTimeSeconds = 2

[[fault]]
operation = "get*"
probability = 0.3
effect = "garbage"

[[fault]]
operation = "get*"
probability = 0.1
effect = "wrong"
)"};

} // namespace

class RepeatableScenariosTest : public QObject
{
    Q_OBJECT

private slots:
    void scenarioMakesTheSameTrace_data();
    void scenarioMakesTheSameTrace();
    void seedMakesTheTrace();
};

void RepeatableScenariosTest::scenarioMakesTheSameTrace_data()
{
    QTest::addColumn<QString>("name");
    for (const QFileInfo &file : QDir{QStringLiteral(SCENARIOS)}.entryInfoList({QStringLiteral("*.toml")})) {
        // Left out: it takes long, and nothing in it is drawn from the seed.
        if (file.completeBaseName() != QStringLiteral("slow-link")) {
            QTest::newRow(qPrintable(file.completeBaseName())) << file.completeBaseName();
        }
    }
}

void RepeatableScenariosTest::scenarioMakesTheSameTrace()
{
    QFETCH(QString, name);
    const QByteArray trace{checkOn(name)};
    const QByteArray header{R"({"trace":1,"scenario":")" + name.toUtf8() + '"'};
    QVERIFY2(trace.startsWith(header), trace.left(200).constData());
    QVERIFY(trace.contains("\"operation\":\"openDevice\""));
    QVERIFY(!trace.contains("\"time\""));
    QCOMPARE(checkOn(name), trace);
}

void RepeatableScenariosTest::seedMakesTheTrace()
{
    const QTemporaryDir directory;
    QList<QByteArray> traces;
    for (const int seed : {7, 7, 8}) {
        const QString name{directory.filePath(QStringLiteral("noisy.toml"))};
        QFile file{name};
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("seed = " + QByteArray::number(seed) + noise);
        file.close();
        traces.append(checkOn(name));
    }
    QVERIFY(traces[0].count('\n') > 500);
    // By its name alone, wherever the file lies.
    QVERIFY2(traces[0].startsWith(R"({"trace":1,"scenario":"noisy.toml","seed":7)"),
             traces[0].left(200).constData());
    QCOMPARE(traces[1], traces[0]);
    QVERIFY(traces[2] != traces[0]);
    const auto withoutHeader = [](const QByteArray &trace) {
        return trace.mid(trace.indexOf('\n'));
    };
    QVERIFY(withoutHeader(traces[2]) != withoutHeader(traces[0]));
}

PILOTEL_TEST_CLASS(RepeatableScenariosTest)
#include "tst_repeatable_scenarios.moc"
