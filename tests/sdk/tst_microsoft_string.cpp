// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// std::string in the layout of Microsoft's library.
#include "testclass.h"
#include "veltrix_sdk/microsoft_string.h"

#include <QByteArray>
#include <QObject>
#include <QTest>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

using veltrix_sdk::MicrosoftString;

namespace
{

/// The object as it lies in memory.
struct Words
{
    char inPlace[16];
    std::uint64_t size;
    std::uint64_t capacity;
};

Words wordsOf(const MicrosoftString &text)
{
    static_assert(sizeof(Words) == sizeof(MicrosoftString));
    Words words{};
    std::memcpy(&words, &text, sizeof words);
    return words;
}

} // namespace

class MicrosoftStringTest : public QObject
{
    Q_OBJECT

private slots:
    void textIsReadBack_data() { addTexts(); }
    void textIsReadBack();
    void shortTextLiesInTheObject_data() { addTexts(); }
    void shortTextLiesInTheObject();

private:
    static void addTexts();
};

void MicrosoftStringTest::addTexts()
{
    QTest::addColumn<QByteArray>("text");
    for (const int length : {0, 1, 14, 15, 16, 17, 1000}) {
        QTest::addRow("%d characters", length) << QByteArray(length, 'x');
    }
    QTest::newRow("a NUL in the midst") << QByteArray{"one\0two", 7};
}

void MicrosoftStringTest::textIsReadBack()
{
    QFETCH(const QByteArray, text);
    const std::string kept{text.toStdString()};
    QCOMPARE(std::string{MicrosoftString{kept}.view()}, kept);
}

void MicrosoftStringTest::shortTextLiesInTheObject()
{
    QFETCH(const QByteArray, text);
    const std::string kept{text.toStdString()};
    const MicrosoftString microsofts{kept};
    const Words words{wordsOf(microsofts)};
    QCOMPARE(words.size, std::uint64_t{kept.size()});
    if (kept.size() < 16) {
        QCOMPARE(words.capacity, std::uint64_t{15});
        QCOMPARE((std::string{words.inPlace, kept.size()}), kept);
        QCOMPARE(words.inPlace[kept.size()], '\0');
    } else {
        QVERIFY(words.capacity >= words.size);
        const char *pointer{nullptr};
        std::memcpy(&pointer, words.inPlace, sizeof pointer);
        QCOMPARE(static_cast<const void *>(pointer), static_cast<const void *>(kept.data()));
    }
}

PILOTEL_TEST_CLASS(MicrosoftStringTest)
#include "tst_microsoft_string.moc"
