// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the visible channel's automatic gain control and CLHE.
#include "filledblendunit.h"
#include "testclass.h"

#include <QList>
#include <QObject>
#include <QSpinBox>
#include <QString>
#include <QStringList>
#include <QTest>

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

using veltrix_simulator::Value;

namespace
{

constexpr std::array<const char *, 3> agcBoxes{"VisAgcTargetSB", "VisAgcTHSB", "VisAgcCoeffSB"};
constexpr std::array<const char *, 2> clheBoxes{"VisClheTHSB", "VisClheCoeffSB"};

/// A connected window with the Visible page in view.
void beOnVisiblePage(TestWindow &test)
{
    test.beConnected();
    test.showPage("Visible_tab");
    test.takeLog();
    test.takeCalls();
}

/// Starts an edit as the operator does: into the box, over what it shows.
QSpinBox &type(const TestWindow &test, const QString &box, const QString &text)
{
    auto &spinBox = test.child<QSpinBox>(box);
    spinBox.setFocus();
    spinBox.selectAll();
    QTest::keyClicks(&spinBox, text);
    return spinBox;
}

template <typename Boxes>
QList<int> valuesOf(const TestWindow &test, const Boxes &boxes)
{
    QList<int> values;
    for (const char *const box : boxes) {
        values.append(test.child<QSpinBox>(box).value());
    }
    return values;
}

/// Every box with a new value, finished in each way there is.
void addEdits()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("group");

    struct Edit
    {
        const char *box;
        const char *text;
        const char *call;
        const char *group;
    };
    const Edit edits[]{
        {"VisAgcTargetSB", "77", "setVisibleAgc(77, 11, 22)", "AGC"},
        {"VisAgcTargetSB", "0", "setVisibleAgc(0, 11, 22)", "AGC"},
        {"VisAgcTHSB", "100", "setVisibleAgc(42, 100, 22)", "AGC"},
        {"VisAgcCoeffSB", "5", "setVisibleAgc(42, 11, 5)", "AGC"},
        {"VisClheTHSB", "65535", "setVisibleClhe(65535, 33)", "CLHE"},
        {"VisClheTHSB", "0", "setVisibleClhe(0, 33)", "CLHE"},
        {"VisClheCoeffSB", "100", "setVisibleClhe(1234, 100)", "CLHE"},
    };
    for (const Edit &edit : edits) {
        for (const auto &[key, keyName] :
             {std::pair{Qt::Key_Return, "Return"}, std::pair{Qt::Key_Enter, "Enter"},
              std::pair{Qt::Key_Tab, "Tab"}, std::pair{Qt::Key_Backtab, "Backtab"}}) {
            QTest::addRow("%s to %s by %s", edit.box, edit.text, keyName)
                << QString{edit.box} << QString{edit.text} << static_cast<int>(key) << QString{edit.call}
                << QString{edit.group};
        }
    }
}

} // namespace

class VisibleChannelTest : public QObject
{
    Q_OBJECT

private slots:
    void agcReadShowsAndTells_data();
    void agcReadShowsAndTells();
    void refusedAgcReadLeavesTheBoxes();
    void clheReadShowsAndTells_data();
    void clheReadShowsAndTells();
    void refusedClheReadLeavesTheBoxes();

    void finishedEditIsSentOnce_data() { addEdits(); }
    void finishedEditIsSentOnce();
    void refusedEditIsReported_data() { addEdits(); }
    void refusedEditIsReported();
    void unfinishedEditSendsNothing_data();
    void unfinishedEditSendsNothing();
    void steppingSendsOnLeaving();
    void editFinishedTwiceSendsTheSameValue();
    void pendingEditIsSentBeforeTheDeviceIsClosed_data();
    void pendingEditIsSentBeforeTheDeviceIsClosed();
};

void VisibleChannelTest::agcReadShowsAndTells_data()
{
    QTest::addColumn<QList<int>>("read");
    QTest::addColumn<QList<int>>("shown");

    QTest::newRow("in range") << QList<int>{42, 11, 22} << QList<int>{42, 11, 22};
    QTest::newRow("lowest") << QList<int>{0, 0, 0} << QList<int>{0, 0, 0};
    QTest::newRow("highest") << QList<int>{100, 100, 100} << QList<int>{100, 100, 100};
    QTest::newRow("beyond the boxes") << QList<int>{101, 200, 255} << QList<int>{100, 100, 100};
}

