// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Saved parameters: what comes back after a power cycle, and files that are damaged or half written.
#include "contents.h"
#include "output/replacefile.h"
#include "simulation.h"
#include "testclass.h"
#include "units/memoryfile.h"
#include "unreadablefile.h"
#include "veltrix_sdk/sdk.h"

#include <QByteArray>
#include <QFile>
#include <QIODevice>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <QTest>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <string>
#include <variant>

using namespace veltrix_sdk;
using namespace veltrix_simulator;

namespace
{

bool write(const QString &name, const QByteArray &content)
{
    QFile file{name};
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// Power-on with the device open; what restoring the memory complains of goes to `complaint`.
struct PoweredOn
{
    explicit PoweredOn(const QString &memoryFile)
    {
        simulation.reset();
        complaint = QString::fromStdString(
            simulation.memory.restore(simulation.state, memoryFile.toStdString()).value_or(std::string{}));
        device = simulation.sdk.getDeviceManager()->openDevice("SIM1");
    }

    Value get(const char *key) const { return simulation.state.get(key); }
    void set(const char *key, const Value &value) { simulation.state.set(key, value); }

    Simulation &simulation{veltrix_simulator::simulation()};
    IDeviceControl *device{nullptr};
    QString complaint;
};

/// All values by key.
std::map<std::string, Value> everyValue()
{
    std::map<std::string, Value> values;
    for (const std::string &key : State::keys()) {
        values[key] = simulation().state.get(key);
    }
    return values;
}

/// A value that the unit accepts and does not have at power-on.
double otherValue(const UnitField &row, std::size_t target)
{
    const Words &words = simulation().state.words;
    const double lowest{row.allowed.minimumWord != nullptr ? words.*row.allowed.minimumWord
                                                           : row.allowed.minimum};
    const double listed{row.allowed.listed != nullptr ? row.allowed.listed[0] : row.allowed.maximum};
    for (const double number : {lowest, listed, 1.0 - row.defaults[target]}) {
        if (number != row.defaults[target] && row.allowed.accepts(number, words)) {
            return number;
        }
    }
    return row.defaults[target];
}

/// A whole file; the tests below damage it.
const QByteArray expertFile{R"({
  "format": 1,
  "camera": {
    "expert": {
      "gsk": 2,
      "gfid": 250,
      "gms": 1024,
      "tint": 10,
      "bprEnable": true,
      "offsetCorrection": true,
      "gainCorrection": true,
      "visibleAgc.target": 50,
      "visibleAgc.threshold": 10,
      "visibleAgc.filterCoefficient": 20,
      "visibleClhe.threshold": 2000,
      "visibleClhe.filterCoefficient": 30,
      "warp0.a11": 1.0,
      "warp0.a21": 0.0,
      "warp0.a12": 0.0,
      "warp0.a22": 1.0,
      "warp0.a13": 0.0,
      "warp0.a23": 0.0,
      "warp1.a11": 1.0,
      "warp1.a21": 0.0,
      "warp1.a12": 0.0,
      "warp1.a22": 1.0,
      "warp1.a13": 0.1,
      "warp1.a23": -4.0,
      "warp2.a11": 1.0,
      "warp2.a21": 0.0,
      "warp2.a12": 0.0,
      "warp2.a22": 1.0,
      "warp2.a13": 0.0,
      "warp2.a23": 0.0
    }
  }
}
)"};

const QByteArray userFile{R"({
  "format": 1,
  "blendUnit": {
    "user": {
      "horizontalFlip": false,
      "verticalFlip": false,
      "vignettingCorrection": true,
      "columnCorrection": true,
      "sdiOutput": true,
      "parallelOutput": false,
      "mipiOutput": true,
      "polarity": false,
      "frameRate": 60,
      "videoOutput": 8,
      "mavlink.baudRate": 115200,
      "mavlink.permanent": false,
      "edgeCorrection.type": 0,
      "edgeCorrection.gain": 64,
      "edgeCorrection.firstThreshold": 20,
      "edgeCorrection.secondThreshold": 60,
      "zoom.factor": 1.5,
      "zoom.xCenter": 320,
      "zoom.yCenter": 240,
      "zoom.method": 0,
      "contrastType": 0,
      "colorLut": 0,
      "ahcGainLimitation.black": 20,
      "ahcGainLimitation.white": 80,
      "lutTemporalFilter": 2,
      "gamma": 65536,
      "clhe": 2000,
      "videoMode": 2,
      "startingMode": 2,
      "roi0.x1": 5,
      "roi0.x2": 635,
      "roi0.y1": 5,
      "roi0.y2": 475,
      "roi1.x1": 0,
      "roi1.x2": 0,
      "roi1.y1": 0,
      "roi1.y2": 0,
      "roi2.x1": 0,
      "roi2.x2": 0,
      "roi2.y1": 0,
      "roi2.y2": 0,
      "roi3.x1": 0,
      "roi3.x2": 0,
      "roi3.y1": 0,
      "roi3.y2": 0,
      "roi1IncEnabled": false,
      "roi0ExcEnabled": false,
      "roi1ExcEnabled": false
    }
  }
}
)"};

