// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A plugin that tells the colours that the program's window has, and closes it.
#pragma once

#include <QGenericPlugin>
#include <QObject>
#include <QWidget>

/// Appends to the file that PILOTEL_TEST_REPORT names: a line for each combination of colours that widgets
/// have, the tool tips' colours, and the sizes of the application's icon.
class TellColours : public QObject
{
    Q_OBJECT

public:
    TellColours();
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void tellAndClose();

private:
    QWidget *window{nullptr};
};

class TellColoursPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "tellcolours.json")

public:
    QObject *create(const QString &name, const QString &arguments) override;
};
