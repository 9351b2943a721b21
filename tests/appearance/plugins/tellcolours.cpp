// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A plugin that tells the colours that the program's window has and whether OpenGL is loaded, and closes it.
#include "tellcolours.h"

#include "report.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QToolTip>

namespace
{

QString colours(const QPalette &palette)
{
    QStringList names;
    for (const auto role : {QPalette::WindowText, QPalette::Base, QPalette::Text, QPalette::Button,
                            QPalette::ButtonText, QPalette::ToolTipBase, QPalette::ToolTipText}) {
        names.append(palette.color(QPalette::Active, role).name());
    }
    return names.join(' ');
}

} // namespace

TellColours::TellColours()
{
    qApp->installEventFilter(this);
}

bool TellColours::eventFilter(QObject *watched, QEvent *event)
{
    auto *const widget = event->type() == QEvent::Show ? qobject_cast<QWidget *>(watched) : nullptr;
    if (window == nullptr && widget != nullptr && widget->isWindow()) {
        window = widget;
        QMetaObject::invokeMethod(this, "tellAndClose", Qt::QueuedConnection);
    }
    return false;
}

void TellColours::tellAndClose()
{
    QStringList lines;
    for (const QWidget *const widget : window->findChildren<QWidget *>()) {
        lines.append("widgets " + colours(widget->palette()));
    }
    lines.removeDuplicates();
    lines.append("tool tips " + QToolTip::palette().color(QPalette::ToolTipText).name());
    lines.append(QStringLiteral("icon in %1 sizes").arg(QApplication::windowIcon().availableSizes().size()));
    QFile loaded{"/proc/self/maps"};
    // Qt itself is linked with OpenGL; what costs is the plugin that starts it, with its drivers.
    const bool hasOpenGl{loaded.open(QIODevice::ReadOnly) &&
                         loaded.readAll().contains("libqxcb-glx-integration")};
    lines.append(hasOpenGl ? "OpenGL is loaded" : "OpenGL is not loaded");
    report("PILOTEL_TEST_REPORT", lines);
    window->close();
}

QObject *TellColoursPlugin::create(const QString & /*name*/, const QString & /*arguments*/)
{
    return new TellColours;
}
