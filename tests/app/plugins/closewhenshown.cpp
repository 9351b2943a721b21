// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A plugin that closes the program's window once it is shown.
#include "closewhenshown.h"

#include "report.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDirIterator>
#include <QEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QString>
#include <QStringList>

namespace
{

constexpr const char *reportVariable{"PILOTEL_TEST_REPORT"};

} // namespace

CloseWhenShown::CloseWhenShown()
{
    QStringList resources;
    QDirIterator files{":/picture", QDir::Files, QDirIterator::Subdirectories};
    while (files.hasNext()) {
        resources.append("resource " + files.next());
    }
    resources.sort();
    report(reportVariable, resources);
    qApp->installEventFilter(this);
}

bool CloseWhenShown::eventFilter(QObject *watched, QEvent *event)
{
    auto *const widget = event->type() == QEvent::Show ? qobject_cast<QWidget *>(watched) : nullptr;
    if (window == nullptr && widget != nullptr && widget->isWindow()) {
        window = widget;
        // Once the program runs its event loop.
        QMetaObject::invokeMethod(this, "finish", Qt::QueuedConnection);
    }
    return false;
}

void CloseWhenShown::finish()
{
    report(reportVariable,
           {QStringLiteral("window ") + window->metaObject()->className() + ' ' + window->windowTitle()});
    if (qEnvironmentVariableIsSet("PILOTEL_TEST_SCAN")) {
        scan();
    }
    window->close();
}

void CloseWhenShown::scan()
{
    QMetaObject::invokeMethod(this, "answerBox", Qt::QueuedConnection);
    window->findChild<QPushButton *>("scanDeviceButton")->click();
    const auto *const ports = window->findChild<QComboBox *>("selectDeviceComboBox");
    for (int index{0}; index < ports->count(); ++index) {
        report(reportVariable, {"port " + ports->itemText(index)});
    }
}

void CloseWhenShown::answerBox()
{
    if (auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
        report(reportVariable, {"box " + box->text().section('\n', 0, 0)});
        box->accept();
    }
}

QObject *CloseWhenShownPlugin::create(const QString & /*name*/, const QString & /*arguments*/)
{
    return new CloseWhenShown;
}
