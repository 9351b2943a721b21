// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of the declaration of bad pixels: single ones, whole lines and whole columns.
#include "camerapage.h"
#include "owndirectory.h"
#include "testclass.h"

#include <QDialog>
#include <QObject>
#include <QSpinBox>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVector>
#include <QWidget>

#include <array>
#include <cstddef>
#include <functional>
#include <optional>

namespace
{

struct Declaration
{
    const char *button;
    const char *handler;
    const char *operation;
    const char *success;
    const char *failure;
    int pixels;
};

// The texts stand around the column and the line.
constexpr const char *added{"Pixel X:%1 Y: %2 correctly added."};
constexpr const char *notAdded{"Unable to add pixel X:%1 Y: %2."};
constexpr const char *removed{"Pixel X:%1 Y: %2 correctly removed."};
constexpr const char *notRemoved{"Unable to remove pixel X:%1 Y: %2."};

constexpr std::array<Declaration, 6> declarations{{
    {"addBadPixelButton", "addBadPixelClicked", "addBadPixel", added, notAdded, 1},
    {"addBadPixelLineButton", "addBadPixelLineClicked", "addBadPixel", added, notAdded, 640},
    {"addBadPixelColumnButton", "addBadPixelColumnClicked", "addBadPixel", added, notAdded, 480},
    {"removeBadPixelButton", "removeBadPixelClicked", "removeBadPixel", removed, notRemoved, 1},
    {"removeBadPixelLineButton", "removeBadPixelLineClicked", "removeBadPixel", removed, notRemoved, 640},
    {"removeBadPixelColumnButton", "removeBadPixelColumnClicked", "removeBadPixel", removed, notRemoved, 480},
}};

void addDeclarations()
{
    QTest::addColumn<std::size_t>("place");
    for (std::size_t place{0}; place < declarations.size(); ++place) {
        QTest::newRow(declarations.at(place).button) << place;
    }
}

struct Pixel
{
    int column;
    int row;
};

/// The pixels that a button declares while these coordinates are chosen, in their order.
QVector<Pixel> pixelsOf(const Declaration &declaration, const Pixel &chosen)
{
    QVector<Pixel> pixels;
    for (int running{0}; running < declaration.pixels; ++running) {
        pixels.append({declaration.pixels == 640 ? running : chosen.column,
                       declaration.pixels == 480 ? running : chosen.row});
    }
    return pixels;
}

/// The calls and the lines of a declaration; the pixels at the given places are refused.
struct Expectation
{
    QStringList calls;
    QStringList lines;
};

Expectation expected(
    const Declaration &declaration, const Pixel &chosen,
    const std::function<bool(int)> &refused = [](int) { return false; })
{
    Expectation expectation;
    int place{0};
    for (const Pixel &pixel : pixelsOf(declaration, chosen)) {
        const bool accepted{!refused(place++)};
        expectation.calls.append(QStringLiteral("%1(%2, %3) -> %4")
                                     .arg(declaration.operation, QString::number(pixel.column),
                                          QString::number(pixel.row), accepted ? "true" : "false"));
        const QString line{
            QString{accepted ? declaration.success : declaration.failure}.arg(pixel.column).arg(pixel.row)};
        expectation.lines.append(line);
    }
    return expectation;
}

void choose(TestWindow &test, const Pixel &pixel)
{
    test.child<QSpinBox>("xBadPixelCoordinate").setValue(pixel.column);
    test.child<QSpinBox>("yBadPixelCoordinate").setValue(pixel.row);
}

} // namespace

class BadPixelsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { directory.emplace(); }
    void cleanup() { directory.reset(); }
    void theTextsOfOnePixel_data();
    void theTextsOfOnePixel();
    void everyPixelIsSentAndTold_data();
    void everyPixelIsSentAndTold();
    void everyCallIsFollowedByItsLine_data() { addDeclarations(); }
    void everyCallIsFollowedByItsLine();
    void refusedPixelsAreToldAndTheOthersSent_data();
    void refusedPixelsAreToldAndTheOthersSent();
    void coordinatesEndAtTheSensor();
    void theLastResultIsLeft_data() { addDeclarations(); }
    void theLastResultIsLeft();
    void withoutADeviceOnlyTheBoxIsShown_data() { addDeclarations(); }
    void withoutADeviceOnlyTheBoxIsShown();

