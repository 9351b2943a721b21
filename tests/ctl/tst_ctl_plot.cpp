// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The picture of the temperatures that were watched, and the program that draws it.
#include "ctlrun.h"
#include "failure.h"
#include "plot.h"
#include "testclass.h"

#include <QByteArray>
#include <QColor>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QObject>
#include <QPoint>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstdint>
#include <optional>
#include <sys/types.h>
#include <vector>

class CtlPlotTest : public QObject
{
    Q_OBJECT

private slots:
    void drawsWhatWasWatched();
    void drawsAPictureThatCanBeRead();
    void leavesAGapWhereAnAnswerIsMissing();
    void leavesAGapWhereAUnitIsSilent();
    void drawsASingleReadingAsADot();
    void drawsALevelCurve();
    void failsWhereItsOutputIsFull();
    void failsWithoutInputOrOutput_data();
    void failsWithoutInputOrOutput();
    void namesACurveWithoutAnAnswer();
    void drawsTheSameWhateverTheDesktopSays_data();
    void drawsTheSameWhateverTheDesktopSays();
    void drawsNothingOfWhatIsNoReadings_data();
    void drawsNothingOfWhatIsNoReadings();
    void keepsTheWholeTimeOfManyReadings();
    void writesNothingWithoutReadings();
    void saysBeforehandThatTheFileCannotBeWritten_data();
    void saysBeforehandThatTheFileCannotBeWritten();
    void leavesTheOldPictureWhenNothingIsDrawn_data();
    void leavesTheOldPictureWhenNothingIsDrawn();
    void writesIntoADevice();
    void saysThatTheDeviceIsFull();
    void drawsWhatWasSeenUntilCtrlC_data();
    void drawsWhatWasSeenUntilCtrlC();
    void drawsWhatWasSeenUntilTheCableWasPulled();
    void tellsThatNothingIsDrawnBehindWhyItEnded();
};

namespace
{

const QVector<QColor> colours{QColor{0x00, 0x72, 0xb2}, QColor{0x56, 0xb4, 0xe9}, QColor{0xd5, 0x5e, 0x00},
                              QColor{0xe6, 0x9f, 0x00}};
/// Where nothing but curves, axes and grid is, from the left axis to the right.
const QRect curvesOnly{80, 50, 1090, 510};
const QStringList plot{"watch", "temperatures", "--every", "10ms", "--plot", "curves.png"};

bool isLike(QRgb one, const QColor &other)
{
    constexpr int near{40};
    return std::abs(qRed(one) - other.red()) < near && std::abs(qGreen(one) - other.green()) < near &&
           std::abs(qBlue(one) - other.blue()) < near;
}

/// Where a colour is in a part of a picture.
QVector<QPoint> placesOf(const QImage &picture, const QColor &colour, const QRect &where)
{
    QVector<QPoint> places;
    for (int y{where.top()}; y <= where.bottom(); ++y) {
        for (int x{where.left()}; x <= where.right(); ++x) {
            if (isLike(picture.pixel(x, y), colour)) {
                places.append({x, y});
            }
        }
    }
    return places;
}

/// The rectangle around places.
QRect around(const QVector<QPoint> &places)
{
    QRect all;
    for (const QPoint &place : places) {
        all |= QRect{place, QSize{1, 1}};
    }
    return all;
}

/// What of a picture is not white.
QRect inked(const QImage &picture, const QRect &where)
{
    QVector<QPoint> places;
    for (int y{where.top()}; y <= where.bottom(); ++y) {
        for (int x{where.left()}; x <= where.right(); ++x) {
            if (picture.pixel(x, y) != qRgb(255, 255, 255)) {
                places.append({x, y});
            }
        }
    }
    return around(places);
}

struct Drawn
{
    int status;
    QByteArray picture;
    QString errors;
};

/// What the drawing program makes of a text.
Drawn draw(const QByteArray &json, const QProcessEnvironment &environment = programEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(CURVES, QStringList{});
    process.write(json);
    process.closeWriteChannel();
    const bool ended{process.waitForFinished() && process.exitStatus() == QProcess::NormalExit};
    return {ended ? process.exitCode() : -1, process.readAllStandardOutput(),
            QString::fromUtf8(process.readAllStandardError())};
}

/// Four curves at 11 times, one a second.
QByteArray fourCurves(const QByteArray &first = "[20,20,20,20,20,20,20,20,20,20,20]")
{
    return R"({"title": "Temperatures", "quantity": "Degrees C", "times": [0,1000,2000,3000,4000,5000,6000,
               7000,8000,9000,10000], "curves": [{"name": "a", "values": )" +
           first +
           R"(}, {"name": "b", "values": [30,30,30,30,30,30,30,30,30,30,30]},
                  {"name": "c", "values": [40,40,40,40,40,40,40,40,40,40,40]},
                  {"name": "d", "values": [50,50,50,50,50,50,50,50,50,50,50]}]})";
}

