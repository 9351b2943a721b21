// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Names of files in messages: as they were typed, and harmless to a terminal.
#include "ctlrun.h"
#include "filenames.h"
#include "testclass.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

class CtlFileNamesTest : public QObject
{
    Q_OBJECT

private slots:
    void areShownAsTheyWereTyped_data();
    void areShownAsTheyWereTyped();
    void ofAnyCommandAreShownSo();
};

void CtlFileNamesTest::areShownAsTheyWereTyped_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("shown");
    const auto row = [](const char *what, const QByteArray &name, const QByteArray &shown) {
        QTest::newRow(what) << name << shown;
    };
    const auto asTyped = [&](const char *what, const QByteArray &name) {
        row(what, name, name);
    };
    asTyped("plain", "C 1~/p.toml");
    asTyped("letters of many kinds", "Wärme, тепло, 温度, 🌡.toml");
    asTyped("a letter in two parts", "Wa\xcc\x88rme");
    asTyped("a space of another width", "a\xc2\xa0"
                                        "b");
    asTyped("200 letters", QByteArray{"ä"}.repeated(200));
    row("201 letters", QByteArray{"ä"}.repeated(201), QByteArray{"ä"}.repeated(200) + "...");
    row("a backslash", R"(a\b)", R"(a\\b)");
    row("a line feed", "a\nb", R"(a\nb)");
    row("a colour", "\x1b[31mä", R"(\x1b[31mä)");
    row("delete", "a\x7f", R"(a\x7f)");
    row("a control character of two bytes",
        "a\xc2\x9b"
        "2J",
        R"(a\xc2\x9b2J)");
    row("the end of a line", "a\xe2\x80\xa8", R"(a\xe2\x80\xa8)");
    row("the end of a paragraph", "a\xe2\x80\xa9", R"(a\xe2\x80\xa9)");
    row("a mark of direction", "a\xe2\x80\x8f", R"(a\xe2\x80\x8f)");
    // In two pieces, so that no text of this file is turned.
    row("the other direction", QByteArray{"a\xe2\x80"} + "\xaelmot.ä", R"(a\xe2\x80\xaelmot.ä)");
    row("an isolated direction", QByteArray{"a\xe2\x81"} + "\xa7", R"(a\xe2\x81\xa7)");
    row("an Arabic mark of direction", "a\xd8\x9c", R"(a\xd8\x9c)");
    row("no width", "a\xe2\x80\x8b", R"(a\xe2\x80\x8b)");
    row("a mark of the order of bytes",
        "\xef\xbb\xbf"
        "a",
        R"(\xef\xbb\xbfa)");
    row("a letter of nobody", "a\xee\x80\x80", R"(a\xee\x80\x80)");
    row("no letter at all", "a\xef\xbf\xbf", R"(a\xef\xbf\xbf)");
    row("a letter in place of damaged ones", "a\xef\xbf\xbd", R"(a\xef\xbf\xbd)");
    row("another encoding", "W\xe4rme", R"(W\xe4rme)");
    row("a letter that is cut", "a\xe6\xb8", R"(a\xe6\xb8)");
    row("a letter that is cut by another", "a\xe6\xb8ä", R"(a\xe6\xb8ä)");
    row("its second byte alone", "a\xa4", R"(a\xa4)");
    row("a slash in two bytes", "a\xc0\xaf", R"(a\xc0\xaf)");
    row("half of a pair", "a\xed\xa0\x80", R"(a\xed\xa0\x80)");
    row("beyond the last letter", "a\xf4\x90\x80\x80", R"(a\xf4\x90\x80\x80)");
    row("a byte that is none of UTF-8", "a\xff\xfe", R"(a\xff\xfe)");
}

void CtlFileNamesTest::areShownAsTheyWereTyped()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QByteArray, shown);
    QCOMPARE(QByteArray::fromStdString(ctl::shownName(name.toStdString())), shown);
}

void CtlFileNamesTest::ofAnyCommandAreShownSo()
{
    CtlFolder folder;
    const QString name{QStringLiteral("Wärme\u009b温度")};
    const QString shown{QStringLiteral("Wärme\\xc2\\x9b温度")};
    QCOMPARE(folder.run({"profile", "save", name}).output, "77 settings saved in " + shown + '\n');
    QVERIFY(folder.has(name));
    // What it has is no profile, no command, no recording and no table of pixels.
    folder.write(name, "[camera]\ngamma = 1\n");
    for (const QStringList &command : {QStringList{"profile", "apply"}, QStringList{"shell"},
                                       QStringList{"recording", "show"}, QStringList{"bad-pixels", "list"}}) {
        const Outcome outcome{folder.run(command + QStringList{name})};
        QVERIFY2(outcome.errors.startsWith("pilotel-ctl: " + shown + ':'), qPrintable(outcome.errors));
        QCOMPARE(outcome.status, 2);
    }
    // A folder that is not there cannot be written into.
    const QString missing{name + "/file"};
    for (const QStringList &command :
         {QStringList{"profile", "save"}, QStringList{"watch", "temperatures", "--count", "1", "--csv"}}) {
        const Outcome outcome{folder.run(command + QStringList{missing})};
        QVERIFY2(outcome.errors.startsWith("pilotel-ctl: " + shown + "/file: "), qPrintable(outcome.errors));
    }
}

PILOTEL_TEST_CLASS(CtlFileNamesTest)
#include "tst_ctl_file_names.moc"
