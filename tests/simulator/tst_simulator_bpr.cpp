// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The table of bad pixels, its file in the working directory, and what is wrong with a damaged one.
#include "contents.h"
#include "simulatedcamera.h"
#include "testclass.h"
#include "workingdirectory.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QIODevice>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

#include <array>
#include <cstdint>

using namespace veltrix_sdk;

namespace
{

constexpr int headerSize{28};
constexpr int fileSize{headerSize + 640 * 480 / 8};
const QString cameraFile{QStringLiteral("bpr_SN10417.bin")};

bool read(const SimulatedCamera &c)
{
    return c.device->readBprTable(4096, 16384, 9);
}

bool write(const SimulatedCamera &c)
{
    return c.device->writeBprTable(4096, 16384, 8);
}

bool store(const QString &name, const QByteArray &content)
{
    QFile file{name};
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// Whether a pixel is bad in the bytes of a file.
bool isBad(const QByteArray &content, int column, int row)
{
    const int pixel{row * 640 + column};
    return ((static_cast<unsigned char>(content.at(headerSize + pixel / 8)) >> (pixel % 8)) & 1) != 0;
}

std::uint32_t numberAt(const QByteArray &content, int offset)
{
    std::uint32_t number{0};
    for (int byte{3}; byte >= 0; --byte) {
        number = (number << 8) | static_cast<unsigned char>(content.at(offset + byte));
    }
    return number;
}

/// The checksum that the documentation of the file names, the slow way.
std::uint32_t crc32(const QByteArray &bytes)
{
    std::uint32_t crc{0xFFFFFFFF};
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit{0}; bit < 8; ++bit) {
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
        }
    }
    return ~crc;
}

/// The same content with a number of the header replaced and the checksum made right again.
QByteArray withNumber(QByteArray content, int offset, std::uint32_t number)
{
    const auto put = [&](int place, std::uint32_t value) {
        for (int byte{0}; byte < 4; ++byte) {
            content[place + byte] = static_cast<char>(static_cast<unsigned char>(value >> (8 * byte)));
        }
    };
    put(offset, number);
    put(24, crc32(content.left(24) + content.mid(headerSize)));
    return content;
}

} // namespace

class SimulatorBprTest : public QObject
{
    Q_OBJECT

private slots:
    void readWritesTheDocumentedFile();
    void eachUnitHasItsOwnFile();
    void declarationsReachTheUnitThroughTheFile();
    void closingSavesDeclarations();
    void closingWithoutDeclarationsWritesNothing();
    void declarationsStartFromTheFile();
    void readingDiscardsDeclarations();
    void pixelsOutsideAreRefused_data();
    void pixelsOutsideAreRefused();
    void repeatedDeclarationIsAcknowledged();
    void otherConstantsAreRefused_data();
    void otherConstantsAreRefused();
    void missingFileIsRefused();
    void damagedFileIsRefused_data();
    void damagedFileIsRefused();
    void unwritableDirectoryIsRefused();
    void serialNumberOfTenDigits();
};

void SimulatorBprTest::readWritesTheDocumentedFile()
{
    const WorkingDirectory directory;
    const SimulatedCamera c;
    QVERIFY(read(c));
    QCOMPARE(directory.files(), QStringList{cameraFile});
    const QByteArray content = contentOf(cameraFile);
    QCOMPARE(content.size(), fileSize);
    QCOMPARE(content.left(8), QByteArray{"VLTXBPR\n"});
    QCOMPARE(numberAt(content, 8), 1U);
    QCOMPARE(numberAt(content, 12), 640U);
    QCOMPARE(numberAt(content, 16), 480U);
    QCOMPARE(numberAt(content, 20), 10417U);
    QCOMPARE(numberAt(content, 24), crc32(content.left(24) + content.mid(headerSize)));
    QVERIFY(isBad(content, 320, 239));
    QVERIFY(!isBad(content, 321, 239));
    std::uint32_t badPixels{0};
    for (const char byte : content.mid(headerSize)) {
        badPixels += qPopulationCount(static_cast<quint8>(byte));
    }
    QCOMPARE(badPixels, 5U);
}

void SimulatorBprTest::eachUnitHasItsOwnFile()
{
    const WorkingDirectory directory;
    const SimulatedCamera c;
    QVERIFY(read(c));
    c.device->setTarget(blendUnitTarget);
    QVERIFY(read(c));
    QCOMPARE(directory.files(), (QStringList{cameraFile, "bpr_SN2063.bin"}));
    QVERIFY(!isBad(contentOf("bpr_SN2063.bin"), 320, 239));
}

