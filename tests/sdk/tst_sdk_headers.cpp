// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Each SDK header compiles on its own, without Qt, under the strict warnings of both compilers.
#include "testclass.h"
#include "toolbox.h"

#include <QByteArray>
#include <QDir>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

namespace
{

/// Compiles a source that includes nothing but the header, twice. No include directory but the SDK's is
/// given, so that Qt is out of reach.
Compilation compileHeader(const QString &compiler, const QString &sdkDirectory, const QString &header)
{
    QStringList arguments{"-std=c++17",
                          "-fsyntax-only",
                          "-Werror",
                          "-Wall",
                          "-Wextra",
                          "-Wpedantic",
                          "-Wconversion",
                          "-Wsign-conversion",
                          "-Wshadow",
                          "-Wnon-virtual-dtor",
                          "-Wold-style-cast",
                          "-Wcast-align",
                          "-Woverloaded-virtual",
                          "-Wnull-dereference",
                          "-Wdouble-promotion",
                          "-Wformat=2",
                          "-Wextra-semi",
                          "-I",
                          sdkDirectory};
    if (compiler == GXX) {
        arguments += {"-Wuseless-cast", "-Wduplicated-cond", "-Wduplicated-branches", "-Wlogical-op"};
    }
    const QByteArray include{"#include \"veltrix_sdk/" + header.toLocal8Bit() + "\"\n"};
    return compile(compiler, arguments, include + include);
}

} // namespace

class SdkHeadersTest : public QObject
{
    Q_OBJECT

private slots:
    void headerCompilesOnItsOwn_data();
    void headerCompilesOnItsOwn();
    void brokenHeaderDoesNotCompile_data();
    void brokenHeaderDoesNotCompile();
};

void SdkHeadersTest::headerCompilesOnItsOwn_data()
{
    QTest::addColumn<QString>("compiler");
    QTest::addColumn<QString>("header");
    const QStringList headers{QDir{SDK_DIRECTORY "/veltrix_sdk"}.entryList({"*.h"}, QDir::Files)};
    QVERIFY(headers.contains("sdk.h"));
    for (const QString &header : headers) {
        QTest::addRow("%s with g++", qPrintable(header)) << QString{GXX} << header;
        QTest::addRow("%s with clang++", qPrintable(header)) << QString{CLANGXX} << header;
    }
}

void SdkHeadersTest::headerCompilesOnItsOwn()
{
    QFETCH(const QString, compiler);
    QFETCH(const QString, header);
    const Compilation compilation{compileHeader(compiler, SDK_DIRECTORY, header)};
    QVERIFY2(compilation.succeeded, qPrintable(compilation.diagnostics));
}

void SdkHeadersTest::brokenHeaderDoesNotCompile_data()
{
    QTest::addColumn<QString>("compiler");
    QTest::addColumn<QString>("header");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("diagnostic");
    const auto row = [](const char *name, const char *header, const QByteArray &before,
                        const QByteArray &after, const char *diagnostic) {
        QTest::addRow("%s with g++", name)
            << QString{GXX} << QString{header} << before << after << QString{diagnostic};
        QTest::addRow("%s with clang++", name)
            << QString{CLANGXX} << QString{header} << before << after << QString{diagnostic};
    };
    row("missing include", "device_control.h", "#include \"veltrix_sdk/records.h\"", "", "FirmwareVersions");
    row("Qt included", "logger.h", "#include <string>", "#include <string>\n#include <QString>", "QString");
    row("no include guard", "records.h", "#pragma once", "", "redefinition");
    row("public destructor", "device_manager.h", "protected:", "public:", "non-virtual-dtor");
}

void SdkHeadersTest::brokenHeaderDoesNotCompile()
{
    QFETCH(const QString, compiler);
    QFETCH(const QString, header);
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);
    QFETCH(const QString, diagnostic);
    const QTemporaryDir copy;
    QVERIFY(copyHeaders(SDK_DIRECTORY, copy.path()));
    QVERIFY(replaceOnce(copy.filePath("veltrix_sdk/" + header), before, after));

    const Compilation compilation{compileHeader(compiler, copy.path(), header)};
    QVERIFY(!compilation.succeeded);
    QVERIFY2(compilation.diagnostics.contains(diagnostic), qPrintable(compilation.diagnostics));
}

PILOTEL_TEST_CLASS(SdkHeadersTest)
#include "tst_sdk_headers.moc"
