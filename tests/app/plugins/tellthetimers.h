// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A plugin that writes down which objects of the program have a timer running while nobody touches it.
#pragma once

#include <QEvent>
#include <QGenericPlugin>
#include <QObject>
#include <QString>
#include <QWidget>

/// Goes through a session with the first window that is shown: without a device, connected, with the caret in
/// a text box, and with the caret gone from there. For each it appends a line to the file that
/// PILOTEL_TEST_REPORT names, then it closes the window.
class TellTheTimers : public QObject
{
    Q_OBJECT

public:
    TellTheTimers();
    ~TellTheTimers() override;
    TellTheTimers(const TellTheTimers &) = delete;
    TellTheTimers &operator=(const TellTheTimers &) = delete;
    TellTheTimers(TellTheTimers &&) = delete;
    TellTheTimers &operator=(TellTheTimers &&) = delete;

    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void goThroughASession();

private:
    void press(const char *button);

    QWidget *window{nullptr};
};

class TellTheTimersPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "tellthetimers.json")

public:
    QObject *create(const QString &name, const QString &arguments) override;
};
