// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The lines of the shell from one run to the next.
#include "history.h"
#include "testclass.h"
#include "unreadablefile.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QIODevice>
#include <QObject>
#include <QString>
#include <QTemporaryDir>
#include <QTest>

#include <string>
#include <sys/stat.h>
#include <vector>

class CtlHistoryTest : public QObject
{
    Q_OBJECT

private slots:
    void keepsLines();
    void leavesOut();
    void isForItsOwnerAlone();
    void isBounded();
    void survivesADamagedFile();
    void beginsInAnEmptyFile();
    void doesWithoutAFile_data();
    void doesWithoutAFile();
    void liesWhereStateIsKept();
};

namespace
{

using Lines = std::vector<std::string>;

QByteArray bytesOf(const QString &name)
{
    QFile file{name};
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray{};
}

bool writeFile(const QString &name, const QByteArray &bytes)
{
    QFile file{name};
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

void CtlHistoryTest::keepsLines()
{
    const QTemporaryDir folder;
    const QString file{folder.filePath("state/pilotel/history")};
    ctl::History first{file};
    ctl::History second{file};
    QCOMPARE(first.load(), Lines{});
    first.add("get camera.gamma");
    second.add("info");
    first.add("set camera.gamma=2.2");
    QCOMPARE(ctl::History{file}.load(), (Lines{"get camera.gamma", "info", "set camera.gamma=2.2"}));
}

void CtlHistoryTest::leavesOut()
{
    const QTemporaryDir folder;
    const QString file{folder.filePath("history")};
    ctl::History history{file};
    for (const char *const line : {"info", "info", "", "\x1b[31m", "two\nlines", "info", "list", "info"}) {
        history.add(line);
    }
    history.add(std::string(100'000, 'x'));
    QCOMPARE(bytesOf(file), QByteArray{"info\nlist\ninfo\n"});
    // The last line of the run before counts as well.
    ctl::History next{file};
    next.load();
    next.add("info");
    QCOMPARE(bytesOf(file), QByteArray{"info\nlist\ninfo\n"});
}

void CtlHistoryTest::isForItsOwnerAlone()
{
    const QTemporaryDir folder;
    const QString file{folder.filePath("history")};
    const mode_t before{::umask(0)};
    ctl::History{file}.add("info");
    struct stat status
    {
    };
    QCOMPARE(::stat(QFile::encodeName(file).constData(), &status), 0);
    QCOMPARE(status.st_mode & 0777U, mode_t{0600});
    // Also once it was shortened.
    QVERIFY(writeFile(file, QByteArray{"info\n"}.repeated(1500)));
    ctl::History{file}.load();
    ::umask(before);
    QCOMPARE(::stat(QFile::encodeName(file).constData(), &status), 0);
    QCOMPARE(status.st_mode & 0777U, mode_t{0600});
}

void CtlHistoryTest::isBounded()
{
    const QTemporaryDir folder;
    const QString file{folder.filePath("history")};
    QByteArray text;
    for (int line{1}; line <= 1500; ++line) {
        text += "get camera " + QByteArray::number(line) + '\n';
    }
    QVERIFY(writeFile(file, text));
    const Lines lines{ctl::History{file}.load()};
    QCOMPARE(lines.size(), std::size_t{1000});
    QCOMPARE(lines.front(), std::string{"get camera 501"});
    QCOMPARE(lines.back(), std::string{"get camera 1500"});
    QCOMPARE(bytesOf(file).count('\n'), 1000);
}

void CtlHistoryTest::survivesADamagedFile()
{
    const QTemporaryDir folder;
    const QString file{folder.filePath("history")};
    QVERIFY(writeFile(file, QByteArray{"info\n\x1b]0;title\x07\n"} + QByteArray(50'000, 'x') +
                                QByteArray{"\n\0\nlist", 7}));
    QCOMPARE(ctl::History{file}.load(), (Lines{"info", "list"}));
    QCOMPARE(bytesOf(file), QByteArray{"info\nlist\n"});
    // The last line was cut, and goes on on no other.
    QVERIFY(writeFile(file, "info\nlis"));
    ctl::History cut{file};
    cut.load();
    cut.add("get camera");
    QCOMPARE(bytesOf(file), QByteArray{"info\nlis\nget camera\n"});
}

void CtlHistoryTest::beginsInAnEmptyFile()
{
    const QTemporaryDir folder;
    const QString file{folder.filePath("history")};
    QVERIFY(writeFile(file, {}));
    ctl::History history{file};
    QCOMPARE(history.load(), Lines{});
    QCOMPARE(bytesOf(file), QByteArray{});
    history.add("größe");
    QCOMPARE(bytesOf(file), QByteArray{"größe\n"});
    QCOMPARE(ctl::History{file}.load(), Lines{"größe"});
}

void CtlHistoryTest::doesWithoutAFile_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("a folder") << "/tmp";
    QTest::newRow("a device") << "/dev/null";
    QTest::newRow("below a file") << "/dev/null/history";
#if defined(Q_OS_LINUX)
    QTest::newRow("a file that nobody can read") << unreadableFile;
    // What stands there has a NUL, so it would be written anew.
    QTest::newRow("a file that nobody can write") << "/proc/self/cmdline";
#endif
    QTest::newRow("no place for it") << "/proc/nowhere/history";
}

void CtlHistoryTest::doesWithoutAFile()
{
    QFETCH(const QString, file);
    ctl::History history{file};
    QCOMPARE(history.load(), Lines{});
    history.add("info");
    QCOMPARE(ctl::History{file}.load(), Lines{});
}

void CtlHistoryTest::liesWhereStateIsKept()
{
    qputenv("XDG_STATE_HOME", "/somewhere/state");
    QCOMPARE(ctl::History::ownFile(), QString{"/somewhere/state/pilotel/history"});
    // One that is not absolute does not count.
    qputenv("XDG_STATE_HOME", "state");
    QCOMPARE(ctl::History::ownFile(), QDir::homePath() + "/.local/state/pilotel/history");
    qunsetenv("XDG_STATE_HOME");
    QCOMPARE(ctl::History::ownFile(), QDir::homePath() + "/.local/state/pilotel/history");
}

PILOTEL_TEST_CLASS(CtlHistoryTest)
#include "tst_ctl_history.moc"
