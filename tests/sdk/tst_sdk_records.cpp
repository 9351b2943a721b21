// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The records, the configuration's words and the concrete classes at the SDK boundary.
#include "still_configuration.h"
#include "testclass.h"
#include "veltrix_sdk/sdk.h"

#include <QMetaType>
#include <QObject>
#include <QTest>

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace
{

using namespace veltrix_sdk;

/// Trivial and standard layout: every compiler passes and returns such a record the same way.
template <typename... Records>
constexpr bool arePlain = ((std::is_trivial_v<Records> && std::is_standard_layout_v<Records>)&&...);

static_assert(arePlain<FirmwareVersions, Temperatures, OperatingInfo, EdgeCorrection, AhcGainLimitation,
                       ZoomConfig, ZoomResolution, VisibleAgc, VisibleClhe, Warp, ConfigurationWords>);

// Booleans travel as single bytes, temperatures and warp coefficients as IEEE floats of these sizes.
static_assert(sizeof(bool) == 1 && sizeof(float) == 4 && sizeof(double) == 8);

static_assert(std::is_same_v<decltype(&VeltrixSdk::get_instance), IVeltrixSdk *(*)()>);

// The logger is built and destroyed by the library's own code; its storage is opaque.
static_assert(!std::is_polymorphic_v<SDKLogger>);
static_assert(sizeof(SDKLogger) >= 4 * sizeof(void *) && alignof(SDKLogger) == alignof(void *));
static_assert(std::is_constructible_v<SDKLogger, severity_level>);
static_assert(!std::is_convertible_v<severity_level, SDKLogger>);
static_assert(!std::is_copy_constructible_v<SDKLogger> && !std::is_copy_assignable_v<SDKLogger>);
static_assert(std::is_same_v<decltype(&SDKLogger::GetILogger), ILogger &(SDKLogger::*)()>);

static_assert(sizeof(severity_level) == sizeof(int));

/// The type of the field is given, not deduced, so that a field of another type does not compile.
template <typename Field, typename Record>
void addField(const char *name, Field Record::*field, std::size_t offset)
{
    const Record record{};
    const auto *const start = reinterpret_cast<const std::byte *>(&record);
    const auto *const found = reinterpret_cast<const std::byte *>(&(record.*field));
    QTest::addRow("%s at %d", name, static_cast<int>(offset))
        << static_cast<int>(found - start) << static_cast<int>(offset);
}

using ConfigurationWord = std::int32_t ConfigurationWords::*;

} // namespace

Q_DECLARE_METATYPE(ConfigurationWord)

class SdkRecordsTest : public QObject
{
    Q_OBJECT

private slots:
    void recordHasItsSize_data();
    void recordHasItsSize();
    void fieldLiesAtItsOffset_data();
    void fieldLiesAtItsOffset();
    void configurationWordIsReadByNumber_data();
    void configurationWordIsReadByNumber();
    void severityHasItsNumber_data();
    void severityHasItsNumber();
};

void SdkRecordsTest::recordHasItsSize_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("expected");
    const auto row = [](const char *name, std::size_t size, int expected) {
        QTest::addRow("%s has %d bytes", name, expected) << static_cast<int>(size) << expected;
    };
    row("FirmwareVersions", sizeof(FirmwareVersions), 4);
    row("Temperatures", sizeof(Temperatures), 8);
    row("OperatingInfo", sizeof(OperatingInfo), 8);
    row("EdgeCorrection", sizeof(EdgeCorrection), 16);
    row("AhcGainLimitation", sizeof(AhcGainLimitation), 2);
    row("ZoomConfig", sizeof(ZoomConfig), 16);
    row("ZoomResolution", sizeof(ZoomResolution), 8);
    row("VisibleAgc", sizeof(VisibleAgc), 3);
    row("VisibleClhe", sizeof(VisibleClhe), 8);
    row("Warp", sizeof(Warp), 56);
}

void SdkRecordsTest::recordHasItsSize()
{
    QFETCH(const int, size);
    QFETCH(const int, expected);
    QCOMPARE(size, expected);
}

