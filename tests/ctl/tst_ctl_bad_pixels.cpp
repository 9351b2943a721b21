// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The table of bad pixels from the shell: read, listed, painted, declared, written.
#include "ctlrun.h"
#include "testclass.h"

#include <QDir>
#include <QImage>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

class CtlBadPixelsTest : public QObject
{
    Q_OBJECT

private slots:
    void readsAndLists();
    void listsAFileWithoutADevice();
    void paintsThePixels();
    void declares();
    void declaresARowAndAColumn();
    void writesToTheUnit();
    void takesTheOtherUnit();
    void tellsRefusedPixels();
    void tellsHowFarItCameWhenTheCameraIsGone_data();
    void tellsHowFarItCameWhenTheCameraIsGone();
    void tellsARefusedTransfer();
    void tellsThatTheFileCannotBeWritten();
    void refusesWrongUse_data();
    void refusesWrongUse();
};

namespace
{

const QStringList factory{"611,7", "113,58", "114,58", "320,239", "17,402"};

} // namespace

void CtlBadPixelsTest::readsAndLists()
{
    CtlFolder folder;
    const Outcome read{folder.run({"bad-pixels", "read"})};
    QCOMPARE(read.output, lines({"The table of bad pixels of the camera is in bpr_SN10417.bin"}));
    QCOMPARE(read.status, 0);
    QCOMPARE(folder.commands(), QStringList{"readBprTable(4096, 16384, 9)"});
    const Outcome list{folder.run({"bad-pixels", "list"})};
    QCOMPARE(list.output, lines(factory));
    QCOMPARE(list.errors, QString{});
    QCOMPARE(list.status, 0);
}

void CtlBadPixelsTest::listsAFileWithoutADevice()
{
    CtlFolder folder;
    QCOMPARE(folder.run({"bad-pixels", "read"}).status, 0);
    const Outcome list{folder.run({"bad-pixels", "list", "bpr_SN10417.bin"})};
    QCOMPARE(list.output, lines(factory));
    QCOMPARE(folder.calls().filter("openDevice"), QStringList{});
}

void CtlBadPixelsTest::paintsThePixels()
{
    CtlFolder folder;
    QCOMPARE(folder.run({"bad-pixels", "read"}).status, 0);
    QCOMPARE(folder.run({"bad-pixels", "list", "--picture", "bad.png"}).output, lines(factory));
    const QImage picture{folder.path("bad.png")};
    QCOMPARE(picture.size(), QSize(640, 480));
    QStringList red;
    for (int y{0}; y < picture.height(); ++y) {
        for (int x{0}; x < picture.width(); ++x) {
            if (picture.pixel(x, y) == qRgb(255, 60, 60)) {
                red.append(QString{"%1,%2"}.arg(x).arg(y));
            } else {
                QCOMPARE(picture.pixel(x, y), qRgb(40, 40, 40));
            }
        }
    }
    QCOMPARE(red, factory);
}

void CtlBadPixelsTest::declares()
{
    CtlFolder folder;
    const Outcome added{folder.run({"bad-pixels", "add", "0,0", "639,479"})};
    QCOMPARE(added.output, lines({"2 of 2 pixels added to bpr_SN10417.bin"}));
    QCOMPARE(added.status, 0);
    QCOMPARE(folder.commands(), (QStringList{"addBadPixel(0, 0)", "addBadPixel(639, 479)"}));
    QCOMPARE(folder.run({"bad-pixels", "list"}).output,
             lines(QStringList{"0,0"} + factory + QStringList{"639,479"}));
    const Outcome removed{folder.run({"bad-pixels", "remove", "0,0"})};
    QCOMPARE(removed.output, lines({"1 of 1 pixel removed from bpr_SN10417.bin"}));
    QCOMPARE(folder.run({"bad-pixels", "list"}).output, lines(factory + QStringList{"639,479"}));
}

void CtlBadPixelsTest::declaresARowAndAColumn()
{
    CtlFolder folder;
    QCOMPARE(folder.run({"bad-pixels", "add", "--row", "3", "--column", "5"}).output,
             lines({"1120 of 1120 pixels added to bpr_SN10417.bin"}));
    const QStringList commands{folder.commands()};
    QCOMPARE(commands.size(), 1120);
    QCOMPARE(commands.mid(638, 4), (QStringList{"addBadPixel(638, 3)", "addBadPixel(639, 3)",
                                                "addBadPixel(5, 0)", "addBadPixel(5, 1)"}));
}

void CtlBadPixelsTest::writesToTheUnit()
{
    CtlFolder folder;
    QCOMPARE(folder.run({"bad-pixels", "add", "1,2"}).status, 0);
    const Outcome outcome{folder.run({"bad-pixels", "write"})};
    QCOMPARE(outcome.output, lines({"bpr_SN10417.bin is now the table of bad pixels of the camera"}));
    QCOMPARE(outcome.status, 0);
    QCOMPARE(folder.commands(), QStringList{"writeBprTable(4096, 16384, 8)"});
}

void CtlBadPixelsTest::takesTheOtherUnit()
{
    CtlFolder folder;
    QCOMPARE(folder.run({"bad-pixels", "read", "--unit", "blendUnit"}).output,
             lines({"The table of bad pixels of the Blend Unit is in bpr_SN2063.bin"}));
    QCOMPARE(folder.run({"bad-pixels", "list", "--unit", "blendUnit"}).output, QString{});
}

