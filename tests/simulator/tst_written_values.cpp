// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How the journal and the trace write numbers and times.
#include "output/clock.h"
#include "testclass.h"
#include "values/numbertext.h"

#include <QObject>
#include <QTest>

#include <array>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>

using namespace veltrix_simulator;

Q_DECLARE_METATYPE(Precision)

namespace
{

std::string written(float value)
{
    std::string line;
    appendNumber(line, Kind::Float, static_cast<double>(value));
    return line;
}

/// As the standard library writes it.
std::string shortest(float value)
{
    std::array<char, 32> text{};
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

} // namespace

class WrittenValuesTest : public QObject
{
    Q_OBJECT

private slots:
    void floatsAreAsShortAsCanBe_data();
    void floatsAreAsShortAsCanBe();
    void everyKindOfFloatIsAsShortAsCanBe();
    void timesAreInUtc_data();
    void timesAreInUtc();
    void timesAreRead_data();
    void timesAreRead();
    void otherTextsAreNoTimes_data();
    void otherTextsAreNoTimes();
};

void WrittenValuesTest::floatsAreAsShortAsCanBe_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](float value, const char *text) {
        QTest::newRow(text) << value << QByteArray{text};
    };
    row(0.0F, "0");
    row(-0.0F, "-0");
    row(1.0F, "1");
    row(-1.0F, "-1");
    row(0.5F, "0.5");
    row(0.1F, "0.1");
    row(10'000.0F, "10000");
    row(99'999.0F, "99999");
    row(100'000.0F, "1e+05");
    row(-100'000.0F, "-1e+05");
    row(110'000.0F, "110000");
    row(300'950.0F, "300950");
    row(1'000'000.0F, "1e+06");
    row(1'100'000.0F, "1100000");
    row(9'999'999.0F, "9999999");
    row(12'000'000.0F, "1.2e+07");
    row(16'777'216.0F, "16777216");
    row(std::numeric_limits<float>::max(), "3.4028235e+38");
    row(std::numeric_limits<float>::infinity(), "inf");
    row(-std::numeric_limits<float>::infinity(), "-inf");
    row(std::numeric_limits<float>::quiet_NaN(), "nan");
}

void WrittenValuesTest::floatsAreAsShortAsCanBe()
{
    QFETCH(const float, value);
    QFETCH(const QByteArray, text);
    QCOMPARE(QByteArray::fromStdString(written(value)), text);
}

void WrittenValuesTest::everyKindOfFloatIsAsShortAsCanBe()
{
    // A prime step goes through all exponents and mantissas.
    constexpr std::uint32_t step{40'009};
    for (std::uint64_t bits{0}; bits <= std::numeric_limits<std::uint32_t>::max(); bits += step) {
        const auto pattern = static_cast<std::uint32_t>(bits);
        float value{0};
        std::memcpy(&value, &pattern, sizeof value);
        QVERIFY2(written(value) == shortest(value), shortest(value).c_str());
    }
    for (int whole{-20'000'000}; whole <= 20'000'000; whole += 500) {
        const auto value = static_cast<float>(whole);
        QVERIFY2(written(value) == shortest(value), shortest(value).c_str());
    }
}

void WrittenValuesTest::timesAreInUtc_data()
{
    QTest::addColumn<qint64>("since1970");
    QTest::addColumn<Precision>("precision");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](qint64 since1970, Precision precision, const char *text) {
        QTest::newRow(text) << since1970 << precision << QByteArray{text};
    };
    row(0, Precision::Microseconds, "1970-01-01T00:00:00.000000Z");
    row(0, Precision::Milliseconds, "1970-01-01T00:00:00.000Z");
    row(1'773'480'413'589'793, Precision::Microseconds, "2026-03-14T09:26:53.589793Z");
    row(1'773'480'413'589'793, Precision::Milliseconds, "2026-03-14T09:26:53.589Z");
    row(1'709'251'199'999'999, Precision::Microseconds, "2024-02-29T23:59:59.999999Z");
    row(1'709'251'199'000'007, Precision::Microseconds, "2024-02-29T23:59:59.000007Z");
    row(4'102'444'799'999'000, Precision::Milliseconds, "2099-12-31T23:59:59.999Z");
}

void WrittenValuesTest::timesAreInUtc()
{
    QFETCH(const qint64, since1970);
    QFETCH(const Precision, precision);
    QFETCH(const QByteArray, text);
    using std::chrono::system_clock;
    const system_clock::time_point time{
        std::chrono::duration_cast<system_clock::duration>(std::chrono::microseconds{since1970})};
    QCOMPARE(QByteArray::fromStdString(formatTime(time, precision)), text);
    const qint64 kept{precision == Precision::Microseconds ? since1970 : since1970 / 1000 * 1000};
    const auto read = parseTime(text.toStdString());
    QVERIFY(read);
    QCOMPARE(qint64{read->count()}, kept);
}

void WrittenValuesTest::timesAreRead_data()
{
    QTest::addColumn<qint64>("since1970");
    const auto row = [](const char *text, qint64 since1970) {
        QTest::newRow(text) << since1970;
    };
    row("1970-01-01T00:00:00Z", 0);
    row("1970-01-01T00:00:00.Z", 0);
    row("1970-01-01T00:00:01.5Z", 1'500'000);
    row("1970-01-01T00:00:00.000001Z", 1);
    // What is smaller than a microsecond does not count.
    row("1970-01-01T00:00:00.0000019Z", 1);
    row("1970-01-31T23:59:59Z", 2'678'399'000'000);
    row("1970-12-01T00:00:00Z", 28'857'600'000'000);
    row("2261-12-31T23:59:59Z", 9'214'646'399'000'000);
    // A leap second.
    row("2016-12-31T23:59:60Z", 1'483'228'800'000'000);
}

void WrittenValuesTest::timesAreRead()
{
    QFETCH(const qint64, since1970);
    const auto read = parseTime(QTest::currentDataTag());
    QVERIFY(read);
    QCOMPARE(qint64{read->count()}, since1970);
}

void WrittenValuesTest::otherTextsAreNoTimes_data()
{
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char *name, const char *text) {
        QTest::newRow(name) << QByteArray{text};
    };
    row("nothing", "");
    row("nothing but its end", "Z");
    row("no end", "2026-03-14T09:26:53");
    row("another zone", "2026-03-14T09:26:53+01:00");
    row("a day alone", "2026-03-14Z");
    row("a time of the day alone", "09:26:53Z");
    row("a blank before it", " 2026-03-14T09:26:53Z");
    row("a blank between day and time", "2026-03-14 09:26:53Z");
    row("year of two digits", "26-03-14T09:26:53Z");
    row("year of five digits", "12026-03-14T09:26:53Z");
    row("year below zero", "-026-03-14T09:26:53Z");
    row("letter in the year", "202x-03-14T09:26:53Z");
    row("before 1970", "1969-12-31T23:59:59Z");
    row("later than the clock goes", "2262-01-01T00:00:00Z");
    row("month of one digit", "2026-3-14T09:26:53Z");
    row("month zero", "2026-00-14T09:26:53Z");
    row("month 13", "2026-13-14T09:26:53Z");
    row("letter in the month", "2026-x3-14T09:26:53Z");
    row("day of one digit", "2026-03-4T09:26:53Z");
    row("day zero", "2026-03-00T09:26:53Z");
    row("day 32", "2026-03-32T09:26:53Z");
    row("sign in the day", "2026-03-/4T09:26:53Z");
    row("hour of one digit", "2026-03-14T9:26:53Z");
    row("hour 24", "2026-03-14T24:00:00Z");
    row("letter in the hour", "2026-03-14T0x:26:53Z");
    row("no colon behind the hour", "2026-03-14T09.26:53Z");
    row("minute of one digit", "2026-03-14T09:6:53Z");
    row("minute 60", "2026-03-14T09:60:53Z");
    row("letter in the minute", "2026-03-14T09:2x:53Z");
    row("no second", "2026-03-14T09:26Z");
    row("empty second", "2026-03-14T09:26:Z");
    row("second of one digit", "2026-03-14T09:26:5Z");
    row("second of three digits", "2026-03-14T09:26:053Z");
    row("second 61", "2026-03-14T09:26:61Z");
    row("letter in the second", "2026-03-14T09:26:5xZ");
    row("two ends", "2026-03-14T09:26:53ZZ");
    row("a fraction behind its end", "2026-03-14T09:26:53Z.5Z");
    row("comma before the fraction", "2026-03-14T09:26:53,5Z");
    row("letter in the fraction", "2026-03-14T09:26:53.5x9Z");
    row("sign in the fraction", "2026-03-14T09:26:53.-59Z");
    row("two ends behind a fraction", "2026-03-14T09:26:53.5ZZ");
}

void WrittenValuesTest::otherTextsAreNoTimes()
{
    QFETCH(const QByteArray, text);
    QVERIFY(!parseTime(text.toStdString()));
}

PILOTEL_TEST_CLASS(WrittenValuesTest)
#include "tst_written_values.moc"
