// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What painting the log during a sequence costs without latency, and when its lines are on the screen on a
// slow link.
#include "mainwindow.h"
#include "operatedwindow.h"
#include "veltrix_simulator/simulator.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QTextStream>
#include <QVector>

using veltrix_simulator::Simulator;

namespace
{

constexpr int runs{50};

double milliseconds(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// When the lines of a sequence are written, and when they are painted.
class Times : public QObject
{
public:
    explicit Times(QPlainTextEdit &log)
    {
        log.viewport()->installEventFilter(this);
        connect(log.document(), &QTextDocument::contentsChanged, this,
                [this] { written.append(milliseconds(timer)); });
        timer.start();
    }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            painted.append(milliseconds(timer));
        }
        return false;
    }

    QElapsedTimer timer;
    QVector<double> written;
    QVector<double> painted;
};

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application{argc, argv};
    QTextStream out{stdout};
    out.setRealNumberNotation(QTextStream::FixedNotation);
    out.setRealNumberPrecision(3);

    Simulator::instance().setJournalEnabled(false);
    {
        MainWindow window;
        window.show();
        const OperatedWindow operated{window};
        operated.connectDevice();
        auto &log = operated.child<QPlainTextEdit>("logView");
        for (const char *const handler : {"readAllParameters", "ResetParamsUser", "addBadPixelLineClicked"}) {
            double sequences{0};
            double paintings{0};
            qsizetype painted{0};
            for (int run{0}; run < runs; ++run) {
                const Times times{log};
                operated.invoke(handler);
                sequences += milliseconds(times.timer);
                painted += times.painted.size();
                // What one painting takes, with as much to paint.
                QElapsedTimer painting;
                painting.start();
                log.viewport()->repaint();
                paintings += milliseconds(painting);
                QCoreApplication::processEvents();
            }
            const double share{static_cast<double>(painted) * (paintings / runs) / sequences};
            out << handler << ": " << sequences / runs << " ms, " << painted << " paintings in " << runs
                << " runs, " << paintings / runs << " ms each, " << share * 100.0 << " % of the time"
                << Qt::endl;
        }
    }

    Simulator::instance().loadScenario("slow-link");
    MainWindow window;
    window.show();
    QCoreApplication::processEvents();
    const OperatedWindow operated{window};
    const Times times{operated.child<QPlainTextEdit>("logView")};
    operated.connectDevice();
    out << "slow-link, connect: first line written after " << times.written.value(0) << " ms, painted after "
        << times.painted.value(0) << " ms; second line, which follows two commands, written after "
        << times.written.value(1) << " ms; " << times.painted.size() << " paintings for "
        << times.written.size() << " lines in " << milliseconds(times.timer) << " ms" << Qt::endl;
    return 0;
}