QImage picture(const QByteArray &png)
{
    return QImage::fromData(png, "PNG");
}

/// A copy of the program in the folder, which finds the drawing program only there.
QString programAlone(CtlFolder &folder)
{
    const QString copy{folder.path("pilotel-ctl")};
    folder.environment.insert("LD_LIBRARY_PATH", DEVICE_LIBRARY_FOLDER);
    return QFile::copy(CTL, copy) ? copy : "nothing";
}

} // namespace

void CtlPlotTest::drawsWhatWasWatched()
{
    CtlFolder folder;
    const Outcome outcome{folder.run(plot + QStringList{"--count", "5"})};
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.output.count('\n'), 6);
    const QImage image{picture(folder.read("curves.png"))};
    QCOMPARE(image.size(), QSize(1200, 675));
    QVector<int> heights;
    for (const QColor &colour : colours) {
        const QRect curve{around(placesOf(image, colour, curvesOnly))};
        QVERIFY2(curve.width() > 900 && curve.height() <= 3, qPrintable(colour.name()));
        heights.append(curve.center().y());
    }
    // 27.8, 48.4, 23.5 and 41.1 degrees on one scale.
    const double pixelsOfDegree{(heights[2] - heights[1]) / (48.4 - 23.5)};
    QVERIFY(pixelsOfDegree > 10);
    QVERIFY(std::abs(heights[2] - heights[0] - (27.8 - 23.5) * pixelsOfDegree) <= 2);
    QVERIFY(std::abs(heights[2] - heights[3] - (41.1 - 23.5) * pixelsOfDegree) <= 2);
}

void CtlPlotTest::drawsAPictureThatCanBeRead()
{
    const Drawn drawn{draw(fourCurves())};
    QCOMPARE(drawn.status, 0);
    const QImage image{picture(drawn.picture)};
    // Nothing touches an edge, so that nothing is cut off.
    constexpr int margin{8};
    const QRect page{image.rect()};
    QVERIFY(page.adjusted(margin, margin, -margin, -margin).contains(inked(image, page)));
    // Title, the values of the left axis, the times and the names of the curves.
    const QRect title{inked(image, {0, 0, 1200, 40})};
    QVERIFY(title.width() > 80 && title.height() >= 12);
    QVERIFY(inked(image, {30, 50, 25, 500}).height() > 400);
    QVERIFY(inked(image, {0, 200, 30, 200}).height() > 60);
    QVERIFY(inked(image, {0, 580, 1200, 35}).width() > 900);
    const QRect legend{0, 640, 1200, 35};
    for (const QColor &colour : colours) {
        QVERIFY2(placesOf(image, colour, legend).size() >= 20, qPrintable(colour.name()));
    }
}

void CtlPlotTest::leavesAGapWhereAnAnswerIsMissing()
{
    const QImage image{picture(draw(fourCurves("[20,20,20,null,null,null,null,null,20,20,20]")).picture)};
    const QRect left{curvesOnly.left(), curvesOnly.top(), 200, curvesOnly.height()};
    const QRect middle{curvesOnly.center().x() - 250, curvesOnly.top(), 500, curvesOnly.height()};
    QCOMPARE(placesOf(image, colours[0], middle), QVector<QPoint>{});
    QVERIFY(around(placesOf(image, colours[0], left)).width() > 190);
    QVERIFY(around(placesOf(image, colours[1], middle)).width() > 490);
    // One name in the legend for both parts.
    QVERIFY(around(placesOf(image, colours[0], {0, 640, 1200, 35})).width() <= 26);
}

