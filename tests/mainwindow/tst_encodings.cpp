// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How numbers travel between the widgets and the device, and how they are told, at the edges too.
#include "encodings.h"
#include "logtext.h"
#include "notanumber.h"
#include "testclass.h"

#include <QObject>
#include <QString>
#include <QTest>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

namespace
{

constexpr double infinity{std::numeric_limits<double>::infinity()};
constexpr int highestInt{std::numeric_limits<int>::max()};
constexpr int lowestInt{std::numeric_limits<int>::min()};

} // namespace

class EncodingsTest : public QObject
{
    Q_OBJECT

private slots:
    void truncatesTowardZeroToTheLow32Bits_data();
    void truncatesTowardZeroToTheLow32Bits();
    void encodesFixedPoint_data();
    void encodesFixedPoint();
    void decodesFixedPointInSinglePrecision_data();
    void decodesFixedPointInSinglePrecision();
    void roundsHalfAwayFromZero_data();
    void roundsHalfAwayFromZero();
    void keepsTheLowByte_data();
    void keepsTheLowByte();
    void stopsAtTheLargestInt_data();
    void stopsAtTheLargestInt();
    void convertsMillikelvinToCelsius_data();
    void convertsMillikelvinToCelsius();
    void mapsIndexToFrameRate_data();
    void mapsIndexToFrameRate();
    void mapsFrameRateToIndex_data();
    void mapsFrameRateToIndex();
    void writesDoublesWithSixDigits_data();
    void writesDoublesWithSixDigits();
    void joinsPiecesInOrder();
    void writesHexadecimalDigits_data();
    void writesHexadecimalDigits();
    void namesOnOffStates();
};

void EncodingsTest::truncatesTowardZeroToTheLow32Bits_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<quint32>("bits");
    QTest::addColumn<qint32>("number");
    const auto row = [](const char *name, double value, quint32 bits, qint32 number) {
        QTest::newRow(name) << value << bits << number;
    };
    row("0 stays", 0.0, 0, 0);
    row("2.9 becomes 2", 2.9, 2, 2);
    row("-2.9 becomes -2", -2.9, 0xFFFFFFFE, -2);
    row("-0.9 becomes 0", -0.9, 0, 0);
    row("largest signed number", 2147483647.0, 0x7FFFFFFF, highestInt);
    row("one above the largest signed number", 2147483648.0, 0x80000000, lowestInt);
    row("lowest signed number", -2147483648.0, 0x80000000, lowestInt);
    row("one below the lowest signed number", -2147483649.0, 0x7FFFFFFF, highestInt);
    row("4294967295 is all ones", 4294967295.0, 0xFFFFFFFF, -1);
    row("4294967295.9 is all ones", 4294967295.9, 0xFFFFFFFF, -1);
    row("4294967296 loses its high bit", 4294967296.0, 0, 0);
    row("4294967301 keeps its low bits", 4294967301.0, 5, 5);
    row("largest double below 64 bits", 9223372036854774784.0, 0xFFFFFC00, -1024);
    row("first double above 64 bits saturates", 9223372036854775808.0, 0xFFFFFFFF, -1);
    row("lowest double of 64 bits", -9223372036854775808.0, 0, 0);
    row("below 64 bits saturates", -9223372036854777856.0, 0, 0);
    row("1e300 saturates", 1e300, 0xFFFFFFFF, -1);
    row("-1e300 saturates", -1e300, 0, 0);
    row("infinity saturates", infinity, 0xFFFFFFFF, -1);
    row("-infinity saturates", -infinity, 0, 0);
    row("NaN counts as 0", notANumber, 0, 0);
}

void EncodingsTest::truncatesTowardZeroToTheLow32Bits()
{
    QFETCH(const double, value);
    QFETCH(const quint32, bits);
    QFETCH(const qint32, number);
    QCOMPARE(truncateToUint32(value), bits);
    QCOMPARE(truncateToInt32(value), number);
}

void EncodingsTest::encodesFixedPoint_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<quint32>("fixedPoint");
    const auto row = [](const char *name, double value, quint32 fixedPoint) {
        QTest::newRow(name) << value << fixedPoint;
    };
    row("0", 0.0, 0);
    row("lowest gamma", 0.5, 32768);
    row("1", 1.0, 65536);
    row("2.2 is truncated", 2.2, 144179);
    row("highest gamma", 2.5, 163840);
    row("less than one step", 0.000015, 0);
    row("-1", -1.0, 0xFFFF0000);
    row("-2.2 is truncated toward zero", -2.2, 0U - 144179U);
    row("highest fixed point number", 65535.9999847412109375, 0xFFFFFFFF);
    row("65536 loses its high bit", 65536.0, 0);
    row("a product beyond the range of doubles", 1e308, 0xFFFFFFFF);
    row("infinity", infinity, 0xFFFFFFFF);
    row("-infinity", -infinity, 0);
    row("NaN", notANumber, 0);
}