void SdkRecordsTest::fieldLiesAtItsOffset_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("expected");
    addField<std::uint16_t>("FirmwareVersions.processor", &FirmwareVersions::processor, 0);
    addField<std::uint16_t>("FirmwareVersions.fpga", &FirmwareVersions::fpga, 2);
    addField<float>("Temperatures.sensorMillikelvin", &Temperatures::sensorMillikelvin, 0);
    addField<float>("Temperatures.fpgaMillikelvin", &Temperatures::fpgaMillikelvin, 4);
    addField<std::uint32_t>("OperatingInfo.operatingMinutes", &OperatingInfo::operatingMinutes, 0);
    addField<std::uint32_t>("OperatingInfo.startupCount", &OperatingInfo::startupCount, 4);
    addField<std::uint8_t>("EdgeCorrection.type", &EdgeCorrection::type, 0);
    addField<std::uint32_t>("EdgeCorrection.gain", &EdgeCorrection::gain, 4);
    addField<std::uint32_t>("EdgeCorrection.firstThreshold", &EdgeCorrection::firstThreshold, 8);
    addField<std::uint32_t>("EdgeCorrection.secondThreshold", &EdgeCorrection::secondThreshold, 12);
    addField<std::uint8_t>("AhcGainLimitation.black", &AhcGainLimitation::black, 0);
    addField<std::uint8_t>("AhcGainLimitation.white", &AhcGainLimitation::white, 1);
    addField<float>("ZoomConfig.factor", &ZoomConfig::factor, 0);
    addField<std::uint32_t>("ZoomConfig.xCenter", &ZoomConfig::xCenter, 4);
    addField<std::uint32_t>("ZoomConfig.yCenter", &ZoomConfig::yCenter, 8);
    addField<std::uint8_t>("ZoomConfig.method", &ZoomConfig::method, 12);
    addField<std::uint32_t>("ZoomResolution.x", &ZoomResolution::x, 0);
    addField<std::uint32_t>("ZoomResolution.y", &ZoomResolution::y, 4);
    addField<std::uint8_t>("VisibleAgc.target", &VisibleAgc::target, 0);
    addField<std::uint8_t>("VisibleAgc.threshold", &VisibleAgc::threshold, 1);
    addField<std::uint8_t>("VisibleAgc.filterCoefficient", &VisibleAgc::filterCoefficient, 2);
    addField<std::uint32_t>("VisibleClhe.threshold", &VisibleClhe::threshold, 0);
    addField<std::uint8_t>("VisibleClhe.filterCoefficient", &VisibleClhe::filterCoefficient, 4);
    addField<std::uint8_t>("Warp.stream", &Warp::stream, 0);
    addField<double>("Warp.a11", &Warp::a11, 8);
    addField<double>("Warp.a21", &Warp::a21, 16);
    addField<double>("Warp.a12", &Warp::a12, 24);
    addField<double>("Warp.a22", &Warp::a22, 32);
    addField<double>("Warp.a13", &Warp::a13, 40);
    addField<double>("Warp.a23", &Warp::a23, 48);
}

void SdkRecordsTest::fieldLiesAtItsOffset()
{
    QFETCH(const int, offset);
    QFETCH(const int, expected);
    QCOMPARE(offset, expected);
}

void SdkRecordsTest::configurationWordIsReadByNumber_data()
{
    QTest::addColumn<ConfigurationWord>("field");
    QTest::addColumn<int>("number");
    const auto row = [](int number, const char *name, ConfigurationWord field) {
        QTest::addRow("word %d is %s", number, name) << field << number;
    };
    row(6, "gskDefault", &ConfigurationWords::gskDefault);
    row(7, "gmsDefault", &ConfigurationWords::gmsDefault);
    row(8, "gfidDefault", &ConfigurationWords::gfidDefault);
    row(9, "tintDefault", &ConfigurationWords::tintDefault);
    row(15, "gskMinimum", &ConfigurationWords::gskMinimum);
    row(16, "gskMaximum", &ConfigurationWords::gskMaximum);
    row(17, "gfidMinimum", &ConfigurationWords::gfidMinimum);
    row(18, "gfidMaximum", &ConfigurationWords::gfidMaximum);
    row(19, "tintMinimum", &ConfigurationWords::tintMinimum);
    row(20, "tintMaximum", &ConfigurationWords::tintMaximum);
    row(21, "gmsMinimum", &ConfigurationWords::gmsMinimum);
    row(22, "gmsMaximum", &ConfigurationWords::gmsMaximum);
}

void SdkRecordsTest::configurationWordIsReadByNumber()
{
    QFETCH(const ConfigurationWord, field);
    QFETCH(const int, number);
    StillConfiguration still;
    still.words = {};
    still.words.*field = -123456789;

    const ISdkConfiguration &configuration = still;
    const auto *const words = reinterpret_cast<const std::int32_t *>(&configuration);
    QCOMPARE(words[number], -123456789);
}

void SdkRecordsTest::severityHasItsNumber_data()
{
    QTest::addColumn<int>("severity");
    QTest::addColumn<int>("number");
    const auto row = [](const char *name, severity_level severity, int number) {
        QTest::addRow("%s is %d", name, number) << static_cast<int>(severity) << number;
    };
    row("trace", severity_trace, 0);
    row("debug", severity_debug, 1);
    row("info", severity_info, 2);
    row("warning", severity_warning, 3);
    row("error", severity_error, 4);
    row("fatal", severity_fatal, 5);
}

void SdkRecordsTest::severityHasItsNumber()
{
    QFETCH(const int, severity);
    QFETCH(const int, number);
    QCOMPARE(severity, number);
}

PILOTEL_TEST_CLASS(SdkRecordsTest)
#include "tst_sdk_records.moc"