QByteArray replaced(QByteArray bytes, const char *before, const char *after)
{
    return bytes.replace(before, after);
}

std::variant<MemoryImage, std::string> parse(const QByteArray &bytes)
{
    return parseMemory({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

/// What is wrong with the bytes; empty: nothing.
QString damageOf(const QByteArray &bytes)
{
    const auto parsed = parse(bytes);
    const auto *const reason = std::get_if<std::string>(&parsed);
    return reason != nullptr ? QString::fromStdString(*reason) : QString{};
}

} // namespace

class SimulatorMemoryTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase() { simulation().reset(); }

    void savedSetComesBack_data();
    void savedSetComesBack();
    void everySetIsKeptForItself();
    void onlyTwoSetsCanBeSaved();
    void readmeSaysWhichSetAValueBelongsTo();
    void withoutFileNothingIsKept();
    void fileReads_data();
    void fileReads();

    void damageIsNamed_data();
    void damageIsNamed();
    void cutFileIsRefused();
    void anyChangedByteIsBorne();
    void deepNestingIsRefused_data();
    void deepNestingIsRefused();
    void damagedFileIsLeftAlone_data();
    void damagedFileIsLeftAlone();
#if defined(Q_OS_LINUX)
    void fileThatCannotBeReadIsNotUsed_data();
    void fileThatCannotBeReadIsNotUsed();
    void whatTheDiskMayNotHaveReplacesNothing();
#endif

    void interruptedSaveLeavesTheOldSet();
    void killedProgramLeavesAWholeFile();
    void failedSaveIsTold();
    void valueThatNoUnitAcceptsIsNotSaved();

private:
    QTemporaryDir directory;
    QString name;
};

void SimulatorMemoryTest::init()
{
    name = directory.filePath(QString::fromLatin1(QTest::currentTestFunction()) + ".json");
    QFile::remove(name);
}

void SimulatorMemoryTest::savedSetComesBack_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("values");
    QTest::addRow("user set of the Blend Unit") << 0 << 0 << 48;
    QTest::addRow("expert set of the Blend Unit") << 0 << 1 << 30;
    QTest::addRow("user set of the camera") << 1 << 0 << 48;
    QTest::addRow("expert set of the camera") << 1 << 1 << 30;
}

void SimulatorMemoryTest::savedSetComesBack()
{
    QFETCH(const int, target);
    QFETCH(const int, kind);
    QFETCH(const int, values);
    std::map<std::string, Value> expected;
    {
        const PoweredOn first{name};
        expected = everyValue();
        const Saved set{kind == 0 ? Saved::User : Saved::Expert};
        const auto unit = static_cast<std::size_t>(target);
        int changed{0};
        for (const UnitField &row : unitFields) {
            double &number = first.simulation.state.units[unit][row.id];
            number = otherValue(row, unit);
            if (row.saved == set && number != row.defaults[unit]) {
                expected[(target == 0 ? "blendUnit." : "camera.") + std::string{row.key}] =
                    toValue(number, row.kind);
                ++changed;
            }
        }
        QCOMPARE(changed, values);
        QVERIFY(first.device->setTarget(target));
        QVERIFY(first.device->saveBlendUnitParameters(static_cast<std::uint8_t>(kind)));
    }
    const PoweredOn second{name};
    QCOMPARE(second.complaint, QString{});
    QVERIFY(everyValue() == expected);
}