private:
    std::optional<OwnDirectory> directory;
};

void BadPixelsTest::theTextsOfOnePixel_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("line");
    QTest::newRow("added") << "addBadPixelButton" << true << "addBadPixel(12, 34) -> true"
                           << "Pixel X:12 Y: 34 correctly added.";
    QTest::newRow("not added") << "addBadPixelButton" << false << "addBadPixel(12, 34) -> false"
                               << "Unable to add pixel X:12 Y: 34.";
    QTest::newRow("removed") << "removeBadPixelButton" << true << "removeBadPixel(12, 34) -> true"
                             << "Pixel X:12 Y: 34 correctly removed.";
    QTest::newRow("not removed") << "removeBadPixelButton" << false << "removeBadPixel(12, 34) -> false"
                                 << "Unable to remove pixel X:12 Y: 34.";
}

void BadPixelsTest::theTextsOfOnePixel()
{
    QFETCH(const QString, button);
    QFETCH(const bool, accepted);
    QFETCH(const QString, call);
    QFETCH(const QString, line);
    TestWindow test;
    openCameraPage(test, "LutSection");
    choose(test, {12, 34});
    if (!accepted) {
        test.simulator.addFault({call.section('(', 0, 0).toStdString()});
    }

    clickHidden(test, button);
    QCOMPARE(test.takeCallsAndRecords(), (QStringList{call, "log(2, \"" + line + "\")"}));
    QCOMPARE(test.takeLog(), QStringList{line});
}

void BadPixelsTest::everyPixelIsSentAndTold_data()
{
    QTest::addColumn<std::size_t>("place");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("firstCall");
    QTest::addColumn<QString>("lastCall");
    const auto row = [](std::size_t place, int column, int line, const char *firstCall,
                        const char *lastCall) {
        QTest::addRow("%s: %s to %s", declarations.at(place).button, firstCall, lastCall)
            << place << column << line << firstCall << lastCall;
    };
    row(0, 0, 0, "addBadPixel(0, 0) -> true", "addBadPixel(0, 0) -> true");
    row(0, 639, 479, "addBadPixel(639, 479) -> true", "addBadPixel(639, 479) -> true");
    row(1, 77, 0, "addBadPixel(0, 0) -> true", "addBadPixel(639, 0) -> true");
    row(1, 77, 479, "addBadPixel(0, 479) -> true", "addBadPixel(639, 479) -> true");
    row(2, 0, 88, "addBadPixel(0, 0) -> true", "addBadPixel(0, 479) -> true");
    row(2, 639, 88, "addBadPixel(639, 0) -> true", "addBadPixel(639, 479) -> true");
    row(3, 0, 0, "removeBadPixel(0, 0) -> true", "removeBadPixel(0, 0) -> true");
    row(3, 639, 479, "removeBadPixel(639, 479) -> true", "removeBadPixel(639, 479) -> true");
    row(4, 77, 0, "removeBadPixel(0, 0) -> true", "removeBadPixel(639, 0) -> true");
    row(4, 77, 479, "removeBadPixel(0, 479) -> true", "removeBadPixel(639, 479) -> true");
    row(5, 0, 88, "removeBadPixel(0, 0) -> true", "removeBadPixel(0, 479) -> true");
    row(5, 639, 88, "removeBadPixel(639, 0) -> true", "removeBadPixel(639, 479) -> true");
}

void BadPixelsTest::everyPixelIsSentAndTold()
{
    QFETCH(const std::size_t, place);
    QFETCH(const int, column);
    QFETCH(const int, row);
    QFETCH(const QString, firstCall);
    QFETCH(const QString, lastCall);
    const Expectation expectation{expected(declarations.at(place), {column, row})};
    TestWindow test;
    openCameraPage(test, "LutSection");
    choose(test, {column, row});

    clickHidden(test, declarations.at(place).button);
    const QStringList calls{test.takeCalls()};
    QCOMPARE(calls, expectation.calls);
    QCOMPARE(calls.size(), declarations.at(place).pixels);
    QCOMPARE(calls.first(), firstCall);
    QCOMPARE(calls.last(), lastCall);
    QCOMPARE(test.takeLog(), expectation.lines);
}

