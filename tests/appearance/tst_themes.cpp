// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The program on desktops with a light and with a dark theme.
#include "program.h"
#include "testclass.h"
#include "virtualscreen.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace
{

/// The settings of a desktop of which Qt itself reads the colours.
void writeTheme(const QString &fileName, const QByteArray &background, const QByteArray &text)
{
    QFile file{fileName};
    QVERIFY(file.open(QIODevice::WriteOnly));
    for (const char *const group : {"Window", "View", "Button", "Tooltip", "Selection"}) {
        file.write(QByteArray{"[Colors:"} + group + "]\nBackgroundNormal=" + background +
                   "\nBackgroundAlternate=" + background + "\nForegroundNormal=" + text + '\n');
    }
}

} // namespace

class ThemesTest : public QObject
{
    Q_OBJECT

private slots:
    void theColoursAreTheStylesOwn_data();
    void theColoursAreTheStylesOwn();
    void openGlIsLoadedWhereItIsAskedFor();
};

void ThemesTest::theColoursAreTheStylesOwn_data()
{
    QTest::addColumn<QByteArray>("background");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("light") << QByteArray{"239,240,241"} << QByteArray{"35,38,41"};
    QTest::newRow("dark") << QByteArray{"35,38,41"} << QByteArray{"239,240,241"};
}

void ThemesTest::theColoursAreTheStylesOwn()
{
    QFETCH(QByteArray, background);
    QFETCH(QByteArray, text);
    const VirtualScreen screen{QSize{1920, 1080}, 40};
    QVERIFY(!screen.name().isEmpty());
    const QTemporaryDir directory;
    writeTheme(directory.filePath("kdeglobals"), background, text);

    QProcessEnvironment environment{programEnvironment()};
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("DISPLAY", screen.name());
    environment.insert("QT_QPA_PLATFORMTHEME", "kde");
    environment.insert("QT_STYLE_OVERRIDE", "fusion");
    environment.insert("KDE_SESSION_VERSION", "5");
    environment.insert("XDG_CONFIG_HOME", directory.path());
    environment.insert("PILOTEL_TEST_REPORT", directory.filePath("report"));
    const Outcome outcome{run(PROGRAM, {"-plugin", "tellcolours"}, environment)};
    QVERIFY2(outcome.exited, qPrintable(outcome.errors));
    QCOMPARE(outcome.status, 0);
    const QStringList ofFusion{
        "widgets #000000 #ffffff #000000 #efefef #000000 #ffffdc #000000",
        "tool tips #000000",
        "icon in 5 sizes",
        "OpenGL is not loaded",
    };
    QCOMPARE(linesOf(directory.filePath("report")).join('\n'), ofFusion.join('\n'));
}

void ThemesTest::openGlIsLoadedWhereItIsAskedFor()
{
    const VirtualScreen screen{QSize{1920, 1080}, 40};
    const QTemporaryDir directory;
    QProcessEnvironment environment{programEnvironment()};
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("DISPLAY", screen.name());
    environment.insert("QT_XCB_GL_INTEGRATION", "xcb_glx");
    environment.insert("PILOTEL_TEST_REPORT", directory.filePath("report"));
    // OpenGL's libraries leave memory behind, which the sanitizers tell by the exit status.
    const Outcome outcome{run(PROGRAM, {"-plugin", "tellcolours"}, environment)};
    QVERIFY2(outcome.exited, qPrintable(outcome.errors));
    QCOMPARE(linesOf(directory.filePath("report")).value(3), QString{"OpenGL is loaded"});
}

PILOTEL_TEST_CLASS(ThemesTest)
#include "tst_themes.moc"