void VisibleChannelTest::agcReadShowsAndTells()
{
    QFETCH(const QList<int>, read);
    QFETCH(const QList<int>, shown);
    TestWindow test;
    beOnVisiblePage(test);
    test.simulator.set("blendUnit.visibleAgc.target", read[0]);
    test.simulator.set("blendUnit.visibleAgc.threshold", read[1]);
    test.simulator.set("blendUnit.visibleAgc.filterCoefficient", read[2]);

    test.invoke("readVisibleAgc");

    QCOMPARE(test.takeCalls(),
             QStringList{QString{"getVisibleAgc() -> true {target=%1, threshold=%2, filterCoefficient=%3}"}
                             .arg(read[0])
                             .arg(read[1])
                             .arg(read[2])});
    const QStringList log{QString{"Visible AGC target = %1"}.arg(read[0]),
                          QString{"Visible AGC threshold = %1"}.arg(read[1]),
                          QString{"Visible AGC filter coefficient = %1"}.arg(read[2])};
    QCOMPARE(test.takeLog(), log);
    QCOMPARE(valuesOf(test, agcBoxes), shown);
    QVERIFY(test.lastCommandOk());
}

void VisibleChannelTest::refusedAgcReadLeavesTheBoxes()
{
    TestWindow test{fillBlendUnit};
    beOnVisiblePage(test);
    test.simulator.addFault({"getVisibleAgc", 1, 0, std::vector<Value>{false, 1, 2, 3}});

    test.invoke("readVisibleAgc");

    QCOMPARE(test.takeCalls(),
             QStringList{"getVisibleAgc() -> false {target=1, threshold=2, filterCoefficient=3}"});
    QCOMPARE(test.takeLog(), QStringList{"Could not get visible AGC configuration"});
    const QList<int> before{42, 11, 22};
    QCOMPARE(valuesOf(test, agcBoxes), before);
    QVERIFY(!test.lastCommandOk());
}

void VisibleChannelTest::clheReadShowsAndTells_data()
{
    QTest::addColumn<qint64>("threshold");
    QTest::addColumn<int>("coefficient");
    QTest::addColumn<QList<int>>("shown");

    const auto row = [](const char *name, qint64 threshold, int coefficient, const QList<int> &shown) {
        QTest::newRow(name) << threshold << coefficient << shown;
    };
    row("in range", 1234, 33, {1234, 33});
    row("lowest", 0, 0, {0, 0});
    row("highest", 65535, 100, {65535, 100});
    row("just beyond the boxes", 65536, 101, {65535, 100});
    row("beyond a signed number", 2147483648, 128, {65535, 100});
    row("all ones", 4294967295, 255, {65535, 100});
}

void VisibleChannelTest::clheReadShowsAndTells()
{
    QFETCH(const qint64, threshold);
    QFETCH(const int, coefficient);
    QFETCH(const QList<int>, shown);
    TestWindow test;
    beOnVisiblePage(test);
    test.simulator.set("blendUnit.visibleClhe.threshold", std::int64_t{threshold});
    test.simulator.set("blendUnit.visibleClhe.filterCoefficient", coefficient);

    test.invoke("readVisibleClhe");

    QCOMPARE(test.takeCalls(),
             QStringList{
                 QString{"getVisibleClhe() -> true {threshold=%1, filterCoefficient=%2}"}.arg(threshold).arg(
                     coefficient)});
    const QStringList log{QString{"Visible CLHE threshold = %1"}.arg(threshold),
                          QString{"Visible filter coefficient = %1"}.arg(coefficient)};
    QCOMPARE(test.takeLog(), log);
    QCOMPARE(valuesOf(test, clheBoxes), shown);
    QVERIFY(test.lastCommandOk());
}

void VisibleChannelTest::refusedClheReadLeavesTheBoxes()
{
    TestWindow test{fillBlendUnit};
    beOnVisiblePage(test);
    test.simulator.addFault({"getVisibleClhe", 1, 0, std::vector<Value>{false, 1, 2}});

    test.invoke("readVisibleClhe");

    QCOMPARE(test.takeCalls(), QStringList{"getVisibleClhe() -> false {threshold=1, filterCoefficient=2}"});
    QCOMPARE(test.takeLog(), QStringList{"Could not get visible CLHE configuration"});
    const QList<int> before{1234, 33};
    QCOMPARE(valuesOf(test, clheBoxes), before);
    QVERIFY(!test.lastCommandOk());
}