void CtlBadPixelsTest::tellsRefusedPixels()
{
    CtlFolder folder;
    folder.play("[[fault]]\noperation = \"addBadPixel\"\nonCall = 2\neffect = \"refuse\"\n");
    const Outcome outcome{folder.run({"bad-pixels", "add", "1,1", "2,2", "3,3"})};
    QCOMPARE(outcome.output, lines({"2 of 3 pixels added to bpr_SN10417.bin"}));
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: Pixel 2,2 is refused by the camera."}));
    QCOMPARE(outcome.status, 1);
}

void CtlBadPixelsTest::tellsHowFarItCameWhenTheCameraIsGone_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QStringList>("bad"); ///< What is in the file then.
    QTest::newRow("add") << "addBadPixel" << QStringList{"add", "1,1", "2,2", "3,3", "4,4"}
                         << "2 of 4 pixels added to bpr_SN10417.bin" << (QStringList{"1,1", "2,2"} + factory);
    QTest::newRow("remove") << "removeBadPixel"
                            << QStringList{"remove", "611,7", "113,58", "114,58", "320,239"}
                            << "2 of 4 pixels removed from bpr_SN10417.bin" << QStringList(factory.mid(2));
}

void CtlBadPixelsTest::tellsHowFarItCameWhenTheCameraIsGone()
{
    QFETCH(const QString, operation);
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, output);
    QFETCH(const QStringList, bad);
    CtlFolder folder;
    folder.play("[[fault]]\noperation = \"" + operation + "\"\nonCall = 3\neffect = \"cableOut\"\n");
    const Outcome outcome{folder.run(QStringList{"bad-pixels"} + arguments)};
    QCOMPARE(outcome.output, lines({output}));
    QCOMPARE(outcome.errors,
             lines({"pilotel-ctl: No answer from the camera: look at its power and its cable."}));
    QCOMPARE(outcome.status, 3);
    QCOMPARE(folder.run({"bad-pixels", "list"}).output, lines(bad));
}

void CtlBadPixelsTest::tellsARefusedTransfer()
{
    CtlFolder folder;
    const Outcome write{folder.run({"bad-pixels", "write"})};
    QCOMPARE(write.errors, lines({"pilotel-ctl: bpr_SN10417.bin could not be written to the camera."}));
    QCOMPARE(write.status, 1);
    folder.play("[[fault]]\noperation = \"readBprTable\"\neffect = \"refuse\"\n");
    const Outcome read{folder.run({"bad-pixels", "read"})};
    QCOMPARE(read.errors, lines({"pilotel-ctl: The table of bad pixels could not be read from the camera."}));
    QCOMPARE(read.status, 1);
}

void CtlBadPixelsTest::tellsThatTheFileCannotBeWritten()
{
    CtlFolder folder;
    QVERIFY(QDir{folder.path(".")}.mkdir("bpr_SN10417.bin"));
    const Outcome outcome{folder.run({"bad-pixels", "read"})};
    QCOMPARE(outcome.output, QString{});
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: bpr_SN10417.bin: Filename refers to a directory"}));
    QCOMPARE(outcome.status, 2);
    QCOMPARE(folder.commands(), QStringList{});
}

void CtlBadPixelsTest::refusesWrongUse_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    const auto row = [](const QStringList &arguments, const QString &error) {
        QTest::addRow("%s", qPrintable(arguments.join(' '))) << arguments << error;
    };
    row({"add"}, "Name pixels as COLUMN,ROW from 0,0 to 639,479, or --row or --column.");
    row({"add", "640,0"}, "\"640,0\" is no pixel: COLUMN,ROW from 0,0 to 639,479 is allowed");
    row({"add", "0,480"}, "\"0,480\" is no pixel: COLUMN,ROW from 0,0 to 639,479 is allowed");
    row({"add", "1"}, "\"1\" is no pixel: COLUMN,ROW from 0,0 to 639,479 is allowed");
    row({"add", "1;2"}, "\"1;2\" is no pixel: COLUMN,ROW from 0,0 to 639,479 is allowed");
    row({"add", "1,x"}, "\"1,x\" is no pixel: COLUMN,ROW from 0,0 to 639,479 is allowed");
    row({"add", "1,2,3"}, "\"1,2,3\" is no pixel: COLUMN,ROW from 0,0 to 639,479 is allowed");
    row({"add", "99999999999,2"}, "\"99999999999,2\" is no pixel: COLUMN,ROW from 0,0 to 639,479 is allowed");
#if defined(Q_OS_WIN)
    const QString ofSystem{"File not found."};
#else
    const QString ofSystem{"No such file or directory"};
#endif
    row({"list", "none.bin"},
        "none.bin: " + ofSystem + "; \"pilotel-ctl bad-pixels read\" fetches the table of a unit");
    row({"list", "text.bin"}, "text.bin: it is no table of bad pixels");
}

void CtlBadPixelsTest::refusesWrongUse()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, error);
    CtlFolder folder;
    folder.write("text.bin", "nothing");
    const Outcome outcome{folder.run(QStringList{"bad-pixels"} + arguments)};
    QCOMPARE(outcome.output, QString{});
    QCOMPARE(outcome.errors, lines({"pilotel-ctl: " + error}));
    QCOMPARE(outcome.status, 2);
    QCOMPARE(folder.calls().filter("openDevice"), QStringList{});
}

PILOTEL_TEST_CLASS(CtlBadPixelsTest)
#include "tst_ctl_bad_pixels.moc"
