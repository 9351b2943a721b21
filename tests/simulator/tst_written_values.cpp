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

PILOTEL_TEST_CLASS(WrittenValuesTest)
#include "tst_written_values.moc"