void BadPixelsTest::everyCallIsFollowedByItsLine()
{
    QFETCH(const std::size_t, place);
    const Expectation expectation{expected(declarations.at(place), {12, 34})};
    TestWindow test;
    openCameraPage(test, "LutSection");
    choose(test, {12, 34});

    clickHidden(test, declarations.at(place).button);
    QStringList journal;
    for (int pixel{0}; pixel < expectation.calls.size(); ++pixel) {
        journal.append(expectation.calls.at(pixel));
        journal.append("log(2, \"" + expectation.lines.at(pixel) + "\")");
    }
    QCOMPARE(test.takeCallsAndRecords(), journal);
}

void BadPixelsTest::refusedPixelsAreToldAndTheOthersSent_data()
{
    QTest::addColumn<std::size_t>("place");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("times");
    for (std::size_t place{0}; place < declarations.size(); ++place) {
        const Declaration &declaration{declarations.at(place)};
        QTest::addRow("%s, all refused", declaration.button) << place << 1 << declaration.pixels;
        if (declaration.pixels > 1) {
            QTest::addRow("%s, first refused", declaration.button) << place << 1 << 1;
            QTest::addRow("%s, one in the middle refused", declaration.button) << place << 240 << 1;
            QTest::addRow("%s, last refused", declaration.button) << place << declaration.pixels << 1;
        }
    }
}

void BadPixelsTest::refusedPixelsAreToldAndTheOthersSent()
{
    QFETCH(const std::size_t, place);
    QFETCH(const int, from);
    QFETCH(const int, times);
    const Declaration &declaration{declarations.at(place)};
    const Expectation expectation{expected(declaration, {12, 34}, [from, times](int pixel) {
        return pixel + 1 >= from && pixel + 1 < from + times;
    })};
    TestWindow test;
    openCameraPage(test, "LutSection");
    choose(test, {12, 34});
    test.simulator.addFault(
        {declaration.operation, static_cast<std::size_t>(from), static_cast<std::size_t>(times)});

    clickHidden(test, declaration.button);
    QCOMPARE(test.takeCalls(), expectation.calls);
    QCOMPARE(test.takeLog(), expectation.lines);
}

void BadPixelsTest::coordinatesEndAtTheSensor()
{
    TestWindow test;
    openCameraPage(test, "LutSection");
    choose(test, {640, 480});
    clickHidden(test, "addBadPixelButton");
    choose(test, {-1, -1});
    clickHidden(test, "addBadPixelButton");
    QCOMPARE(test.takeCalls(), (QStringList{"addBadPixel(639, 479) -> true", "addBadPixel(0, 0) -> true"}));
}

void BadPixelsTest::theLastResultIsLeft()
{
    QFETCH(const std::size_t, place);
    const Declaration &declaration{declarations.at(place)};
    TestWindow test;
    openCameraPage(test, "LutSection");
    QVERIFY(test.lastCommandOk());
    test.simulator.addFault({declaration.operation});
    clickHidden(test, declaration.button);
    QVERIFY(test.lastCommandOk());
    test.simulator.clearFaults();

    test.simulator.addFault({"setGamma"});
    test.invoke("gammaUserSendCommand");
    test.takeCalls();
    clickHidden(test, declaration.button);
    QVERIFY(test.takeCalls().last().endsWith(" -> true"));
    QVERIFY(!test.lastCommandOk());
}

void BadPixelsTest::withoutADeviceOnlyTheBoxIsShown()
{
    QFETCH(const std::size_t, place);
    TestWindow test;
    for (const bool connectedBefore : {false, true}) {
        if (connectedBefore) {
            test.beConnected();
            test.click("disconnectDeviceButton");
        }
        test.simulator.clearJournal();
        const QWidget *parent{nullptr};
        test.boxes.expect([&](QDialog &box) {
            parent = box.parentWidget();
            BoxWatcher::pressOk(box);
        });
        test.invoke(declarations.at(place).handler);
        QVERIFY(parent == &test.window());
        QCOMPARE(
            test.boxes.takeShown(),
            QStringList{QStringLiteral(R"(window icon "Camera not connected" "Unable to connect to %1" [OK])")
                            .arg(connectedBefore ? "SIM1" : "")});
        QCOMPARE(test.takeCallsAndRecords(), QStringList{});
        QCOMPARE(test.takeLog(), QStringList{});
    }
}

PILOTEL_TEST_CLASS(BadPixelsTest)
#include "tst_bad_pixels.moc"