void CtlPlotTest::leavesAGapWhereAUnitIsSilent()
{
    CtlFolder folder;
    folder.play("[[fault]]\noperation = \"getTemperatures\"\nonCall = 3\neffect = \"refuse\"\n");
    const Outcome outcome{folder.run(plot + QStringList{"--count", "3"})};
    QCOMPARE(outcome.status, 1);
    const QImage image{picture(folder.read("curves.png"))};
    const QRect middle{curvesOnly.center().x() - 100, curvesOnly.top(), 200, curvesOnly.height()};
    QCOMPARE(placesOf(image, colours[0], middle), QVector<QPoint>{});
    QVERIFY(around(placesOf(image, colours[2], middle)).width() > 190);
}

void CtlPlotTest::drawsASingleReadingAsADot()
{
    const Drawn drawn{draw(
        R"({"times": [86400000], "curves": [{"name": "a", "values": [20]}, {"name": "b", "values": [30]}]})")};
    QCOMPARE(drawn.status, 0);
    const QRect dot{around(placesOf(picture(drawn.picture), colours[0], curvesOnly))};
    QVERIFY(dot.width() >= 4 && dot.width() <= 8 && dot.height() >= 4 && dot.height() <= 8);
    QVERIFY(std::abs(dot.center().x() - curvesOnly.center().x()) < 20);
}

void CtlPlotTest::drawsALevelCurve()
{
    const Drawn drawn{draw(R"({"times": [0, 1000], "curves": [{"name": "a", "values": [20, 20]}]})")};
    QCOMPARE(drawn.status, 0);
    const QRect curve{around(placesOf(picture(drawn.picture), colours[0], curvesOnly))};
    QVERIFY(curve.width() > 900 && curve.height() <= 3);
}

void CtlPlotTest::failsWhereItsOutputIsFull()
{
    QProcess process;
    process.setProcessEnvironment(programEnvironment());
    process.setStandardOutputFile("/dev/full");
    process.start(CURVES, QStringList{});
    process.write(fourCurves());
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
}

void CtlPlotTest::failsWithoutInputOrOutput_data()
{
    QTest::addColumn<QString>("closed");
    QTest::addColumn<int>("status");
    QTest::newRow("input") << "<&-" << 2;
    QTest::newRow("output") << "<readings >&-" << 1;
    QTest::newRow("both") << "<&- >&-" << 2;
}

void CtlPlotTest::failsWithoutInputOrOutput()
{
    QFETCH(const QString, closed);
    QFETCH(const int, status);
    const CtlFolder folder;
    folder.write("readings", fourCurves());
    const Outcome outcome{
        run("bash", {"-c", "\"$0\" " + closed, CURVES}, programEnvironment(), folder.path("."))};
    QVERIFY(outcome.exited);
    QCOMPARE(outcome.status, status);
    QCOMPARE(outcome.output, QString{});
    QCOMPARE(outcome.errors.contains("standard input has no readings to draw"), status == 2);
}

void CtlPlotTest::namesACurveWithoutAnAnswer()
{
    const QRect legend{0, 640, 1200, 35};
    const QImage answered{picture(draw(fourCurves()).picture)};
    const QImage unanswered{
        picture(draw(fourCurves("[null,null,null,null,null,null,null,null,null,null,null]")).picture)};
    QCOMPARE(placesOf(unanswered, colours[0], curvesOnly), QVector<QPoint>{});
    QVERIFY(placesOf(unanswered, colours[0], legend).size() >= 20);
    // Its name says so.
    QVERIFY(inked(unanswered, legend).width() > inked(answered, legend).width() + 50);
}

void CtlPlotTest::drawsTheSameWhateverTheDesktopSays_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *variable, const char *value) {
        QTest::addRow("%s=%s", variable, value) << QString{variable} << QString{value};
    };
    row("QT_SCALE_FACTOR", "2");
    row("QT_FONT_DPI", "192");
    row("QT_STYLE_OVERRIDE", "windows");
    row("QT_QPA_PLATFORM", "xcb");
    row("DISPLAY", ":4711");
    row("TZ", "America/New_York");
    row("LC_ALL", "de_DE.UTF-8");
    row("LC_ALL", "C");
}

