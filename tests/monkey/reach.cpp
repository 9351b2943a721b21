// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What of the window the monkey can reach, whose turn it is, and what it did reach.
#include "reach.h"

#include "mainwindow.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QSlider>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTextEdit>

#include <limits>

QList<QWidget *> controlsOf(const QWidget &window)
{
    QList<QWidget *> controls;
    for (QWidget *const widget : window.findChildren<QWidget *>()) {
        const QString name{widget->objectName()};
        const bool isControl{qobject_cast<const QAbstractButton *>(widget) != nullptr ||
                             qobject_cast<const QAbstractSpinBox *>(widget) != nullptr ||
                             qobject_cast<const QComboBox *>(widget) != nullptr ||
                             qobject_cast<const QSlider *>(widget) != nullptr ||
                             qobject_cast<const QTabWidget *>(widget) != nullptr ||
                             qobject_cast<const QPlainTextEdit *>(widget) != nullptr ||
                             qobject_cast<const QTextEdit *>(widget) != nullptr};
        if (isControl && !name.isEmpty() && !name.startsWith(QStringLiteral("qt_")) &&
            name != QStringLiteral("ScrollLeftButton") && name != QStringLiteral("ScrollRightButton")) {
            controls.append(widget);
        }
    }
    return controls;
}

QStringList namesOf(const QList<QWidget *> &controls)
{
    QStringList names;
    for (const QWidget *const control : controls) {
        names.append(control->objectName());
    }
    return names;
}

const QStringList &handlers()
{
    static const QStringList signatures{[] {
        QStringList all;
        const QMetaObject &type{MainWindow::staticMetaObject};
        for (int index{type.methodOffset()}; index < type.methodCount(); ++index) {
            if (type.method(index).methodType() == QMetaMethod::Slot) {
                all.append(QString::fromLatin1(type.method(index).methodSignature()));
            }
        }
        return all;
    }()};
    return signatures;
}

bool isOnAPage(const QWidget &control)
{
    for (const QWidget *part{&control}; !part->isWindow(); part = part->parentWidget()) {
        const QWidget *const stack{part->parentWidget()};
        const auto *const tabs = qobject_cast<const QTabWidget *>(stack->parentWidget());
        if (tabs != nullptr && qobject_cast<const QStackedWidget *>(stack) != nullptr) {
            // Pages that are not in view are hidden, and those that were taken out stay in the stack.
            if (tabs->indexOf(const_cast<QWidget *>(part)) < 0) {
                return false;
            }
        } else if (part->isHidden()) {
            return false;
        }
    }
    return true;
}

bool isConnected(const QWidget &window)
{
    const auto *const pages = window.findChild<QWidget *>(QStringLiteral("paramSection"));
    return pages != nullptr && pages->isEnabled();
}

QString Turns::next(const QStringList &names)
{
    // Coprime to how many names there may be, and more than a session takes.
    constexpr quint32 stride{37};
    const auto count = static_cast<quint32>(names.size());
    QString chosen;
    int fewest{std::numeric_limits<int>::max()};
    for (quint32 step{0}; step < count; ++step) {
        const QString &name{names.at(static_cast<int>((quint64{seed} * stride + step) % count))};
        if (times.value(name) < fewest) {
            fewest = times.value(name);
            chosen = name;
        }
    }
    ++times[chosen];
    return chosen;
}

Reach::Reach()
{
    qApp->installEventFilter(this);
}

void Reach::learn(const QWidget &window)
{
    for (const QWidget *const control : controlsOf(window)) {
        // The form disables that one, and nothing enables it.
        if (control->objectName() != QStringLiteral("checkBox")) {
            (isOnAPage(*control) ? onPages : onNone).append(control->objectName());
        }
    }
    onPages.removeDuplicates();
    onNone.removeDuplicates();
}

Reach::Count Reach::hand() const
{
    Count count{onPages.size(), {}};
    for (const QString &name : onPages) {
        if (!byHand.contains(name)) {
            count.left.append(name);
        }
    }
    return count;
}

Reach::Count Reach::script() const
{
    Count count{0, {}};
    for (const QString &name : handlers() + onNone) {
        if (!onPages.contains(name)) {
            ++count.all;
            if (!byName.contains(name)) {
                count.left.append(name);
            }
        }
    }
    return count;
}

bool Reach::eventFilter(QObject *watched, QEvent *event)
{
    if (!watched->isWidgetType()) {
        return false;
    }
    const auto *const widget = static_cast<const QWidget *>(watched);
    const bool pressed{event->type() == QEvent::MouseButtonPress ||
                       event->type() == QEvent::MouseButtonDblClick};
    // What a widget does not want goes on to those around it, which are not reached by that.
    if (pressed ? widget->childAt(static_cast<const QMouseEvent *>(event)->pos()) != nullptr
                : event->type() != QEvent::KeyPress || !widget->hasFocus()) {
        return false;
    }
    // Parts of a control, such as the line of a spin box, have no name or one of Qt's.
    for (const QWidget *part{widget}; part != nullptr; part = part->parentWidget()) {
        const QString name{part->objectName()};
        if (!name.isEmpty() && !name.startsWith(QStringLiteral("qt_"))) {
            if (part->isEnabled() && part->isVisible()) {
                byHand.insert(name);
            }
            break;
        }
    }
    return false;
}
