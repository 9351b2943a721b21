// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What an operator sees in each of the scenarios that ship.
#include "boxpresser.h"
#include "testclass.h"
#include "testwindow.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QLatin1Char>
#include <QObject>
#include <QPlainTextEdit>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

using veltrix_simulator::Simulator;

namespace
{

/// One thing that the operator does.
struct Step
{
    const char *name;
    const char *needs; ///< Widget that has to be shown and enabled for it.
    std::function<void(TestWindow &)> act;
};

std::function<void(TestWindow &)> click(const char *button)
{
    return [=](TestWindow &test) {
        test.child<QAbstractButton>(QString::fromLatin1(button)).click();
    };
}

/// The session that is gone through in every scenario.
const std::vector<Step> &session()
{
    static const std::vector<Step> steps{
        {"scan", "scanDeviceButton", click("scanDeviceButton")},
        {"connect", "connectDeviceButton", click("connectDeviceButton")},
        {"turn to the camera", "paramSection",
         [](TestWindow &test) {
             test.showPage("Veltrix_KR_tab");
         }},
        {"type a gamma of 1.5", "gammaEdit",
         [](TestWindow &test) {
             auto &gamma = test.child<QDoubleSpinBox>("gammaEdit");
             gamma.setFocus();
             gamma.setValue(1.5);
             QTest::keyClick(&gamma, Qt::Key_Tab);
         }},
        {"choose the third colour table", "lutColorEdit",
         [](TestWindow &test) {
             test.child<QComboBox>("lutColorEdit").setCurrentIndex(2);
         }},
        {"read the parameters", "readParamButtonUser", click("readParamButtonUser")},
        {"turn to the fusion", "paramSection",
         [](TestWindow &test) {
             test.showPage("Fusion_tab");
         }},
        {"choose the infrared video", "BU_IR_MODE_PB", click("BU_IR_MODE_PB")},
        {"send the warp", "FusionWarpPB", click("FusionWarpPB")},
        {"save the user parameters", "saveParamButtonUser", click("saveParamButtonUser")},
        {"disconnect", "disconnectDeviceButton", click("disconnectDeviceButton")},
        {"connect again", "connectDeviceButton", click("connectDeviceButton")},
        {"disconnect again", "disconnectDeviceButton", click("disconnectDeviceButton")},
    };
    return steps;
}

/// What of the window tells an operator how things stand, beside the log.
QStringList standingOf(const TestWindow &test)
{
    QStringList temperatures;
    for (const char *const name : {"FusionFpgaTempTextEdit", "FpgaTempTextEdit", "SensorTempTextEdit"}) {
        temperatures.append(test.child<QPlainTextEdit>(QString::fromLatin1(name)).toPlainText());
    }
    const QStringList enabled{
        test.enabledOf({QStringLiteral("connectDeviceButton"), QStringLiteral("disconnectDeviceButton"),
                        QStringLiteral("paramSection")})};
    return {QStringLiteral("  temperatures: ") + temperatures.join(QStringLiteral(" / ")),
            QStringLiteral("  enabled: ") + enabled.join(QStringLiteral(", "))};
}

/// Goes through the session and writes down the log, the boxes and what is enabled after each step.
QString storyOf(TestWindow &test)
{
    const BoxPresser presser{test.boxes};
    QStringList story;
    for (const Step &step : session()) {
        const auto &needed = test.child<QWidget>(QString::fromLatin1(step.needs));
        if (!needed.isEnabled()) {
            story.append(QStringLiteral("== %1: not possible").arg(QString::fromLatin1(step.name)));
            continue;
        }
        story.append(QStringLiteral("== ") + QString::fromLatin1(step.name));
        step.act(test);
        for (const QString &line : test.takeLog()) {
            story.append(QStringLiteral("  ") + line);
        }
        for (const QString &box : test.boxes.takeShown()) {
            story.append(QStringLiteral("  box: ") +
                         QString{box}.replace(QLatin1Char{'\n'}, QStringLiteral("\\n")));
        }
        story.append(standingOf(test));
    }
    for (const std::string &origin : test.simulator.unfiredFaults()) {
        story.append(QStringLiteral("never happened: ") + QString::fromStdString(origin));
    }
    return story.join(QLatin1Char{'\n'}) + QLatin1Char{'\n'};
}

} // namespace

class ShippedScenariosTest : public QObject
{
    Q_OBJECT

private slots:
    void showWhatTheyPromise_data();
    void showWhatTheyPromise();
    void everyStoryHasItsScenario();
    void everyScenarioIsListed();
    void anUnknownNameIsAnsweredWithTheNearest_data();
    void anUnknownNameIsAnsweredWithTheNearest();
};

