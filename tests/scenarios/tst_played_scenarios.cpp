// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A session that was recorded is the same when it is played, whatever went wrong in it.
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
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

/// What writes the calls of a program.
using Run = QByteArray (*)(const QString &program, const QStringList &arguments, const QString &scenario);

Q_DECLARE_METATYPE(Run)

namespace
{

/// A scenario that plays a trace.
class Playing
{
public:
    explicit Playing(const QByteArray &trace)
    {
        write(QStringLiteral("session.trace"), trace);
        write(QStringLiteral("played.toml"), "recording = \"session.trace\"\n");
    }

    QString scenario() const { return directory.filePath(QStringLiteral("played.toml")); }

private:
    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file{directory.filePath(name)};
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), static_cast<qint64>(bytes.size()));
    }

    QTemporaryDir directory;
};

/// The calls of a trace without their times, and without the header, which names the scenario.
QList<QByteArray> callsOf(const QByteArray &trace)
{
    return withoutTimes(trace).split('\n').mid(1);
}

/// Where the lists differ first; empty where they do not.
QByteArray differenceOf(const QList<QByteArray> &recorded, const QList<QByteArray> &played)
{
    for (int line{0}; line < recorded.size() || line < played.size(); ++line) {
        if (recorded.value(line) != played.value(line)) {
            return "line " + QByteArray::number(line + 2) + "\n  recorded: " + recorded.value(line) +
                   "\n  played:   " + played.value(line);
        }
    }
    return {};
}

} // namespace

class PlayedScenariosTest : public QObject
{
    Q_OBJECT

private slots:
    void shippedScenarioPlaysTheSame_data();
    void shippedScenarioPlaysTheSame();
    void tourPlaysTheSame_data();
    void tourPlaysTheSame();
};

void PlayedScenariosTest::shippedScenarioPlaysTheSame_data()
{
    QTest::addColumn<QString>("name");
    for (const QFileInfo &file : QDir{QStringLiteral(SCENARIOS)}.entryInfoList({QStringLiteral("*.toml")})) {
        // Left out: the first takes long and answers as the default does, the second opens nothing.
        if (!QStringList{QStringLiteral("slow-link"), QStringLiteral("no-ports")}.contains(
                file.completeBaseName())) {
            QTest::newRow(qPrintable(file.completeBaseName())) << file.completeBaseName();
        }
    }
}

void PlayedScenariosTest::shippedScenarioPlaysTheSame()
{
    QFETCH(QString, name);
    const QByteArray recorded{traceOfCheck(name)};
    QVERIFY(recorded.contains("\"operation\":\"openDevice\""));
    const Playing playing{recorded};
    const QByteArray difference{differenceOf(callsOf(recorded), callsOf(traceOfCheck(playing.scenario())))};
    QVERIFY2(difference.isEmpty(), difference.constData());
}

void PlayedScenariosTest::tourPlaysTheSame_data()
{
    QTest::addColumn<Run>("run");
    QTest::addColumn<QString>("scenario");
    // By the library and by the program; a tour takes its time.
    QTest::newRow("trace") << Run{traceOf} << QStringLiteral("default");
    QTest::newRow("recording") << Run{recordingOf} << QStringLiteral("refused-warp");
}

void PlayedScenariosTest::tourPlaysTheSame()
{
    QFETCH(Run, run);
    QFETCH(QString, scenario);
    const QTemporaryDir pictures;
    const QByteArray recorded{run(QStringLiteral(TOUR), {pictures.path()}, scenario)};
    QVERIFY(recorded.contains("\"interface\":\"log\""));
    QVERIFY(recorded.count('\n') > 300);
    QCOMPARE(recorded.contains("\"words\":{"), run == Run{recordingOf});
    const Playing playing{recorded};
    const QByteArray difference{differenceOf(
        callsOf(recorded), callsOf(run(QStringLiteral(TOUR), {pictures.path()}, playing.scenario())))};
    QVERIFY2(difference.isEmpty(), difference.constData());
}

PILOTEL_TEST_CLASS(PlayedScenariosTest)
#include "tst_played_scenarios.moc"