void EncodingsTest::encodesFixedPoint()
{
    QFETCH(const double, value);
    QFETCH(const quint32, fixedPoint);
    QCOMPARE(toFixedPoint16_16(value), fixedPoint);
}

void EncodingsTest::decodesFixedPointInSinglePrecision_data()
{
    QTest::addColumn<quint32>("fixedPoint");
    QTest::addColumn<double>("value");
    const auto row = [](const char *name, quint32 fixedPoint, double value) {
        QTest::newRow(name) << fixedPoint << value;
    };
    row("0", 0, 0.0);
    row("smallest step", 1, 0.0000152587890625);
    row("1", 65536, 1.0);
    row("0x00023333", 0x00023333, 2.1999969482421875);
    row("24 bits are kept", 0x00FFFFFF, 255.9999847412109375);
    row("the 25th bit is rounded to even, down", 0x01000001, 256.0);
    row("the 25th bit is rounded to even, up", 0x01000003, 256.00006103515625);
    row("largest", 0xFFFFFFFF, 65536.0);
    row("just below the rounding to the top", 0xFFFFFF7F, 65535.99609375);
}

void EncodingsTest::decodesFixedPointInSinglePrecision()
{
    QFETCH(const quint32, fixedPoint);
    QFETCH(const double, value);
    // Not QCOMPARE alone, which takes neighbouring doubles for equal.
    const double difference{fromFixedPoint16_16(fixedPoint) - value};
    QVERIFY2(!(difference < 0.0) && !(difference > 0.0), qPrintable(QString::number(difference)));
}

void EncodingsTest::roundsHalfAwayFromZero_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("rounded");
    const auto row = [](const char *name, double value, int rounded) {
        QTest::newRow(name) << value << rounded;
    };
    row("0", 0.0, 0);
    row("0.5 goes up", 0.5, 1);
    row("-0.5 goes down", -0.5, -1);
    row("the double below 0.5", 0.49999999999999994, 0);
    row("1.5", 1.5, 2);
    row("2.5", 2.5, 3);
    row("-2.5", -2.5, -3);
    row("2.4", 2.4, 2);
    row("-2.4", -2.4, -2);
    row("17.5", 17.5, 18);
    row("largest int", 2147483647.0, highestInt);
    row("half above the largest int", 2147483647.5, highestInt);
    row("one above the largest int", 2147483648.0, highestInt);
    row("lowest int", -2147483648.0, lowestInt);
    row("half below the lowest int", -2147483648.5, lowestInt);
    row("1e300", 1e300, highestInt);
    row("infinity", infinity, highestInt);
    row("-infinity", -infinity, lowestInt);
    row("NaN counts as 0", notANumber, 0);
}

void EncodingsTest::roundsHalfAwayFromZero()
{
    QFETCH(const double, value);
    QFETCH(const int, rounded);
    QCOMPARE(roundToInt(value), rounded);
}

void EncodingsTest::keepsTheLowByte_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("byte");
    const auto row = [](const char *name, int value, int byte) {
        QTest::newRow(name) << value << byte;
    };
    row("0", 0, 0);
    row("255", 255, 255);
    row("256", 256, 0);
    row("no selection", -1, 255);
    row("-2", -2, 254);
    row("largest int", highestInt, 255);
    row("lowest int", lowestInt, 0);
}

void EncodingsTest::keepsTheLowByte()
{
    QFETCH(const int, value);
    QFETCH(const int, byte);
    QCOMPARE(int{toByte(value)}, byte);
}

void EncodingsTest::stopsAtTheLargestInt_data()
{
    QTest::addColumn<quint64>("value");
    QTest::addColumn<int>("nearest");
    const auto row = [](const char *name, quint64 value, int nearest) {
        QTest::newRow(name) << value << nearest;
    };
    row("0", 0, 0);
    row("635", 635, 635);
    row("largest int", 2147483647, highestInt);
    row("one above the largest int", 2147483648, highestInt);
    row("largest 32-bit number", 4294967295, highestInt);
    row("ten times the largest 32-bit number", 42949672950, highestInt);
    row("largest 64-bit number", std::numeric_limits<quint64>::max(), highestInt);
}

void EncodingsTest::stopsAtTheLargestInt()
{
    QFETCH(const quint64, value);
    QFETCH(const int, nearest);
    QCOMPARE(nearestInt(value), nearest);
}

void EncodingsTest::convertsMillikelvinToCelsius_data()
{
    QTest::addColumn<float>("millikelvin");
    QTest::addColumn<QString>("celsius");
    const auto row = [](const char *name, float millikelvin, const char *celsius) {
        QTest::newRow(name) << millikelvin << celsius;
    };
    row("freezing point", 273000.0F, "0");
    row("a warm sensor", 310150.0F, "37.15");
    row("below freezing", 233000.0F, "-40");
    row("no answer", 0.0F, "-273");
    row("infinity", std::numeric_limits<float>::infinity(), "inf");
    row("-infinity", -std::numeric_limits<float>::infinity(), "-inf");
    row("NaN", std::numeric_limits<float>::quiet_NaN(), "nan");
}