void ShippedScenariosTest::showWhatTheyPromise_data()
{
    QTest::addColumn<QString>("name");
    for (const QFileInfo &file : QDir{QStringLiteral(SCENARIOS)}.entryInfoList({QStringLiteral("*.toml")})) {
        QTest::newRow(qPrintable(file.completeBaseName())) << file.completeBaseName();
    }
}

void ShippedScenariosTest::showWhatTheyPromise()
{
    QFETCH(QString, name);
    TestWindow test{[&](Simulator &simulator) {
        simulator.loadScenario(name.toStdString());
    }};
    const QString story{storyOf(test)};

    QFile file{QStringLiteral(EXPECTATIONS "/%1.txt").arg(name)};
    if (qEnvironmentVariableIsSet("PILOTEL_STORE_STORIES")) {
        QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(file.errorString()));
        file.write(story.toUtf8());
        file.close();
    }
    QVERIFY2(file.open(QIODevice::ReadOnly),
             qPrintable(file.fileName() + QStringLiteral(": ") + file.errorString()));
    const QStringList expected{QString::fromUtf8(file.readAll()).split(QLatin1Char{'\n'})};
    QCOMPARE(story.split(QLatin1Char{'\n'}), expected);
}

void ShippedScenariosTest::everyStoryHasItsScenario()
{
    const auto namesIn = [](const QString &folder) {
        QStringList names;
        for (const QFileInfo &file : QDir{folder}.entryInfoList(QDir::Files)) {
            names.append(file.completeBaseName());
        }
        return names;
    };
    QCOMPARE(namesIn(QStringLiteral(EXPECTATIONS)), namesIn(QStringLiteral(SCENARIOS)));
}

void ShippedScenariosTest::everyScenarioIsListed()
{
#if defined(Q_OS_WIN)
    QSKIP("scripts/run is for the shell of another system.");
#endif
    QStringList expected;
    const QDir folder{QStringLiteral(SCENARIOS)};
    for (const QFileInfo &info : folder.entryInfoList({QStringLiteral("*.toml")})) {
        QFile file{info.filePath()};
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString description{QString::fromUtf8(file.readAll()).split(QLatin1Char{'\n'}).value(2).mid(2)};
        QVERIFY2(!description.isEmpty(), qPrintable(info.fileName()));
        expected.append(info.completeBaseName().leftJustified(25) + description);
    }
    QProcess run;
    run.start(QStringLiteral(RUN_SCRIPT), {QStringLiteral("--scenarios")});
    QVERIFY(run.waitForFinished());
    QCOMPARE(QString::fromUtf8(run.readAllStandardOutput()).trimmed().split(QLatin1Char{'\n'}), expected);
    QCOMPARE(run.exitCode(), 0);

    run.start(QStringLiteral(RUN_SCRIPT), {QStringLiteral("--scenarois")});
    QVERIFY(run.waitForFinished());
    QVERIFY(run.readAllStandardError().startsWith("scripts/run: there is no option --scenarois\n"));
    QCOMPARE(run.exitCode(), 2);
}

void ShippedScenariosTest::anUnknownNameIsAnsweredWithTheNearest_data()
{
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("nearest");
    QTest::newRow("a letter left out") << "slow-lnk"
                                       << "slow-link";
    QTest::newRow("a letter replaced") << "garbige"
                                       << "garbage";
    QTest::newRow("another case") << "Default"
                                  << "default";
    QTest::newRow("a part of the name") << "cable"
                                        << "cable-pulled";
    QTest::newRow("an end of its own") << "warming-up-slowly"
                                       << "warming-up";
}

void ShippedScenariosTest::anUnknownNameIsAnsweredWithTheNearest()
{
#if defined(Q_OS_WIN)
    QSKIP("scripts/run is for the shell of another system.");
#endif
    QFETCH(QString, asked);
    QFETCH(QString, nearest);
    QProcess run;
    run.start(QStringLiteral(RUN_SCRIPT), {QStringLiteral("--scenario"), asked});
    QVERIFY(run.waitForFinished());
    QCOMPARE(run.exitCode(), 2);
    // Neither a build nor the program, which would write there, was started.
    QCOMPARE(QString::fromUtf8(run.readAllStandardOutput()), QString{});
    QCOMPARE(QString::fromUtf8(run.readAllStandardError()),
             QStringLiteral("scripts/run: there is no scenario %1; did you mean %2?\n"
                            "scripts/run: --scenarios lists the names.\n")
                 .arg(asked, nearest));
}

PILOTEL_TEST_CLASS(ShippedScenariosTest)
#include "tst_shipped_scenarios.moc"
