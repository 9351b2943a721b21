// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What is taken out of texts before they are recorded.
#include "privatetext.h"
#include "testclass.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTest>

#include <string>
#include <string_view>
#include <vector>

class PrivateTextTest : public QObject
{
    Q_OBJECT

private slots:
    void textReads_data();
    void textReads();
    void textsWithNothingPrivateAreTheSame();
    void homeMayBeNoPath();
    void environmentNamesTheUser();
    void nullStaysNull();
};

namespace
{

recording::PrivateText ofJane()
{
    return {{"/home/jane", R"(C:\Users\Jane Doe)", "/", ""}, {"jdoe", ""}};
}

} // namespace

void PrivateTextTest::textReads_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("told");
    const auto row = [](const char *text, const char *told) {
        QTest::addRow("%s", text) << QByteArray{text} << QByteArray{told};
    };
    const auto same = [&](const char *text) {
        row(text, text);
    };

    same("");
    same("SIM1");
    same("COM7");
    same("Set GAMMA value OK");
    same("RISC-V version = 2.1.4 / FPGA version = 3.0.6");
    same("1/2, and/or, n/a, 60 /s");
    same("bpr_SN10417.bin is damaged");
    same("janet, jdoes, xjane and JDOE2 are others");
    same("a: b, C: d");
    same("'/', \"~\", `/s`, / and ~");
    same("\xC3\xA9 \xFF\n\t");

    row("/dev/ttyUSB0", "ttyUSB0");
    row("/dev/serial/by-id/usb-KR_10417-port0", "usb-KR_10417-port0");
    row(R"(\\.\COM12)", "COM12");
    row("/home/jane/cameras/bpr.bin is damaged", "bpr.bin is damaged");
    row("read ~/cameras/bpr.bin", "read bpr.bin");
    row("read ~jdoe/bpr.bin", "read bpr.bin");
    row("read \"/home/jane/my cameras/bpr 1.bin\": no", "read \"bpr 1.bin\": no");
    row("'/srv/a b/c d.bin'", "'c d.bin'");
    row("\"/srv/a/b.bin without an end", "\"b.bin without an end");
    row(R"(C:\Users\Jane Doe\cameras\bpr.bin:12: wrong)", "bpr.bin:12: wrong");
    row("c:/users/jane doe/bpr.bin", "bpr.bin");
    row(R"((D:\delivery\veltrix.sdk.dll))", "(veltrix.sdk.dll)");
    row(R"(\\server\jane\bpr.bin)", "bpr.bin");
    row("file:///home/jane/bpr.bin", "file:bpr.bin");
    row("/srv/a:/srv/b", "a:b");
    row("/srv/a:", "a:");
    row("/home/jane/", "USER");
    row("/home/jane", "USER");
    row("/jane", "/USER");
    row("/srv/jdoe", "USER");
    row("/srv/a/port of jdoe", "port of USER");
    row("jdoe", "USER");
    row("Jane Doe's camera, JANE's and jdoe-1", "USER's camera, USER's and USER-1");
}

void PrivateTextTest::textReads()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QByteArray, told);
    recording::PrivateText texts{ofJane()};
    const std::string_view whole{texts.without(std::string_view{text.constData(), std::size_t(text.size())})};
    QCOMPARE(QByteArray(whole.data(), int(whole.size())), told);
    QCOMPARE(QByteArray{texts.without(text.constData())}, told);
}

void PrivateTextTest::textsWithNothingPrivateAreTheSame()
{
    recording::PrivateText texts{ofJane()};
    const char *const text{"Set GAMMA value OK"};
    QCOMPARE(texts.without(text), text);
    const std::string_view withNul{"a\0b", 3};
    QCOMPARE(texts.without(withNul).data(), withNul.data());
    QCOMPARE(texts.without(withNul).size(), withNul.size());
    QCOMPARE(texts.without(std::string_view{"jdoe\0jdoe", 9}), (std::string_view{"USER\0USER", 9}));
}

void PrivateTextTest::homeMayBeNoPath()
{
    recording::PrivateText texts{std::vector<std::string>{"jane"}, {}};
    QCOMPARE(QString{texts.without("jane and /srv/jane/a")}, QString{"USER and a"});
}

void PrivateTextTest::environmentNamesTheUser()
{
    qputenv("HOME", "/home/of/mary");
    qputenv("USERPROFILE", R"(D:\People\anna)");
    qputenv("USER", "mmoore");
    qputenv("USERNAME", "asmith");
    qunsetenv("LOGNAME");
    qunsetenv("SUDO_USER");
    recording::PrivateText texts{recording::PrivateText::ofThisUser()};
    QCOMPARE(QString{texts.without("mary, anna, mmoore, asmith: others")},
             QString{"USER, USER, USER, USER: others"});
}

void PrivateTextTest::nullStaysNull()
{
    recording::PrivateText texts{ofJane()};
    QVERIFY(texts.without(static_cast<const char *>(nullptr)) == nullptr);
}

PILOTEL_TEST_CLASS(PrivateTextTest)
#include "tst_private_text.moc"