void CtlPlotTest::drawsTheSameWhateverTheDesktopSays()
{
    QFETCH(const QString, variable);
    QFETCH(const QString, value);
    const QByteArray thousands{fourCurves("[20000,20,20,20,20,20,20,20,20,20,20]")};
    QProcessEnvironment environment{programEnvironment()};
    environment.insert(variable, value);
    const Drawn drawn{draw(thousands, environment)};
    QCOMPARE(drawn.status, 0);
    QVERIFY(!drawn.picture.isEmpty());
    QCOMPARE(drawn.picture, draw(thousands).picture);
}

void CtlPlotTest::drawsNothingOfWhatIsNoReadings_data()
{
    QTest::addColumn<QByteArray>("json");
    const auto row = [](const char *json) {
        QTest::addRow("%s", json) << QByteArray{json};
    };
    row("");
    row("curves");
    row("[]");
    row("{}");
    row(R"({"times": []})");
    row(R"({"times": [1, 2], "curves": [{"name": "a", "values": [1]}]})");
    row(R"({"times": [1], "curves": [{"name": "a", "values": [1, 2]}]})");
    row(R"({"times": [1], "curves": [1]})");
}

void CtlPlotTest::drawsNothingOfWhatIsNoReadings()
{
    QFETCH(const QByteArray, json);
    const Drawn drawn{draw(json)};
    QCOMPARE(drawn.status, 2);
    QCOMPARE(drawn.picture, QByteArray{});
    QVERIFY2(drawn.errors.contains("pilotel-curves: standard input has no readings to draw"),
             qPrintable(drawn.errors));
}

void CtlPlotTest::keepsTheWholeTimeOfManyReadings()
{
    CtlFolder folder;
    const QString file{folder.path("many.png")};
    ctl::Plot many{file.toStdString()};
    constexpr int count{100'000};
    for (int place{0}; place < count; ++place) {
        many.add(std::int64_t{place} * 10, {place < count / 2 ? 20.0 : 40.0, std::nullopt});
    }
    many.write("Many", "Temperature", {"a", "b"});
    const QImage image{picture(folder.read("many.png"))};
    const QRect left{curvesOnly.left(), curvesOnly.top(), 500, curvesOnly.height()};
    const QRect right{left.translated(580, 0)};
    const QRect low{around(placesOf(image, colours[0], left))};
    const QRect high{around(placesOf(image, colours[0], right))};
    QVERIFY(low.width() > 490 && low.height() <= 3);
    QVERIFY(high.width() > 480 && high.height() <= 3);
    QVERIFY(high.top() < low.top() - 200);
}

void CtlPlotTest::writesNothingWithoutReadings()
{
    CtlFolder folder;
    ctl::Plot none{folder.path("none.png").toStdString()};
    none.write("None", "Temperature", {"a"});
    QVERIFY(!folder.has("none.png"));
}

void CtlPlotTest::saysBeforehandThatTheFileCannotBeWritten_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("error");
    QTest::newRow("no folder") << "nowhere/curves.png"
                               << "nowhere/curves.png: No such file or directory";
    QTest::newRow("a folder") << "."
                              << ".: Filename refers to a directory";
    QTest::newRow("no name") << ""
                             << "--plot: a file has a name\npilotel-ctl: Try \"pilotel-ctl --help\".";
    QTest::newRow("control characters") << "\x1b[31m/x"
                                        << R"(\x1b[31m/x: No such file or directory)";
}

void CtlPlotTest::saysBeforehandThatTheFileCannotBeWritten()
{
    QFETCH(const QString, file);
    QFETCH(const QString, error);
    CtlFolder folder;
    const Outcome outcome{folder.run({"watch", "temperatures", "--plot", file})};
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: " + error}));
    QCOMPARE(outcome.status, 2);
    QCOMPARE(outcome.output, QString{});
    QCOMPARE(folder.calls().filter("openDevice"), QStringList{});
}

void CtlPlotTest::leavesTheOldPictureWhenNothingIsDrawn_data()
{
    QTest::addColumn<QByteArray>("drawing");
    QTest::newRow("it fails") << QByteArray{"#!/bin/sh\necho rubbish\nexit 1\n"};
    QTest::newRow("it crashes") << QByteArray{"#!/bin/sh\necho rubbish\nkill -9 $$\n"};
    QTest::newRow("it does not start") << QByteArray{"#!/no/such/program\n"};
}

