// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How often the monkey reached each control and handler.
#include "reach.h"

#include "mainwindow.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QMetaMethod>
#include <QPlainTextEdit>
#include <QSlider>
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

Reach::Reach()
{
    qApp->installEventFilter(this);
}

QStringList Reach::leastReached(const QStringList &names) const
{
    QStringList least;
    int fewest{std::numeric_limits<int>::max()};
    for (const QString &name : names) {
        const int count{times.value(name)};
        if (count < fewest) {
            fewest = count;
            least.clear();
        }
        if (count == fewest) {
            least.append(name);
        }
    }
    return least;
}

QStringList Reach::leftOver(const QStringList &names) const
{
    QStringList left;
    for (const QString &name : names) {
        if (!times.contains(name)) {
            left.append(name);
        }
    }
    return left;
}

bool Reach::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::Wheel:
        break;
    default:
        return false;
    }
    // Parts of a control, such as the line of a spin box, have no name or one of Qt's.
    for (const QObject *part{watched}; part != nullptr && part->isWidgetType(); part = part->parent()) {
        const QString name{part->objectName()};
        if (!name.isEmpty() && !name.startsWith(QStringLiteral("qt_"))) {
            ++times[name];
            break;
        }
    }
    return false;
}
