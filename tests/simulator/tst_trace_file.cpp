// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The file of a trace or a recording: what becomes of an earlier one, also when several begin at once.
#include "calls/tracefile.h"
#include "contents.h"
#include "testclass.h"
#include "unreadablefile.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QList>
#include <QObject>
#include <QString>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

using namespace veltrix_simulator;

namespace
{

std::filesystem::path pathOf(const QString &name)
{
    return std::filesystem::u8path(name.toStdString());
}

QByteArray lineOf(int number)
{
    return R"({"trace":1,"number":)" + QByteArray::number(number) + "}\n";
}

bool writeLine(TraceFile &file, int number)
{
    return file.write(lineOf(number).toStdString());
}

} // namespace

class TraceFileTest : public QObject
{
    Q_OBJECT

private slots:
    void linesAreThereAtOnce();
    void earlierFileIsKept();
#if defined(Q_OS_LINUX)
    void whatCannotBeKeptIsLeft();
    void whatCannotBeReadIsLeft();
#endif
    void noneIsLostWhenSeveralBegin();
};

void TraceFileTest::linesAreThereAtOnce()
{
    const QTemporaryDir directory;
    const QString name{directory.filePath("session")};
    TraceFile file;
    QVERIFY(!file.isOpen());
    QCOMPARE(file.open(pathOf(name), TraceFile::Earlier::Kept), TraceFile::Opening::Done);
    QVERIFY(writeLine(file, 1));
    QCOMPARE(contentOf(name), lineOf(1));
    QVERIFY(writeLine(file, 2));
    QCOMPARE(contentOf(name), lineOf(1) + lineOf(2));
}

void TraceFileTest::earlierFileIsKept()
{
    const QTemporaryDir directory;
    const QString name{directory.filePath("session")};
    for (const int number : {1, 2}) {
        TraceFile file;
        QCOMPARE(file.open(pathOf(name), TraceFile::Earlier::Kept), TraceFile::Opening::Done);
        QVERIFY(writeLine(file, number));
    }
    QCOMPARE(contentOf(name), lineOf(2));
    QCOMPARE(contentOf(name + ".~1~"), lineOf(1));
}

#if defined(Q_OS_LINUX)
void TraceFileTest::whatCannotBeKeptIsLeft()
{
    const QTemporaryDir directory;
    // There is no room for more letters.
    constexpr int longestName{255};
    const QString name{directory.filePath(QString{longestName, 'x'})};
    TraceFile file;
    QCOMPARE(file.open(pathOf(name), TraceFile::Earlier::Kept), TraceFile::Opening::Done);
    QVERIFY(writeLine(file, 1));
    file.close();
    const TraceFile::Opening opening{file.open(pathOf(name), TraceFile::Earlier::Kept)};
    const int reason{errno};
    QCOMPARE(opening, TraceFile::Opening::Unwritable);
    QCOMPARE(reason, ENAMETOOLONG);
    QVERIFY(!file.isOpen());
    QCOMPARE(contentOf(name), lineOf(1));
    QCOMPARE(QDir{directory.path()}.entryList(QDir::Files).size(), 1);
}

void TraceFileTest::whatCannotBeReadIsLeft()
{
    // It may be anything.
    for (const auto earlier : {TraceFile::Earlier::Kept, TraceFile::Earlier::Replaced}) {
        TraceFile file;
        QCOMPARE(file.open(unreadableFile, earlier), TraceFile::Opening::OtherFile);
        QVERIFY(!file.isOpen());
    }
}
#endif

void TraceFileTest::noneIsLostWhenSeveralBegin()
{
#if defined(Q_OS_WIN)
    QSKIP("Windows renames no file that is open.");
#endif
    constexpr int programs{4};
    constexpr int times{40};
    const QTemporaryDir directory;
    const std::filesystem::path path{pathOf(directory.filePath("session"))};
    std::atomic<int> failed{0};
    std::vector<std::thread> running;
    for (int program{0}; program < programs; ++program) {
        running.emplace_back([&, program] {
            for (int time{0}; time < times; ++time) {
                TraceFile file;
                const bool isOpen{file.open(path, TraceFile::Earlier::Kept) == TraceFile::Opening::Done};
                failed += isOpen && writeLine(file, program * times + time) ? 0 : 1;
            }
        });
    }
    for (std::thread &each : running) {
        each.join();
    }
    QCOMPARE(failed.load(), 0);

    QList<QByteArray> found;
    for (const QFileInfo &file : QDir{directory.path()}.entryInfoList(QDir::Files)) {
        found += contentOf(file.filePath()).split('\n');
    }
    found.removeAll({});
    QList<QByteArray> expected;
    for (int number{0}; number < programs * times; ++number) {
        expected.append(lineOf(number).chopped(1));
    }
    std::sort(found.begin(), found.end());
    std::sort(expected.begin(), expected.end());
    QCOMPARE(found, expected);
}

PILOTEL_TEST_CLASS(TraceFileTest)
#include "tst_trace_file.moc"
