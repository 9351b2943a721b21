// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A plugin that writes down which objects of the program have a timer running while nobody touches it.
#include "tellthetimers.h"

#include "report.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEventLoop>
#include <QList>
#include <QMutex>
#include <QMutexLocker>
#include <QPushButton>
#include <QSet>
#include <QStringList>

// Qt keeps it for tools that look into a program: in two of its places a function may stand that is told each
// object that begins, and each that ends.
extern Q_CORE_EXPORT quintptr qtHookData[];

namespace
{

constexpr int objectBegins{3};
constexpr int objectEnds{4};

/// All objects since the plugin was loaded, which is before any of the program's own. Not every one can be
/// reached from the application or from the window: what stands around the window is on main()'s stack.
struct Objects
{
    QMutex mutex; ///< Other threads have objects, too.
    QSet<QObject *> living;
};

Objects &objects()
{
    static Objects all;
    return all;
}

void begins(QObject *object)
{
    const QMutexLocker lock{&objects().mutex};
    objects().living.insert(object);
}

void ends(QObject *object)
{
    const QMutexLocker lock{&objects().mutex};
    objects().living.remove(object);
}

/// An object by its class and by the first name that it or what it belongs to has.
QString nameOf(const QObject &object)
{
    const QObject *named{&object};
    while (named != nullptr && (named->objectName().isEmpty() || named->objectName().startsWith("qt_"))) {
        named = named->parent();
    }
    return QString{object.metaObject()->className()} + " of " +
           (named != nullptr ? named->objectName() : QStringLiteral("nothing with a name"));
}

QSet<QObject *> allObjects()
{
    const QMutexLocker lock{&objects().mutex};
    QSet<QObject *> all{objects().living};
    // These were there before the plugin.
    all.insert(qApp);
    for (QObject *const object : qApp->findChildren<QObject *>()) {
        all.insert(object);
    }
    return all;
}

struct Timers
{
    QStringList names;
    bool soonOver{
        false}; ///< One of them may run once only, such as that of Qt's lists that adjust their size.
};

Timers runningTimers()
{
    constexpr int soon{100}; // In milliseconds; the caret's takes 500.
    Timers running;
    for (QObject *const object : allObjects()) {
        // Of objects in other threads this knows none.
        for (const auto &timer : QAbstractEventDispatcher::instance()->registeredTimers(object)) {
            // From half a minute after a painting on, Qt throws stored pictures away, some at a time.
            if (!object->inherits("QPMCache")) {
                running.names.append(nameOf(*object));
                running.soonOver = running.soonOver || timer.interval < soon;
            }
        }
    }
    running.names.sort();
    return running;
}

/// Once everything has been done that was to be done soon, painting included.
void tellTimers(const QString &state)
{
    constexpr int roundsAtMost{100};
    Timers timers;
    for (int round{0}; round == 0 || (timers.soonOver && round < roundsAtMost); ++round) {
        QCoreApplication::processEvents(round == 0 ? QEventLoop::AllEvents : QEventLoop::WaitForMoreEvents);
        timers = runningTimers();
    }
    report("PILOTEL_TEST_REPORT",
           {state + ": " + (timers.names.isEmpty() ? "no timer" : timers.names.join(", "))});
}

} // namespace

TellTheTimers::TellTheTimers()
{
    qtHookData[objectBegins] = reinterpret_cast<quintptr>(&begins);
    qtHookData[objectEnds] = reinterpret_cast<quintptr>(&ends);
    qApp->installEventFilter(this);
}

TellTheTimers::~TellTheTimers()
{
    qtHookData[objectBegins] = 0;
    qtHookData[objectEnds] = 0;
}

bool TellTheTimers::eventFilter(QObject *watched, QEvent *event)
{
    auto *const widget = event->type() == QEvent::Show ? qobject_cast<QWidget *>(watched) : nullptr;
    if (window == nullptr && widget != nullptr && widget->isWindow()) {
        window = widget;
        // Once the program runs its event loop.
        QMetaObject::invokeMethod(this, "goThroughASession", Qt::QueuedConnection);
    }
    return false;
}

void TellTheTimers::goThroughASession()
{
    tellTimers("without a device");
    press("scanDeviceButton");
    press("connectDeviceButton");
    tellTimers("connected");
    auto *const box = window->findChild<QWidget *>("FusionZoomFactorSB");
    box->setFocus();
    tellTimers("with the caret");
    press("readParamButtonUser");
    tellTimers("after a read");
    window->close();
}

void TellTheTimers::press(const char *button)
{
    auto *const found = window->findChild<QPushButton *>(button);
    // As the mouse does it.
    found->setFocus(Qt::MouseFocusReason);
    found->click();
}

QObject *TellTheTimersPlugin::create(const QString & /*name*/, const QString & /*arguments*/)
{
    return new TellTheTimers;
}