void SimulatorMemoryTest::everySetIsKeptForItself()
{
    {
        const PoweredOn first{name};
        QVERIFY(first.device->setGamma(40'000));
        QVERIFY(first.device->setTint(11));
        QVERIFY(first.device->saveBlendUnitParameters(0));
        QVERIFY(first.device->setTarget(1));
        QVERIFY(first.device->setGamma(50'000));
        QVERIFY(first.device->setTint(12));
        QVERIFY(first.device->saveBlendUnitParameters(1));
    }
    {
        const PoweredOn second{name};
        QCOMPARE(second.device->getGamma(), 40'000U);
        QCOMPARE(second.device->getTint(), 10U);
        QVERIFY(second.device->setTarget(1));
        QCOMPARE(second.device->getGamma(), 65'536U);
        QCOMPARE(second.device->getTint(), 12U);
        QVERIFY(second.device->setGamma(60'000));
        QVERIFY(second.device->saveBlendUnitParameters(0));
    }
    const PoweredOn third{name};
    QCOMPARE(third.device->getGamma(), 40'000U);
    QVERIFY(third.device->setTarget(1));
    QCOMPARE(third.device->getGamma(), 60'000U);
    QCOMPARE(third.device->getTint(), 12U);
}

void SimulatorMemoryTest::onlyTwoSetsCanBeSaved()
{
    const PoweredOn unit{name};
    QVERIFY(!unit.device->saveBlendUnitParameters(2));
    QVERIFY(!unit.device->saveBlendUnitParameters(255));
    QVERIFY(!QFile::exists(name));
    QVERIFY(unit.get("blendUnit.userSaves") == Value{std::int64_t{0}});
    QVERIFY(unit.get("blendUnit.expertSaves") == Value{std::int64_t{0}});
}

void SimulatorMemoryTest::readmeSaysWhichSetAValueBelongsTo()
{
    QFile readme{QStringLiteral(SIMULATOR_README)};
    QVERIFY(readme.open(QIODevice::ReadOnly | QIODevice::Text));
    const QString text = QString::fromUtf8(readme.readAll());
    const std::map<Saved, QString> words{{Saved::Never, QStringLiteral("–")},
                                         {Saved::User, QStringLiteral("user")},
                                         {Saved::Expert, QStringLiteral("expert")}};
    for (const UnitField &row : unitFields) {
        const QString key = QString::fromStdString(std::string{row.key});
        const QString line = text.section(QStringLiteral("\n| `%1` | ").arg(key), 1, 1).section('\n', 0, 0);
        QCOMPARE(key + ": " + line.section(QStringLiteral(" | "), 2, 2), key + ": " + words.at(row.saved));
    }
}

void SimulatorMemoryTest::withoutFileNothingIsKept()
{
    {
        const PoweredOn first{{}};
        QCOMPARE(first.complaint, QString{});
        QVERIFY(first.device->setGamma(40'000));
        QVERIFY(first.device->saveBlendUnitParameters(0));
        QVERIFY(first.get("blendUnit.userSaves") == Value{std::int64_t{1}});
    }
    const PoweredOn second{{}};
    QCOMPARE(second.device->getGamma(), 65'536U);
    QVERIFY(second.get("blendUnit.userSaves") == Value{std::int64_t{0}});
}

void SimulatorMemoryTest::fileReads_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QByteArray>("content");
    QTest::addRow("user set") << 0 << 0 << userFile;
    QTest::addRow("expert set") << 1 << 1 << expertFile;
}

void SimulatorMemoryTest::fileReads()
{
    QFETCH(const int, target);
    QFETCH(const int, kind);
    QFETCH(const QByteArray, content);
    PoweredOn unit{name};
    unit.set("blendUnit.zoom.factor", 1.5);
    unit.set("camera.warp1.a13", 0.1);
    unit.set("camera.warp1.a23", -4.0);
    QVERIFY(unit.device->setTarget(target));
    QVERIFY(unit.device->saveBlendUnitParameters(static_cast<std::uint8_t>(kind)));
    QCOMPARE(contentOf(name), content);
    QCOMPARE(damageOf(content), QString{});
}

void SimulatorMemoryTest::damageIsNamed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("damage");
    const auto row = [](const char *title, const QByteArray &bytes, const char *damage) {
        QTest::addRow("%s", title) << bytes << QString{damage};
    };
    const auto changed = [](const char *before, const char *after) {
        return replaced(expertFile, before, after);
    };
    row("nothing", "", "line 1, byte 1: what stands there is no JSON");
    row("text", "format 1", "line 1, byte 2: what stands there is no JSON");
    row("something behind", expertFile + "x", "line 38, byte 838: what stands there is no JSON");
    row("comma missing", changed("2,\n", "2\n"), "line 6, byte 74: what stands there is no JSON");
    row("no UTF-8", changed("gsk", "\xFFsk"), "line 5, byte 55: what stands there is no JSON");
    row("no object", "[1]", "it is no object");
    row("no format", "{}", R"(its "format" is not 1)");
    row("another format", changed(R"("format": 1)", R"("format": 2)"), R"(its "format" is not 1)");
    row("format as text", changed(R"("format": 1)", R"("format": "1")"), R"(its "format" is not 1)");
    row("another unit", changed(R"("camera")", R"("lens")"), R"(it has no place for "lens")");
    row("a unit of two lines", changed(R"("camera")", R"("cam\nera")"), R"(it has no place for "cam?era")");
    row("no unit", changed(R"("format": 1,)", R"("format": 1, "blendUnit": 0,)"),
        R"("blendUnit" is no object)");
    row("another set", changed(R"("expert")", R"("factory")"), R"("camera" has no set "factory")");
    row("no set", R"({"format": 1, "camera": {"user": null}})", R"("camera.user" is no object)");
    row("unknown value", changed(R"("gsk")", R"("gsq")"), R"("camera.expert" has no value "gsq")");
    row("value of the other set", changed(R"("gsk": 2)", R"("gsk": 2, "gamma": 65536)"),
        R"("camera.expert" has no value "gamma")");
    row("value that is never saved", changed(R"("gsk": 2)", R"("gsk": 2, "userSaves": 1)"),
        R"("camera.expert" has no value "userSaves")");
    row("missing value", changed(R"("tint": 10,)", ""), R"("camera.expert.tint" is missing)");
    row("text for a number", changed(R"("tint": 10)", R"("tint": "10")"),
        R"("camera.expert.tint" is not an integer from 0 to 4294967295)");
    row("null for a number", changed(R"("tint": 10)", R"("tint": null)"),
        R"("camera.expert.tint" is not an integer from 0 to 4294967295)");
    row("list for a number", changed(R"("tint": 10)", R"("tint": [])"), "it is nested too deep");
    row("fraction for an integer", changed(R"("tint": 10)", R"("tint": 10.5)"),
        R"("camera.expert.tint" is not an integer from 0 to 4294967295)");
    row("negative for an unsigned", changed(R"("tint": 10)", R"("tint": -1)"),
        R"("camera.expert.tint" is not an integer from 0 to 4294967295)");
    row("beyond 64 bits signed", changed(R"("tint": 10)", R"("tint": 18446744073709551615)"),
        R"("camera.expert.tint" is not an integer from 0 to 4294967295)");
    row("beyond every number", changed(R"("tint": 10)", R"("tint": 1e999)"),
        "one of its numbers is too large");
    row("number for a bool", changed(R"("bprEnable": true)", R"("bprEnable": 2)"),
        R"("camera.expert.bprEnable" is not true or false)");
    row("out of range", changed(R"("visibleAgc.target": 50)", R"("visibleAgc.target": 101)"),
        R"("camera.expert.visibleAgc.target" is none of the values that the unit accepts)");
    row("double out of range", changed(R"("warp0.a11": 1.0)", R"("warp0.a11": 65537.0)"),
        R"("camera.expert.warp0.a11" is none of the values that the unit accepts)");
    row("not in the list", replaced(userFile, R"("frameRate": 60)", R"("frameRate": 61)"),
        R"("blendUnit.user.frameRate" is none of the values that the unit accepts)");
    row("too long", QByteArray{(1 << 20) + 1, ' '}, "it has more than 1048576 bytes");
}

void SimulatorMemoryTest::damageIsNamed()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, damage);
    QCOMPARE(damageOf(bytes), damage);
}

void SimulatorMemoryTest::cutFileIsRefused()
{
    // The line feed at the end may be missing.
    for (int length{0}; length < userFile.size() - 1; ++length) {
        QVERIFY2(!damageOf(userFile.left(length)).isEmpty(), qPrintable(QString::number(length)));
    }
}

void SimulatorMemoryTest::anyChangedByteIsBorne()
{
    // Characters that JSON uses, others, and bytes that are not UTF-8.
    const QByteArray others("\0\t \"-.09:,[]{}\\etx\x7F\x80\xC3\xFF", 22);
    int accepted{0};
    for (int place{0}; place < expertFile.size(); ++place) {
        for (const char other : others) {
            QByteArray bytes = expertFile;
            bytes[place] = other;
            const auto parsed = parse(bytes);
            if (const auto *const image = std::get_if<MemoryImage>(&parsed)) {
                ++accepted;
                const auto again = parseMemory(formatMemory(*image));
                QVERIFY(std::get<MemoryImage>(again).units == image->units);
            }
        }
    }
    // A file is still valid when a digit replaces a digit, or white space other white space.
    QVERIFY2(accepted > 100 && accepted < 2'000, qPrintable(QString::number(accepted)));
}

void SimulatorMemoryTest::deepNestingIsRefused_data()
{
    QTest::addColumn<QByteArray>("opening");
    QTest::addColumn<QByteArray>("closing");
    QTest::addRow("lists") << QByteArray{"["} << QByteArray{"]"};
    QTest::addRow("objects") << QByteArray{R"({"a":)"} << QByteArray{"}"};
}

void SimulatorMemoryTest::deepNestingIsRefused()
{
    QFETCH(const QByteArray, opening);
    QFETCH(const QByteArray, closing);
    const int depth{(1 << 20) / (opening.size() + closing.size()) - 1};
    const QByteArray whole = opening.repeated(depth) + '1' + closing.repeated(depth);
    QCOMPARE(damageOf(whole), QStringLiteral("it is nested too deep"));
    const QByteArray inAUnit = R"({"format": 1, "camera": {"user": {"gsk": {}}}})";
    QCOMPARE(damageOf(inAUnit), QStringLiteral("it is nested too deep"));
}

void SimulatorMemoryTest::damagedFileIsLeftAlone_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::addRow("cut") << userFile.left(40) << "line 4, byte 41: what stands there is no JSON";
    QTest::addRow("second set damaged") << replaced(expertFile, R"("gsk": 2)", R"("gsk": -2)")
                                        << R"("camera.expert.gsk" is not an integer from 0 to 4294967295)";
}

void SimulatorMemoryTest::damagedFileIsLeftAlone()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, reason);
    simulation().reset();
    const std::map<std::string, Value> untouched = everyValue();
    QVERIFY(write(name, content));
    const PoweredOn unit{name};
    QCOMPARE(unit.complaint, R"(the memory file ")" + name + R"(" cannot be used: )" + reason +
                                 "; repair it, or delete it to begin with an empty memory.");
    QVERIFY(everyValue() == untouched);
    unit.device->saveBlendUnitParameters(0);
    QCOMPARE(contentOf(name), content);
}

#if defined(Q_OS_LINUX)
void SimulatorMemoryTest::fileThatCannotBeReadIsNotUsed_data()
{
    QTest::addColumn<QString>("file");
    QTest::addRow("cannot be opened") << QString{unreadableFile};
    // The beginning of a program's memory.
    QTest::addRow("cannot be read") << "/proc/self/mem";
}

void SimulatorMemoryTest::fileThatCannotBeReadIsNotUsed()
{
    QFETCH(const QString, file);
    QVERIFY(QFile::link(file, name));
    const PoweredOn unit{name};
    QCOMPARE(unit.complaint, R"(the memory file ")" + name +
                                 R"(" cannot be used: it cannot be read; repair it, or delete it to begin )"
                                 "with an empty memory.");
    QVERIFY(unit.device->saveBlendUnitParameters(0));
    QCOMPARE(QFile::symLinkTarget(name), file);
}

void SimulatorMemoryTest::whatTheDiskMayNotHaveReplacesNothing()
{
    QVERIFY(write(name, userFile));
    const QString temporary{QString::fromStdString(temporaryNameFor(name.toStdString()))};
    // It takes everything, and never says that it is on a disk.
    QVERIFY(QFile::link("/dev/null", temporary));
    QCOMPARE(QString::fromStdString(replaceFile(name.toStdString(), "new").value_or("replaced")),
             "the file \"" + temporary + "\" cannot be written");
    QCOMPARE(contentOf(name), userFile);
    QVERIFY(QFile::remove(temporary));
}
#endif

void SimulatorMemoryTest::interruptedSaveLeavesTheOldSet()
{
    QVERIFY(write(name, userFile));
    const QByteArray next = replaced(userFile, R"("gamma": 65536)", R"("gamma": 40000)");
    const QString temporary = QString::fromStdString(temporaryNameFor(name.toStdString()));
    for (int length{0}; length <= next.size(); ++length) {
        QVERIFY(write(temporary, next.left(length)));
        const PoweredOn unit{name};
        QCOMPARE(unit.complaint, QString{});
        QCOMPARE(unit.device->getGamma(), 65'536U);
    }
    {
        const PoweredOn unit{name};
        QVERIFY(unit.device->setGamma(40'000));
        QVERIFY(unit.device->saveBlendUnitParameters(0));
    }
    QCOMPARE(contentOf(name), next);
    QVERIFY(!QFile::exists(temporary));
}

void SimulatorMemoryTest::killedProgramLeavesAWholeFile()
{
    constexpr int patience{30'000};
    QByteArray before;
    // Windows does not open a file at the very moment in which it is replaced.
    const auto isAnotherFile = [&] {
        const QByteArray content = contentOf(name);
        return content != "no file" && content != before;
    };
    for (int run{0}; run < 8; ++run) {
        before = contentOf(name);
        QProcess writer;
        writer.start(QStringLiteral(MEMORY_WRITER), {name});
        QVERIFY(QTest::qWaitFor(isAnotherFile, patience));
        before = contentOf(name);
        QVERIFY(QTest::qWaitFor(isAnotherFile, patience));
        // Another place in the middle of a save each time.
        QTest::qWait(5 + 3 * run);
        QCOMPARE(writer.state(), QProcess::Running);
        writer.kill();
        QVERIFY(writer.waitForFinished());
        const PoweredOn unit{name};
        QCOMPARE(unit.complaint, QString{});
        const std::uint32_t clhe{unit.device->getClhe()};
        QVERIFY(clhe > 0);
        QCOMPARE(unit.device->getGamma(), 40'000U + clhe);
    }
}

void SimulatorMemoryTest::failedSaveIsTold()
{
    const QString log = directory.filePath("records.log");
    const QString unreachable = directory.filePath("missing/memory.json");
    qputenv("VELTRIX_SIMULATOR_LOG", log.toLocal8Bit());
    const PoweredOn unit{unreachable};
    QCOMPARE(unit.complaint, QString{});
    const bool saved{unit.device->saveBlendUnitParameters(0)};
    qunsetenv("VELTRIX_SIMULATOR_LOG");
    QVERIFY(!saved);
    QVERIFY(unit.get("blendUnit.userSaves") == Value{std::int64_t{0}});
    const QString line = QString::fromUtf8(contentOf(log));
    QCOMPARE(line.mid(line.indexOf(' ') + 1), R"(warning: The parameters are not saved: the file ")" +
                                                  unreachable + ".tmp\" cannot be written\n");
}

void SimulatorMemoryTest::valueThatNoUnitAcceptsIsNotSaved()
{
    QVERIFY(write(name, userFile));
    PoweredOn unit{name};
    unit.set("blendUnit.zoom.factor", std::numeric_limits<double>::quiet_NaN());
    QVERIFY(!unit.device->saveBlendUnitParameters(0));
    QCOMPARE(contentOf(name), userFile);
    QVERIFY(unit.device->saveBlendUnitParameters(1));
    QCOMPARE(damageOf(contentOf(name)), QString{});
}

PILOTEL_TEST_CLASS(SimulatorMemoryTest)
#include "tst_simulator_memory.moc"
