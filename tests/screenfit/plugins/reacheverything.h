// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A plugin that goes to every control of the program's window and tells what it could not reach.
#pragma once

#include <QGenericPlugin>
#include <QObject>
#include <QSet>
#include <QWidget>

class QMainWindow;

/// Tells where the window is and how many pixels its icons have, connects to the simulated camera, goes
/// through every page with the Tab key, turns the wheel over what is no control, and closes the window. What
/// it finds is in the file that PILOTEL_TEST_REPORT names, a line each.
class ReachEverything : public QObject
{
    Q_OBJECT

public:
    ReachEverything();
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void goThroughTheWindow();

private:
    void tellPlaces() const;
    void tellIcons() const;
    void connectToTheCamera() const;
    void goThroughThePages();
    void goThroughOnePage();
    void tellWhatIsCut() const;
    void turnTheWheel() const;
    bool isWhollyShown(const QWidget &widget) const;

    QWidget *window{nullptr};
    QMainWindow *content{nullptr};
    QSet<QString> reached;
};

class ReachEverythingPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "reacheverything.json")

public:
    QObject *create(const QString &name, const QString &arguments) override;
};
