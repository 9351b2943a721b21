// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Cost of a log line: appendLog beside QPlainTextEdit::appendPlainText, as the log grows.
#include "mainwindow.h"
#include "veltrix_simulator/simulator.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMetaMethod>
#include <QPlainTextEdit>
#include <QTextStream>

#include <algorithm>
#include <functional>
#include <limits>
#include <string>

namespace
{

constexpr int measuredLines{200};
constexpr int batches{20};

/// Microseconds per line over measuredLines lines.
double microsecondsPerLine(const std::function<void()> &append)
{
    QElapsedTimer timer;
    timer.start();
    for (int line{0}; line < measuredLines; ++line) {
        append();
    }
    return static_cast<double>(timer.nsecsElapsed()) / 1000.0 / measuredLines;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application{argc, argv};
    veltrix_simulator::Simulator::instance().setJournalEnabled(false);

    MainWindow window;
    window.show();
    auto &logView = *window.findChild<QPlainTextEdit *>(QStringLiteral("logView"));
    // A view that is shown as the log view is.
    QPlainTextEdit plainView;
    plainView.setReadOnly(true);
    plainView.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    plainView.setFont(logView.font());
    plainView.resize(logView.size());
    plainView.show();

    const std::string line{"Set GAMMA value OK"};
    const QString plainLine{QString::fromStdString(line)};
    // Both through their slots, looked up once: what a slot costs to invoke is not what is measured.
    const auto slot = [](const QObject &object, const char *signature) {
        return object.metaObject()->method(object.metaObject()->indexOfSlot(signature));
    };
    const QMetaMethod appendLogSlot{slot(window, "appendLog(std::string)")};
    const QMetaMethod appendPlainTextSlot{slot(plainView, "appendPlainText(QString)")};
    const auto appendLog = [&] {
        appendLogSlot.invoke(&window, Qt::DirectConnection, Q_ARG(std::string, line));
    };
    const auto appendPlainText = [&] {
        appendPlainTextSlot.invoke(&plainView, Qt::DirectConnection, Q_ARG(QString, plainLine));
    };

    QTextStream out{stdout};
    out.setRealNumberNotation(QTextStream::FixedNotation);
    out.setRealNumberPrecision(2);
    out << "lines in the log   appendLog [us/line]   appendPlainText [us/line]   ratio\n";
    int filled{0};
    for (const int lines : {1'000, 10'000, 100'000, 1'000'000}) {
        for (; filled < lines; ++filled) {
            appendLog();
            appendPlainText();
        }
        // In turn, and the quickest batch of each: what else the machine does hits both alike.
        double ours{std::numeric_limits<double>::max()};
        double plain{ours};
        for (int batch{0}; batch < batches; ++batch) {
            ours = std::min(ours, microsecondsPerLine(appendLog));
            plain = std::min(plain, microsecondsPerLine(appendPlainText));
        }
        filled += batches * measuredLines;
        out << qSetFieldWidth(17) << logView.blockCount() - 1 - batches * measuredLines << qSetFieldWidth(22)
            << ours << qSetFieldWidth(28) << plain << qSetFieldWidth(8) << ours / plain << qSetFieldWidth(0)
            << Qt::endl;
    }
    return 0;
}
