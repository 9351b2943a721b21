// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The numbers of the check: how they are said, what is allowed, and the ranks of times.
#include "escaped.h"
#include "report.h"
#include "testclass.h"
#include "values.h"

#include <QByteArray>
#include <QMetaType>
#include <QObject>
#include <QString>
#include <QTest>

#include <chrono>
#include <cstddef>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

using device_settings::Allowed;
using device_settings::between;
using device_settings::oneOf;

Q_DECLARE_METATYPE(Allowed)

namespace
{

constexpr double notANumber{std::numeric_limits<double>::quiet_NaN()};
constexpr double infinity{std::numeric_limits<double>::infinity()};

} // namespace

class SdkCheckAnswersTest : public QObject
{
    Q_OBJECT

private slots:
    void saysNumbers_data();
    void saysNumbers();
    void allowsNumbers_data();
    void allowsNumbers();
    void escapesText_data();
    void escapesText();
    void ranksTimes_data();
    void ranksTimes();
    void shortensLongText();
    void failsOnlyByWhatFails();
};

void SdkCheckAnswersTest::saysNumbers_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("text");
    const auto row = [](double number, const char *text) {
        QTest::addRow("%s", text) << number << QString{text};
    };
    row(0, "0");
    row(100000, "100000");
    row(4294967295.0, "4294967295");
    row(-32768, "-32768");
    row(0.1, "0.1");
    row(296650.5, "296650.5");
    row(1e300, "1e+300");
    row(std::numeric_limits<double>::denorm_min(), "5e-324");
    row(-0.000015, "-0.000015");
    row(notANumber, "nan");
    row(infinity, "inf");
    row(-infinity, "-inf");
}

void SdkCheckAnswersTest::saysNumbers()
{
    QFETCH(const double, number);
    QFETCH(const QString, text);
    QCOMPARE(QString::fromStdString(device_settings::numberText(number)), text);
}

void SdkCheckAnswersTest::allowsNumbers_data()
{
    QTest::addColumn<Allowed>("allowed");
    QTest::addColumn<double>("number");
    QTest::addColumn<bool>("expected");
    QTest::newRow("below") << between(1, 3) << 0.999 << false;
    QTest::newRow("first") << between(1, 3) << 1.0 << true;
    QTest::newRow("last") << between(1, 3) << 3.0 << true;
    QTest::newRow("above") << between(1, 3) << 3.001 << false;
    QTest::newRow("nan") << between(1, 3) << notANumber << false;
    QTest::newRow("infinite") << between(-infinity, 3) << infinity << false;
    QTest::newRow("one of them") << oneOf({9, 25}) << 25.0 << true;
    QTest::newRow("between them") << oneOf({9, 25}) << 10.0 << false;
    QTest::newRow("nan among them") << oneOf({9, 25}) << notANumber << false;
    QTest::newRow("upside down") << between(3, 1) << 2.0 << false;
}

void SdkCheckAnswersTest::allowsNumbers()
{
    QFETCH(const Allowed, allowed);
    QFETCH(const double, number);
    QFETCH(const bool, expected);
    QCOMPARE(allows(allowed, number), expected);
}

void SdkCheckAnswersTest::escapesText_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("plain") << QByteArray{"COM3 ~"} << "COM3 ~";
    QTest::newRow("lines") << QByteArray{"a\nb\tc\rd"} << R"(a\nb\tc\rd)";
    QTest::newRow("colour") << QByteArray{"\x1b[31m"} << R"(\x1b[31m)";
    QTest::newRow("backslash") << QByteArray{R"(a\nb)"} << R"(a\\nb)";
    QTest::newRow("not ASCII") << QByteArray{"\xc3\xa9\x7f"} << R"(\xc3\xa9\x7f)";
}

void SdkCheckAnswersTest::escapesText()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, shown);
    QCOMPARE(QString::fromStdString(sdk_check::escaped(text.toStdString())), shown);
}

void SdkCheckAnswersTest::shortensLongText()
{
    const std::string shown{sdk_check::escaped(std::string(300, 'x'))};
    QCOMPARE(QString::fromStdString(shown), QString(200, 'x') + "...");
}

void SdkCheckAnswersTest::ranksTimes_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("percent");
    QTest::addColumn<qint64>("expected");
    QTest::newRow("median of one") << 1 << 50 << qint64{1};
    QTest::newRow("median of two") << 2 << 50 << qint64{1};
    QTest::newRow("median of three") << 3 << 50 << qint64{2};
    QTest::newRow("99 % of three") << 3 << 99 << qint64{3};
    QTest::newRow("99 % of a hundred") << 100 << 99 << qint64{99};
    QTest::newRow("worst of a hundred") << 100 << 100 << qint64{100};
    QTest::newRow("none of ten") << 10 << 0 << qint64{1};
}

void SdkCheckAnswersTest::ranksTimes()
{
    QFETCH(const int, count);
    QFETCH(const int, percent);
    QFETCH(const qint64, expected);
    std::vector<std::chrono::nanoseconds> times;
    for (int time{count}; time > 0; --time) {
        times.emplace_back(time);
    }
    QCOMPARE(qint64{sdk_check::percentile(times, static_cast<std::size_t>(percent)).count()}, expected);
}

void SdkCheckAnswersTest::failsOnlyByWhatFails()
{
    std::ostringstream lines;
    sdk_check::Report report{&lines};
    QVERIFY(report.allHold());
    report.add({sdk_check::Outcome::Holds, "getGamma", "camera", "65536"});
    report.add({sdk_check::Outcome::Skipped, "setGfid", "camera", "no other value"});
    QVERIFY(report.allHold());
    report.add({sdk_check::Outcome::Fails, "connect", "", "answers false"});
    QVERIFY(!report.allHold());
    QCOMPARE(QString::fromStdString(lines.str()), QString{"ok     getGamma (camera): 65536\n"
                                                          "skip   setGfid (camera): no other value\n"
                                                          "not ok connect: answers false\n"});
    sdk_check::Report interrupted{nullptr};
    interrupted.setInterrupted();
    QVERIFY(!interrupted.allHold());
}

PILOTEL_TEST_CLASS(SdkCheckAnswersTest)
#include "tst_sdk_check_answers.moc"
