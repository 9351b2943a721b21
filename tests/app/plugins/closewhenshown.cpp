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
#include <QPlainTextEdit>
#include <QPushButton>
#include <QString>
#include <QStringList>
#include <QTabWidget>

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
        // Once the program runs its event loop, unless told to come before it.
        const bool early{qEnvironmentVariableIsSet("PILOTEL_TEST_CLOSE_EARLY")};
        QMetaObject::invokeMethod(this, "finish", early ? Qt::DirectConnection : Qt::QueuedConnection);
    }
    return false;
}

void CloseWhenShown::finish()
{
    report(reportVariable,
           {QStringLiteral("window ") + window->metaObject()->className() + ' ' + window->windowTitle()});
    if (const auto *const box = qobject_cast<QMessageBox *>(window)) {
        report(reportVariable, {"text " + box->text()});
    }
    if (qEnvironmentVariableIsSet("PILOTEL_TEST_SCAN")) {
        scan();
    }
    if (qEnvironmentVariableIsSet("PILOTEL_TEST_SESSION")) {
        goThroughASession();
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

void CloseWhenShown::goThroughASession()
{
    press("connectDeviceButton");
    auto *const pages = window->findChild<QTabWidget *>("Principal_tab");
    for (int page{0}; page < pages->count(); ++page) {
        pages->setCurrentIndex(page);
    }
    for (const char *const button : {"readParamButtonUser", "resetParamButtonUser", "saveParamButtonUser",
                                     "BU_IR_MODE_PB", "polarityButton", "readParamButtonExpert"}) {
        press(button);
    }
    press("disconnectDeviceButton");
    const QString log{window->findChild<QPlainTextEdit *>("logView")->toPlainText()};
    for (const QString &line : log.split('\n', Qt::SkipEmptyParts)) {
        report(reportVariable, {"line " + line});
    }
}

void CloseWhenShown::press(const char *button)
{
    window->findChild<QPushButton *>(button)->click();
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
