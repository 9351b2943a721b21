// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A plugin that closes the program's window once it is shown.
#pragma once

#include <QEvent>
#include <QGenericPlugin>
#include <QObject>
#include <QString>
#include <QWidget>

/// Closes the first window that is shown. PILOTEL_TEST_REPORT names a file for what it finds before that;
/// with PILOTEL_TEST_SCAN set it presses Scan Devices first, with PILOTEL_TEST_SESSION set it then goes
/// through a session with what the scan selected and reports the lines of the log.
class CloseWhenShown : public QObject
{
    Q_OBJECT

public:
    CloseWhenShown();
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void finish();
    void answerBox();

private:
    void scan();
    void goThroughASession();
    void press(const char *button);

    QWidget *window{nullptr};
};

class CloseWhenShownPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "closewhenshown.json")

public:
    QObject *create(const QString &name, const QString &arguments) override;
};