void VisibleChannelTest::finishedEditIsSentOnce()
{
    QFETCH(const QString, box);
    QFETCH(const QString, text);
    QFETCH(const int, key);
    QFETCH(const QString, call);
    QFETCH(const QString, group);
    TestWindow test{fillBlendUnit};
    beOnVisiblePage(test);

    QTest::keyClick(&type(test, box, text), static_cast<Qt::Key>(key));

    QCOMPARE(test.takeCalls(), QStringList{call + " -> true"});
    QCOMPARE(test.takeLog(), QStringList{"Visible " + group + " configuration applied correctly"});
    QVERIFY(test.lastCommandOk());
}

void VisibleChannelTest::refusedEditIsReported()
{
    QFETCH(const QString, box);
    QFETCH(const QString, text);
    QFETCH(const int, key);
    QFETCH(const QString, call);
    QFETCH(const QString, group);
    TestWindow test{fillBlendUnit};
    beOnVisiblePage(test);
    test.simulator.addFault({"setVisibleAgc"});
    test.simulator.addFault({"setVisibleClhe"});

    QTest::keyClick(&type(test, box, text), static_cast<Qt::Key>(key));

    QCOMPARE(test.takeCalls(), QStringList{call + " -> false"});
    QCOMPARE(test.takeLog(), QStringList{"Could not changed visisble " + group + " configuration"});
    QCOMPARE(test.child<QSpinBox>(box).value(), text.toInt());
    QVERIFY(!test.lastCommandOk());
}

void VisibleChannelTest::unfinishedEditSendsNothing_data()
{
    QTest::addColumn<QString>("box");

    for (const char *const box :
         {"VisAgcTargetSB", "VisAgcTHSB", "VisAgcCoeffSB", "VisClheTHSB", "VisClheCoeffSB"}) {
        QTest::newRow(box) << QString{box};
    }
}

void VisibleChannelTest::unfinishedEditSendsNothing()
{
    QFETCH(const QString, box);
    TestWindow test{fillBlendUnit};
    beOnVisiblePage(test);

    type(test, box, "55");

    QCOMPARE(test.takeCalls(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
}

void VisibleChannelTest::steppingSendsOnLeaving()
{
    TestWindow test{fillBlendUnit};
    beOnVisiblePage(test);
    auto &box = test.child<QSpinBox>("VisClheTHSB");
    box.setFocus();

    QTest::keyClick(&box, Qt::Key_Up);
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(test.takeCalls(), QStringList{});

    QTest::keyClick(&box, Qt::Key_Tab);
    QCOMPARE(test.takeCalls(), QStringList{"setVisibleClhe(1434, 33) -> true"});
}

void VisibleChannelTest::editFinishedTwiceSendsTheSameValue()
{
    TestWindow test{fillBlendUnit};
    beOnVisiblePage(test);

    QSpinBox &box{type(test, "VisAgcTHSB", "77")};
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(test.takeCalls(), QStringList{"setVisibleAgc(42, 77, 22) -> true"});

    QTest::keyClick(&box, Qt::Key_Tab);
    for (const QString &call : test.takeCalls()) {
        QCOMPARE(call, QString{"setVisibleAgc(42, 77, 22) -> true"});
    }
}

void VisibleChannelTest::pendingEditIsSentBeforeTheDeviceIsClosed_data()
{
    QTest::addColumn<bool>("byName");
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("call");

    for (const bool byName : {false, true}) {
        const char *const how{byName ? "without a click" : "by the button"};
        QTest::addRow("AGC, disconnected %s", how) << byName << "VisAgcTargetSB"
                                                   << "setVisibleAgc(77, 11, 22) -> true";
        QTest::addRow("CLHE, disconnected %s", how) << byName << "VisClheCoeffSB"
                                                    << "setVisibleClhe(1234, 77) -> true";
    }
}

void VisibleChannelTest::pendingEditIsSentBeforeTheDeviceIsClosed()
{
    QFETCH(const bool, byName);
    QFETCH(const QString, box);
    QFETCH(const QString, call);
    TestWindow test{fillBlendUnit};
    beOnVisiblePage(test);
    type(test, box, "77");

    if (byName) {
        test.invoke("disconnectDevice");
    } else {
        test.click("disconnectDeviceButton");
    }

    QStringList calls{test.takeCalls()};
    QCOMPARE(calls.takeFirst(), call);
    QCOMPARE(calls.takeFirst(), QString{"closeDevice(device)"});
    QCOMPARE(calls.filter("setVisible"), QStringList{});
    QCOMPARE(test.simulator.callsWhileNotOpen(), std::size_t{0});
}

PILOTEL_TEST_CLASS(VisibleChannelTest)
#include "tst_visible_channel.moc"
