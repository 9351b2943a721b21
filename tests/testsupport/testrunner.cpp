// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What every test program does: runs one of its test classes, or all of them.
//
// tst_mainwindow                                    every class, one after the other
// tst_mainwindow tst_bad_pixels [ARGUMENT...]       one class; the arguments are Qt Test's
// tst_mainwindow --entries NAME...                  whether these entries of CTest run everything once
#include "testrunner.h"

#include "testclass.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFileInfo>
#include <QLatin1Char>
#include <QMap>
#include <QMetaMethod>
#include <QString>
#include <QStringList>
#include <QTest>

#include <algorithm>
#include <cstdio>

namespace
{

const TestClass *lastRegistered{nullptr};

/// Every class of the program by its name.
QMap<QString, const TestClass *> registeredClasses()
{
    QMap<QString, const TestClass *> classes;
    for (const TestClass *entry{TestClass::last()}; entry != nullptr; entry = entry->previous) {
        classes[QFileInfo{QString::fromUtf8(entry->sourceFile)}.completeBaseName()] = entry;
    }
    return classes;
}

/// BadPixelsTest belongs into tst_bad_pixels.cpp.
bool isNamedForItsFile(const QObject &test, const QString &name)
{
    const QString words{name.mid(static_cast<int>(qstrlen("tst_"))).remove(QLatin1Char{'_'})};
    const QString className{QString::fromLatin1(test.metaObject()->className())};
    return className.compare(words + QStringLiteral("Test"), Qt::CaseInsensitive) == 0 &&
           className.endsWith(QStringLiteral("Test"));
}

/// The functions that Qt Test calls by themselves.
QStringList testFunctionsOf(const QObject &test)
{
    const QStringList fixtures{QStringLiteral("initTestCase"), QStringLiteral("cleanupTestCase"),
                               QStringLiteral("init"), QStringLiteral("cleanup")};
    QStringList functions;
    const QMetaObject &type{*test.metaObject()};
    for (int index{type.methodOffset()}; index < type.methodCount(); ++index) {
        const QMetaMethod method{type.method(index)};
        const QString name{QString::fromLatin1(method.name())};
        if (method.methodType() == QMetaMethod::Slot && method.access() == QMetaMethod::Private &&
            !fixtures.contains(name) && !name.endsWith(QStringLiteral("_data"))) {
            functions.append(name);
        }
    }
    return functions;
}

/// The entries of CTest have to run every class once: by its name, or each of its functions as
/// class.function.
int checkEntries(QStringList entries)
{
    QStringList wrong;
    const auto classes = registeredClasses();
    for (auto entry = classes.begin(); entry != classes.end(); ++entry) {
        const auto test = entry.value()->make();
        if (!isNamedForItsFile(*test, entry.key())) {
            wrong.append(QString::fromLatin1(test->metaObject()->className()) +
                         QStringLiteral(" is not the name for a class in ") + entry.key());
        }
        if (entries.removeOne(entry.key())) {
            continue;
        }
        for (const QString &function : testFunctionsOf(*test)) {
            const QString name{entry.key() + QLatin1Char{'.'} + function};
            if (!entries.removeOne(name)) {
                wrong.append(name + QStringLiteral(" is run by no entry"));
            }
        }
    }
    for (const QString &entry : qAsConst(entries)) {
        wrong.append(QStringLiteral("there is nothing to run for the entry ") + entry);
    }
    for (const QString &line : qAsConst(wrong)) {
        std::fprintf(stderr, "%s\n", qPrintable(line));
    }
    return wrong.isEmpty() ? 0 : 1;
}

int runClasses(const QStringList &arguments)
{
    const auto classes = registeredClasses();
    QStringList names{classes.keys()};
    QStringList rest{arguments};
    const QString program{rest.takeFirst()};
    if (!rest.isEmpty() && !rest.first().startsWith(QLatin1Char{'-'})) {
        const QString name{rest.takeFirst()};
        if (!classes.contains(name)) {
            std::fprintf(stderr, "There is no test class %s; there are:\n  %s\n", qPrintable(name),
                         qPrintable(names.join(QStringLiteral("\n  "))));
            return 1;
        }
        names = QStringList{name};
    }
    int failures{0};
    for (const QString &name : qAsConst(names)) {
        const auto test = classes[name]->make();
        failures += QTest::qExec(test.get(), QStringList{program} + rest);
    }
    return std::min(failures, 127);
}

} // namespace

TestClass::TestClass(const char *itsSourceFile, Make itsMake) noexcept
    : sourceFile{itsSourceFile}, make{itsMake}, previous{lastRegistered}
{
    lastRegistered = this;
}

const TestClass *TestClass::last() noexcept
{
    return lastRegistered;
}

int runTests()
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi, true);

    const QStringList arguments{QCoreApplication::arguments()};
    if (arguments.value(1) == QStringLiteral("--entries")) {
        return checkEntries(arguments.mid(2));
    }
    return runClasses(arguments);
}
