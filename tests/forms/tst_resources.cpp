// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How the resource collection makes itself known to Qt: takes the place of Qt's own function in this program,
// for calls of static initialisers as well.
#include "testclass.h"

#include <QVector>
#include <QtTest>

#include <dlfcn.h>

Q_CORE_EXPORT bool qRegisterResourceData(int version, const unsigned char *tree, const unsigned char *names,
                                         const unsigned char *data);

namespace
{

/// Where the code or data of a library or of this program begins; null when the address is in none of them.
const void *imageOf(const void *address)
{
    Dl_info information{};
    return dladdr(address, &information) != 0 ? information.dli_fbase : nullptr;
}

/// The format versions of the collections in this program, in the order of their registration.
QVector<int> &versions()
{
    static QVector<int> versionsOfThisProgram;
    return versionsOfThisProgram;
}

} // namespace

bool qRegisterResourceData(int version, const unsigned char *tree, const unsigned char *names,
                           const unsigned char *data)
{
    static const char inThisProgram{0};
    // Qt's libraries bring collections of their own.
    if (imageOf(tree) == imageOf(&inThisProgram)) {
        versions().append(version);
    }
    static const auto registerWithQt = reinterpret_cast<decltype(&qRegisterResourceData)>(
        dlsym(RTLD_NEXT, "_Z21qRegisterResourceDataiPKhS0_S0_"));
    return registerWithQt(version, tree, names, data);
}

class ResourcesTest : public QObject
{
    Q_OBJECT

private slots:
    void areOfFormatVersion2();
};

void ResourcesTest::areOfFormatVersion2()
{
    QCOMPARE(versions(), QVector<int>{2});
    QVERIFY(QFile::exists(":/picture/camera.ico"));
}

PILOTEL_TEST_CLASS(ResourcesTest)
#include "tst_resources.moc"
