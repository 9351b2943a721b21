// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Completion in Bash: what its script makes of what the program tells.
#include "ctlrun.h"
#include "testclass.h"

#include <QObject>
#include <QSerialPortInfo>
#include <QString>
#include <QStringList>
#include <QTest>

class CtlCompletionTest : public QObject
{
    Q_OBJECT

private slots:
    void completes_data();
    void completes();
    void namesEverySetting();
    void opensNoDevice();
    void namesTheCommandsWhereNothingIsTyped();
};

namespace
{

/// What Bash offers for a line whose words it has taken apart, the last one being completed.
QStringList offered(CtlFolder &folder, const QStringList &words)
{
    const QString script{"source \"$1\"; shift; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _pilotel_ctl; "
                         "[ ${#COMPREPLY[@]} -eq 0 ] || printf '%s\\n' \"${COMPREPLY[@]}\""};
    const Outcome outcome{
        ::run("bash", QStringList{"-c", script, "bash", COMPLETION, CTL} + words, folder.environment)};
    return outcome.errors.isEmpty() ? outcome.output.split('\n', Qt::SkipEmptyParts)
                                    : QStringList{outcome.errors};
}

} // namespace

void CtlCompletionTest::completes_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const QStringList &words, const QStringList &expected) {
        QTest::addRow("%s", qPrintable(words.join('|'))) << words << expected;
    };
    QStringList ports;
    for (const QSerialPortInfo &port : QSerialPortInfo::availablePorts()) {
        ports.append(port.portName());
    }
    row({"p"}, {"ports", "profile"});
    row({"profile", ""}, {"save", "apply", "diff"});
    row({"profile", "apply", ""}, {});
    row({"rec"}, {"recording"});
    row({"recording", ""}, {"show", "profile"});
    row({"recording", "show", ""}, {});
    row({"profile", "apply", "--d"}, {"--dry-run"});
    row({"--port", ""}, ports + QStringList{"SIM1"});
    row({"-p", "SIM"}, {"SIM1"});
    row({"--port", "SIM1", "inf"}, {"info"});
    row({"info", "--baud-rate", ""}, {"9600", "115200"});
    row({"store", "user", "--unit", ""}, {"blendUnit", "camera"});
    row({"store", ""}, {"user", "expert"});
    row({"get", "camera.gai"}, {"camera.gainCorrection"});
    row({"get", "camera.gamma", "camera.gai"}, {"camera.gainCorrection"});
    row({"get", "configuration.gsk"},
        {"configuration.gskDefault", "configuration.gskMinimum", "configuration.gskMaximum"});
    row({"set", "camera.gam"}, {"camera.gamma="});
    row({"set", "camera.serial"}, {});
    row({"set", "camera.contrastType", "="}, {"clhe", "clahe"});
    row({"set", "camera.contrastType", "=", "cla"}, {"clahe"});
    row({"set", "camera.contrastType", "=", "clhe", "camera.polarity", "=", "t"}, {"true"});
    row({"set", "camera.frameRate", "=", ""}, {"9", "25", "30", "50", "60"});
    row({"bad-pixels", "list", "--"},
        {"--help", "--picture", "--unit", "--version", "--port", "--baud-rate", "--record"});
    row({"nothing", "like", "this"}, {});
    row({"--frob", "inf"}, {"info"});
    row({"-", "inf"}, {"info"});
    row({"--version", "inf"}, {"info"});
    row({"watch", "temperatures", "--every", ""}, {});
    row({"watch", "temperatures", ""}, {});
    row({"bad-pixels", "list", ""}, {});
    row({"list", "camera.gai"}, {"camera.gainCorrection"});
}

void CtlCompletionTest::completes()
{
    QFETCH(const QStringList, words);
    QFETCH(const QStringList, expected);
    CtlFolder folder;
    QCOMPARE(offered(folder, words), expected);
}

void CtlCompletionTest::namesEverySetting()
{
    CtlFolder folder;
    QStringList listed;
    for (const QString &row : folder.run({"list"}).output.split('\n', Qt::SkipEmptyParts).mid(1)) {
        listed.append(row.section(' ', 0, 0));
    }
    QCOMPARE(offered(folder, {"get", ""}), listed);
}

void CtlCompletionTest::opensNoDevice()
{
    CtlFolder folder;
    QVERIFY(!offered(folder, {"set", "camera.gam"}).isEmpty());
    QCOMPARE(folder.calls().filter("openDevice"), QStringList{});
}

void CtlCompletionTest::namesTheCommandsWhereNothingIsTyped()
{
    const Outcome outcome{CtlFolder{}.run({"--complete"})};
    QCOMPARE(outcome.output, lines({"shell", "ports", "info", "list", "get", "set", "profile", "store",
                                    "watch", "bad-pixels", "recording"}));
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.status, 0);
}

PILOTEL_TEST_CLASS(CtlCompletionTest)
#include "tst_ctl_completion.moc"