void SimulatorBprTest::declarationsReachTheUnitThroughTheFile()
{
    const WorkingDirectory directory;
    const SimulatedCamera c;
    QVERIFY(c.device->addBadPixel(12, 34));
    QVERIFY(c.device->removeBadPixel(320, 239));
    QCOMPARE(directory.files(), QStringList{});
    QVERIFY(write(c));
    QVERIFY(isBad(contentOf(cameraFile), 12, 34));
    QVERIFY(QFile::remove(cameraFile));
    QVERIFY(read(c));
    QVERIFY(isBad(contentOf(cameraFile), 12, 34));
    QVERIFY(!isBad(contentOf(cameraFile), 320, 239));
}

void SimulatorBprTest::closingSavesDeclarations()
{
    const WorkingDirectory directory;
    const SimulatedCamera c;
    QVERIFY(c.device->addBadPixel(639, 479));
    QVERIFY(c.device->addBadPixel(0, 0));
    c.manager->closeDevice(c.device);
    QCOMPARE(directory.files(), QStringList{cameraFile});
    QVERIFY(isBad(contentOf(cameraFile), 639, 479));
    QVERIFY(isBad(contentOf(cameraFile), 0, 0));
    // The unit itself learns of them when the file is written to it.
    c.manager->openDevice("SIM1");
    c.device->setTarget(cameraTarget);
    QVERIFY(read(c));
    QVERIFY(!isBad(contentOf(cameraFile), 639, 479));
}

void SimulatorBprTest::closingWithoutDeclarationsWritesNothing()
{
    const WorkingDirectory directory;
    const SimulatedCamera c;
    QVERIFY(c.device->addBadPixel(320, 239));
    QVERIFY(c.device->removeBadPixel(1, 1));
    c.manager->closeDevice(c.device);
    QCOMPARE(directory.files(), QStringList{});
}

void SimulatorBprTest::declarationsStartFromTheFile()
{
    const WorkingDirectory directory;
    const SimulatedCamera c;
    QVERIFY(c.device->addBadPixel(1, 2));
    c.manager->closeDevice(c.device);
    c.manager->openDevice("SIM1");
    c.device->setTarget(cameraTarget);
    QVERIFY(c.device->addBadPixel(3, 4));
    QVERIFY(write(c));
    QVERIFY(isBad(contentOf(cameraFile), 1, 2));
    QVERIFY(isBad(contentOf(cameraFile), 3, 4));
}

void SimulatorBprTest::readingDiscardsDeclarations()
{
    const WorkingDirectory directory;
    const SimulatedCamera c;
    QVERIFY(c.device->addBadPixel(1, 2));
    QVERIFY(read(c));
    c.manager->closeDevice(c.device);
    QVERIFY(!isBad(contentOf(cameraFile), 1, 2));
}

void SimulatorBprTest::pixelsOutsideAreRefused_data()
{
    QTest::addColumn<std::uint32_t>("column");
    QTest::addColumn<std::uint32_t>("row");
    using Pixel = std::array<std::uint32_t, 2>;
    for (const Pixel &pixel : {Pixel{640, 0}, Pixel{0, 480}, Pixel{4294967295, 0}, Pixel{0, 4294967295}}) {
        QTest::addRow("%u, %u", pixel[0], pixel[1]) << pixel[0] << pixel[1];
    }
}

void SimulatorBprTest::pixelsOutsideAreRefused()
{
    QFETCH(const std::uint32_t, column);
    QFETCH(const std::uint32_t, row);
    const WorkingDirectory directory;
    const SimulatedCamera c;
    QVERIFY(!c.device->addBadPixel(column, row));
    QVERIFY(!c.device->removeBadPixel(column, row));
    c.manager->closeDevice(c.device);
    QCOMPARE(directory.files(), QStringList{});
}

void SimulatorBprTest::repeatedDeclarationIsAcknowledged()
{
    const WorkingDirectory directory;
    const SimulatedCamera c;
    QVERIFY(c.device->addBadPixel(5, 5));
    QVERIFY(c.device->addBadPixel(5, 5));
    QVERIFY(c.device->removeBadPixel(5, 5));
    QVERIFY(c.device->removeBadPixel(5, 5));
    QVERIFY(write(c));
    QVERIFY(!isBad(contentOf(cameraFile), 5, 5));
}

void SimulatorBprTest::otherConstantsAreRefused_data()
{
    QTest::addColumn<std::uint32_t>("first");
    QTest::addColumn<std::uint32_t>("second");
    QTest::addColumn<int>("readCode");
    QTest::addColumn<int>("writeCode");
    QTest::addRow("first") << 4095U << 16384U << 9 << 8;
    QTest::addRow("second") << 4096U << 16385U << 9 << 8;
    QTest::addRow("codes exchanged") << 4096U << 16384U << 8 << 9;
    QTest::addRow("no codes") << 4096U << 16384U << 0 << 0;
}