void EncodingsTest::convertsMillikelvinToCelsius()
{
    QFETCH(const float, millikelvin);
    QFETCH(const QString, celsius);
    QCOMPARE(QString::number(static_cast<double>(toCelsius(millikelvin)), 'g', 6), celsius);
}

void EncodingsTest::mapsIndexToFrameRate_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("hertz");
    const auto row = [](const char *name, int index, int hertz) {
        QTest::newRow(name) << index << hertz;
    };
    row("0 is 9 Hz", 0, 9);
    row("1 is 25 Hz", 1, 25);
    row("2 is 30 Hz", 2, 30);
    row("3 is 50 Hz", 3, 50);
    row("4 is 60 Hz", 4, 60);
    row("5 is none", 5, 0);
    row("no selection is none", -1, 0);
    row("largest int is none", highestInt, 0);
    row("lowest int is none", lowestInt, 0);
}

void EncodingsTest::mapsIndexToFrameRate()
{
    QFETCH(const int, index);
    QFETCH(const int, hertz);
    QCOMPARE(int{frameRateHz(index)}, hertz);
}

void EncodingsTest::mapsFrameRateToIndex_data()
{
    QTest::addColumn<int>("hertz");
    QTest::addColumn<int>("otherwise");
    QTest::addColumn<int>("index");
    const auto row = [](const char *name, int hertz, int otherwise, int index) {
        QTest::newRow(name) << hertz << otherwise << index;
    };
    row("9 Hz is 0", 9, 1, 0);
    row("25 Hz is 1", 25, 0, 1);
    row("30 Hz is 2", 30, 0, 2);
    row("50 Hz is 3", 50, 0, 3);
    row("60 Hz is 4", 60, 0, 4);
    row("15 Hz is the first when reading", 15, 0, 0);
    row("15 Hz is the second when resetting", 15, 1, 1);
    row("0 Hz is unknown", 0, 1, 1);
    row("255 Hz is unknown", 255, 1, 1);
}

void EncodingsTest::mapsFrameRateToIndex()
{
    QFETCH(const int, hertz);
    QFETCH(const int, otherwise);
    QFETCH(const int, index);
    QCOMPARE(frameRateIndex(static_cast<std::uint8_t>(hertz), otherwise), index);
}

void EncodingsTest::writesDoublesWithSixDigits_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    const auto row = [](double value, const char *text) {
        QTest::newRow(text) << value << text;
    };
    row(0.0, "0");
    row(2.2, "2.2");
    row(2.1999969482421875, "2.2");
    row(1.0, "1");
    row(0.5, "0.5");
    row(-2.25, "-2.25");
    row(123456.7, "123457");
    row(4294967295.0, "4.29497e+09");
    row(1000000.0, "1e+06");
    row(0.0000152587890625, "1.52588e-05");
    row(infinity, "inf");
    row(-infinity, "-inf");
    row(notANumber, "nan");
}

void EncodingsTest::writesDoublesWithSixDigits()
{
    QFETCH(const double, value);
    QFETCH(const QString, text);
    QCOMPARE(QString::fromStdString(joinText(value)), text);
}

void EncodingsTest::joinsPiecesInOrder()
{
    QCOMPARE(joinText("Operating time = ", 123456U, " min"), std::string{"Operating time = 123456 min"});
    QCOMPARE(joinText("Horizontal flip value = ", true), std::string{"Horizontal flip value = 1"});
    QCOMPARE(joinText("Horizontal flip value = ", false), std::string{"Horizontal flip value = 0"});
    QCOMPARE(joinText("n = ", 4294967295U, ' ', -30, std::string{"\n"}), std::string{"n = 4294967295 -30\n"});
    QCOMPARE(joinText("filter = ", +std::uint8_t{65}), std::string{"filter = 65"});
}

void EncodingsTest::writesHexadecimalDigits_data()
{
    QTest::addColumn<quint32>("value");
    QTest::addColumn<QString>("text");
    const auto row = [](quint32 value, const char *text) {
        QTest::newRow(text) << value << text;
    };
    row(0, "0");
    row(9, "9");
    row(10, "a");
    row(0xDEADBEEF, "deadbeef");
    row(0xFFFFFFFF, "ffffffff");
}

void EncodingsTest::writesHexadecimalDigits()
{
    QFETCH(const quint32, value);
    QFETCH(const QString, text);
    QCOMPARE(QString::fromStdString(hexText(value)), text);
}

void EncodingsTest::namesOnOffStates()
{
    QCOMPARE(enabledWord(true), "Enabled");
    QCOMPARE(enabledWord(false), "Disabled");
}

PILOTEL_TEST_CLASS(EncodingsTest)
#include "tst_encodings.moc"
