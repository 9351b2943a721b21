// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Fails a test on a Qt warning that nobody announced.
#include "warningwatcher.h"

#include <QLatin1String>
#include <QString>
#include <QTest>

namespace
{

// A message handler is a plain function, so what it collects has to be reachable from one.
QStringList *collected{nullptr};
QtMessageHandler passOn{nullptr};

/// What the off-screen platform says of itself when a window is shown; it is not about the program.
constexpr const char *platformRemark{"This plugin does not support propagateSizeHints()"};

void collect(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message == QLatin1String{platformRemark}) {
        return;
    }
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        collected->append(message);
    } else {
        passOn(type, context, message);
    }
}

} // namespace

WarningWatcher::WarningWatcher()
{
    collected = new QStringList;
    previous = qInstallMessageHandler(collect);
    passOn = previous;
}

WarningWatcher::~WarningWatcher()
{
    qInstallMessageHandler(previous);
    for (const QString &warning : qAsConst(*collected)) {
        QTest::qFail(qPrintable(QStringLiteral("unannounced warning: ") + warning), __FILE__, __LINE__);
    }
    delete collected;
    collected = nullptr;
}

QStringList WarningWatcher::take()
{
    QStringList taken;
    taken.swap(*collected);
    return taken;
}
