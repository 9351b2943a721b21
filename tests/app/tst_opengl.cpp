// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the program asks Qt for on X11: no OpenGL, unless somebody wants it.
#include "program.h"
#include "testclass.h"
#include "virtualscreen.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTest>

namespace
{

constexpr const char *variable{"QT_XCB_GL_INTEGRATION"};

/// The files of a process that start OpenGL: Qt's plugins for it and Mesa's drivers. Qt itself is linked with
/// libGL, which costs little as long as nobody starts it.
QStringList startersOfOpenGl(qint64 process)
{
    QFile maps{QStringLiteral("/proc/%1/maps").arg(process)};
    if (!maps.open(QIODevice::ReadOnly)) {
        return {"nobody knows"};
    }
    static const QRegularExpression starter{"/([^/]*(-glx-integration|-egl-integration|_mesa|_dri)\\.so)"};
    QStringList files;
    for (const QString &line : QString::fromUtf8(maps.readAll()).split('\n')) {
        const QRegularExpressionMatch match{starter.match(line)};
        if (match.hasMatch()) {
            files.append(match.captured(1));
        }
    }
    files.removeDuplicates();
    return files;
}

/// The same of the program with its window on a screen.
QStringList startersInTheProgram(QProcessEnvironment environment)
{
    const VirtualScreen screen{QSize{1920, 1080}, 40};
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("DISPLAY", screen.name());
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(PROGRAM, QStringList{});
    QStringList files{screen.shows("Veltrix BU Pilotel") ? startersOfOpenGl(program.processId())
                                                         : QStringList{"no window"}};
    program.kill();
    program.waitForFinished();
    return files;
}

} // namespace

class OpenGlTest : public QObject
{
    Q_OBJECT

private slots:
    void isNotLoadedWhereNobodyAsksForIt();
    void isLoadedWhereTheEnvironmentAsksForIt();
};

void OpenGlTest::isNotLoadedWhereNobodyAsksForIt()
{
    QProcessEnvironment environment{programEnvironment()};
    environment.remove(variable);
    QCOMPARE(startersInTheProgram(environment), QStringList{});
}

void OpenGlTest::isLoadedWhereTheEnvironmentAsksForIt()
{
    QProcessEnvironment environment{programEnvironment()};
    environment.insert(variable, "xcb_glx");
    const QStringList files{startersInTheProgram(environment)};
    QVERIFY2(files.contains("libqxcb-glx-integration.so"), qPrintable(files.join(' ')));
}

PILOTEL_TEST_CLASS(OpenGlTest)
#include "tst_opengl.moc"
