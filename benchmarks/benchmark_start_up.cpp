// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a start costs until the window is shown: as the program starts, and the window alone.
#include "appearance.h"
#include "fittedwindow.h"
#include "mainwindow.h"
#include "operatorinput.h"
#include "scaling.h"

#include <QApplication>
#include <QByteArray>
#include <QFile>
#include <QList>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <ctime>
#include <memory>
#include <optional>

namespace
{

constexpr int starts{31};

/// A start as a process of its own.
struct Start
{
    double milliseconds; ///< Of processor time.
    double kilobytes;    ///< Of memory that is resident.
};

double residentKilobytes()
{
    QFile status{QStringLiteral("/proc/self/status")};
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) {
            return line.mid(6).trimmed().split(' ').first().toDouble();
        }
    }
    return 0;
}

/// The process that is measured. It tells what it took once its window is shown.
int start(int argc, char *argv[], bool asTheProgram)
{
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    if (asTheProgram) {
        followDesktopScaling();
    }
    const QApplication application{argc, argv};
    std::optional<OperatorInput> operatorInput;
    if (asTheProgram) {
        setAppearance();
        operatorInput.emplace();
    }
    MainWindow window{nullptr};
    std::unique_ptr<FittedWindow> fitted;
    if (asTheProgram) {
        QApplication::setWindowIcon(window.windowIcon());
        window.setSequenceObserver([&operatorInput](bool running) { operatorInput->sequenceRuns(running); });
        fitted = fitToScreen(window);
    }
    window.show();
    QCoreApplication::processEvents();
    QTextStream{stdout} << 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC << ' '
                        << residentKilobytes() << '\n';
    return 0;
}

Start measure(const QString &kind)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {kind});
    process.waitForFinished();
    const QStringList lines{QString::fromUtf8(process.readAllStandardOutput()).trimmed().split('\n')};
    const QStringList figures{lines.last().split(' ')};
    if (figures.size() != 2) {
        qFatal("a start failed: %s", process.readAllStandardError().constData());
    }
    return {figures.first().toDouble(), figures.last().toDouble()};
}

double median(QList<Start> all, double Start::*figure)
{
    const auto middle = all.begin() + all.size() / 2;
    std::nth_element(all.begin(), middle, all.end(), [figure](const Start &left, const Start &right) {
        return left.*figure < right.*figure;
    });
    return (*middle).*figure;
}

} // namespace

int main(int argc, char *argv[])
{
    const QString program{QStringLiteral("program")};
    if (argc > 1) {
        return start(argc, argv, argv[1] == program);
    }
    const QCoreApplication application{argc, argv};
    QList<Start> asTheProgram;
    QList<Start> alone;
    for (int run{0}; run < starts; ++run) {
        asTheProgram.append(measure(program));
        alone.append(measure(QStringLiteral("window")));
    }
    QTextStream out{stdout};
    out << "                    processor [ms]   memory [kB]\n";
    out << "as the program      " << median(asTheProgram, &Start::milliseconds) << "   "
        << median(asTheProgram, &Start::kilobytes) << '\n';
    out << "the window alone    " << median(alone, &Start::milliseconds) << "   "
        << median(alone, &Start::kilobytes) << '\n';
    return 0;
}
