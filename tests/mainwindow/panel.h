// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the window shows and lets the operator use, and how its controls follow one another.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QWidget>

#include <utility>

/// Every named widget's state, property by property: `gammaSlider.value`, `paramSection.enabled`. A widget is
/// enabled here when nobody disabled the widget itself. The log view's text is left out.
using Panel = QMap<QString, QVariant>;

Panel panelOf(const QWidget &window);

/// One line for every property in which the panels differ.
QStringList differences(const Panel &expected, const Panel &found);

/// The controls of a window as they have to behave: ranges, rounding, and sliders coupled with their boxes.
class Controls
{
public:
    explicit Controls(Panel shown) : state{std::move(shown)} {}

    const Panel &panel() const { return state; }

    double value(const QString &name) const
    {
        return state.value(name + QStringLiteral(".value")).toDouble();
    }
    /// The value without its fraction.
    qint64 whole(const QString &name) const { return static_cast<qint64>(value(name)); }
    bool isChecked(const QString &name) const
    {
        return state.value(name + QStringLiteral(".checked")).toBool();
    }
    int index(const QString &name) const
    {
        return state.value(name + QStringLiteral(".currentIndex")).toInt();
    }
    /// The text of the current item; empty without one.
    QString itemText(const QString &name) const;
    QString text(const QString &name) const { return state.value(name + QStringLiteral(".text")).toString(); }

    /// Whether this changed the index; one that does not exist leaves the box without a current item.
    bool choose(const QString &comboBox, double index);
    void turnTo(const QString &tabs, int page) { state[tabs + QStringLiteral(".currentIndex")] = page; }
    /// Whether this changed the state.
    bool check(const QString &button, bool checked);
    void write(const QString &button, const QString &text) { state[button + QStringLiteral(".text")] = text; }
    void show(const QString &textBox, const QString &text)
    {
        state[textBox + QStringLiteral(".plainText")] = text;
    }
    void enable(const QString &name, bool enabled) { state[name + QStringLiteral(".enabled")] = enabled; }
    void setRange(const QString &name, double minimum, double maximum);
    void setSingleStep(const QString &name, double step);
    /// Moves a slider or sets a spin box, and what is coupled with it.
    void set(const QString &name, double value);

private:
    void follow(const QString &name);
    QVariant fitting(const QString &name, double value) const;

    Panel state;
};