void SimulatorBprTest::otherConstantsAreRefused()
{
    QFETCH(const std::uint32_t, first);
    QFETCH(const std::uint32_t, second);
    QFETCH(const int, readCode);
    QFETCH(const int, writeCode);
    const WorkingDirectory directory;
    const SimulatedCamera c;
    QVERIFY(!c.device->readBprTable(first, second, static_cast<std::uint8_t>(readCode)));
    QCOMPARE(directory.files(), QStringList{});
    QVERIFY(read(c));
    QVERIFY(!c.device->writeBprTable(first, second, static_cast<std::uint8_t>(writeCode)));
}

void SimulatorBprTest::missingFileIsRefused()
{
    const WorkingDirectory directory;
    const SimulatedCamera c;
    QVERIFY(!write(c));
    QVERIFY(QDir{}.mkdir(cameraFile));
    QVERIFY(!write(c));
    QVERIFY(!c.device->addBadPixel(1, 1));
    QVERIFY(!read(c));
    QCOMPARE(directory.files(), QStringList{});
}

void SimulatorBprTest::damagedFileIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    const WorkingDirectory directory;
    const SimulatedCamera c;
    QVERIFY(read(c));
    const QByteArray good = contentOf(cameraFile);
    const auto row = [](const char *name, const QByteArray &content, const char *reason) {
        QTest::addRow("%s", name) << content << QString{reason};
    };
    row("empty", {}, "it is no table of bad pixels");
    row("part of the magic", good.left(7), "it is no table of bad pixels");
    row("other magic", 'v' + good.mid(1), "it is no table of bad pixels");
    row("header only", good.left(headerSize), "it has 28 bytes instead of 38428");
    row("one byte short", good.chopped(1), "it has 38427 bytes instead of 38428");
    row("one byte too long", good + '\0', "it has 38429 bytes instead of 38428");
    row("far too long", good + good, "it has 38429 bytes instead of 38428");
    row("other version", withNumber(good, 8, 2), "its version is 2 instead of 1");
    row("other columns", withNumber(good, 12, 320), "it is for a sensor of another size");
    row("other rows", withNumber(good, 16, 0), "it is for a sensor of another size");
    row("other unit", withNumber(good, 20, 1234), "it belongs to serial number 1234");
    QByteArray flipped = good;
    flipped[fileSize - 1] = static_cast<char>(flipped.at(fileSize - 1) ^ 0x10);
    row("one bit of the table", flipped, "its checksum is wrong");
    flipped = good;
    flipped[24] = static_cast<char>(flipped.at(24) ^ 1);
    row("one bit of the checksum", flipped, "its checksum is wrong");
    flipped = good;
    flipped[20] = static_cast<char>(flipped.at(20) ^ 1);
    row("one bit of the serial number", flipped, "its checksum is wrong");
}

void SimulatorBprTest::damagedFileIsRefused()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, reason);
    const WorkingDirectory directory;
    const SimulatedCamera c;
    QVERIFY(store(cameraFile, content));
    qputenv("VELTRIX_SIMULATOR_LOG", QFile::encodeName(QDir::current().filePath("log.txt")));
    const bool written{write(c)};
    const bool added{c.device->addBadPixel(1, 1)};
    qunsetenv("VELTRIX_SIMULATOR_LOG");
    QVERIFY(!written);
    QVERIFY(!added);
    QCOMPARE(contentOf(cameraFile), content);
    const QStringList log = QString::fromUtf8(contentOf("log.txt")).split('\n', Qt::SkipEmptyParts);
    QCOMPARE(log.size(), 2);
    for (const QString &line : log) {
        QVERIFY2(line.endsWith("Z warning: BPR file " + cameraFile + " refused: " + reason),
                 qPrintable(line));
    }
    QVERIFY(read(c));
    QVERIFY(write(c));
}

void SimulatorBprTest::unwritableDirectoryIsRefused()
{
    const WorkingDirectory directory;
    const SimulatedCamera c;
    // A directory in the way of the file that is renamed when complete; permissions do not stop root.
    QVERIFY(QDir{}.mkdir(cameraFile + ".tmp"));
    QVERIFY(!read(c));
    QVERIFY(c.device->addBadPixel(1, 1));
    QVERIFY(!write(c));
    c.manager->closeDevice(c.device);
    QVERIFY(QDir{}.rmdir(cameraFile + ".tmp"));
    c.manager->openDevice("SIM1");
    c.device->setTarget(cameraTarget);
    QVERIFY(write(c));
    QVERIFY(isBad(contentOf(cameraFile), 1, 1));
}

void SimulatorBprTest::serialNumberOfTenDigits()
{
    const WorkingDirectory directory;
    const SimulatedCamera c;
    c.simulator.set("camera.serialNumber", std::int64_t{4294967295});
    QVERIFY(read(c));
    c.simulator.set("camera.serialNumber", std::int64_t{0});
    QVERIFY(read(c));
    QCOMPARE(directory.files(), (QStringList{"bpr_SN0.bin", "bpr_SN4294967295.bin"}));
}

PILOTEL_TEST_CLASS(SimulatorBprTest)
#include "tst_simulator_bpr.moc"