void CtlPlotTest::leavesTheOldPictureWhenNothingIsDrawn()
{
    QFETCH(const QByteArray, drawing);
    CtlFolder folder;
    const QString program{programAlone(folder)};
    folder.write("pilotel-curves", drawing);
    QVERIFY(QFile::setPermissions(folder.path("pilotel-curves"), QFile::ReadOwner | QFile::ExeOwner));
    folder.write("curves.png", "old");
    const Outcome outcome{
        run(program, plot + QStringList{"--count", "2"}, folder.environment, folder.path("."))};
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: curves.png: the curves could not be drawn"}));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.output.count('\n'), 3);
    QCOMPARE(folder.read("curves.png"), QByteArray{"old"});
}

void CtlPlotTest::writesIntoADevice()
{
    CtlFolder folder;
    const Outcome outcome{folder.run({"watch", "temperatures", "--count", "1", "--plot", "/dev/null"})};
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.status, 0);
    // It is no file now.
    QVERIFY(!QFileInfo{"/dev/null"}.isFile());
}

void CtlPlotTest::saysThatTheDeviceIsFull()
{
    CtlFolder folder;
    const Outcome outcome{folder.run({"watch", "temperatures", "--count", "1", "--plot", "/dev/full"})};
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: /dev/full: No space left on device"}));
    QCOMPARE(outcome.status, 1);
}

void CtlPlotTest::drawsWhatWasSeenUntilCtrlC_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::newRow("Ctrl-C") << SIGINT << QStringList{} << 0;
    QTest::newRow("Ctrl-C before the last") << SIGINT << QStringList{"--count", "1000000"} << 1;
    QTest::newRow("SIGTERM") << SIGTERM << QStringList{} << 0;
}

void CtlPlotTest::drawsWhatWasSeenUntilCtrlC()
{
    QFETCH(const int, signal);
    QFETCH(const QStringList, arguments);
    QFETCH(const int, status);
    CtlFolder folder;
    QProcess process;
    process.setProcessEnvironment(folder.environment);
    process.setWorkingDirectory(folder.path("."));
    process.start(CTL, plot + arguments);
    QByteArray output;
    QTRY_VERIFY_WITH_TIMEOUT((output += process.readAllStandardOutput()).count('\n') > 5, 30000);
    QVERIFY(!folder.has("curves.png"));
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), signal), 0);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), status);
    const QImage image{picture(folder.read("curves.png"))};
    for (const QColor &colour : colours) {
        QVERIFY2(around(placesOf(image, colour, curvesOnly)).width() > 900, qPrintable(colour.name()));
    }
}

void CtlPlotTest::drawsWhatWasSeenUntilTheCableWasPulled()
{
    CtlFolder folder;
    folder.play("[[fault]]\noperation = \"getTemperatures\"\nonCall = 7\neffect = \"cableOut\"\n");
    const Outcome outcome{folder.run(plot)};
    QCOMPARE(outcome.errors,
             lines({"pilotel-ctl: No answer from the Blend Unit: look at its power and its cable."}));
    QCOMPARE(outcome.status, 3);
    QVERIFY(!placesOf(picture(folder.read("curves.png")), colours[0], curvesOnly).isEmpty());
}

void CtlPlotTest::tellsThatNothingIsDrawnBehindWhyItEnded()
{
    CtlFolder folder;
    const QString program{programAlone(folder)};
    folder.write("pilotel-curves", "#!/bin/sh\nexit 1\n");
    QVERIFY(QFile::setPermissions(folder.path("pilotel-curves"), QFile::ReadOwner | QFile::ExeOwner));
    folder.play("[[fault]]\noperation = \"getTemperatures\"\nonCall = 7\neffect = \"cableOut\"\n");
    const Outcome outcome{run(program, plot, folder.environment, folder.path("."))};
    QCOMPARE(outcome.errors,
             lines({"pilotel-ctl: No answer from the Blend Unit: look at its power and its cable.",
                    "pilotel-ctl: curves.png: the curves could not be drawn"}));
    QCOMPARE(outcome.status, 3);
}

PILOTEL_TEST_CLASS(CtlPlotTest)
#include "tst_ctl_plot.moc"
