// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of saving the Blend Unit's parameters.
#include "filledblendunit.h"
#include "testclass.h"
#include "trigger.h"

#include <QAbstractButton>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

namespace
{

void saveUserParameters(TestWindow &test)
{
    test.click("saveParamButtonUser");
}

// The administrator's group is hidden in every installation; its button is wired all the same.
void saveExpertParameters(TestWindow &test)
{
    test.child<QAbstractButton>("saveParamFactoryPB").click();
}

} // namespace

class BlendUnitSettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void savingIsReported_data();
    void savingIsReported();
    void saveButtonNeedsAConnection();
};

void BlendUnitSettingsTest::savingIsReported_data()
{
    QTest::addColumn<Trigger>("save");
    QTest::addColumn<bool>("refused");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("line");

    const auto row = [](const char *name, Trigger save, bool refused, const char *call, const char *line) {
        QTest::newRow(name) << save << refused << QString{call} << QString{line};
    };
    row("user parameters saved", saveUserParameters, false, "saveBlendUnitParameters(0) -> true",
        "Blend unit parameters have been saved");
    row("user parameters refused", saveUserParameters, true, "saveBlendUnitParameters(0) -> false",
        "Could not saved blend unit parameters");
    row("expert parameters saved", saveExpertParameters, false, "saveBlendUnitParameters(1) -> true",
        "Blend unit expert parameters have been saved");
    row("expert parameters refused", saveExpertParameters, true, "saveBlendUnitParameters(1) -> false",
        "Could not saved blend unit expert parameters");
}

void BlendUnitSettingsTest::savingIsReported()
{
    QFETCH(const Trigger, save);
    QFETCH(const bool, refused);
    QFETCH(const QString, call);
    QFETCH(const QString, line);
    TestWindow test;
    test.beConnected();
    if (refused) {
        test.simulator.addFault({"saveBlendUnitParameters"});
    }

    save(test);

    QCOMPARE(test.takeCalls(), QStringList{call});
    QCOMPARE(test.takeLog(), QStringList{line});
    QCOMPARE(test.lastCommandOk(), !refused);
}

void BlendUnitSettingsTest::saveButtonNeedsAConnection()
{
    TestWindow test;
    auto &button = test.child<QAbstractButton>("saveParamButtonUser");
    QVERIFY(!button.isEnabled());

    test.beConnected();
    QVERIFY(button.isEnabled());

    test.click("disconnectDeviceButton");
    QVERIFY(!button.isEnabled());
    test.takeCalls();
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
}

PILOTEL_TEST_CLASS(BlendUnitSettingsTest)
#include "tst_blend_unit_settings.moc"
