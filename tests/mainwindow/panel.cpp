// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the window shows and lets the operator use, and how its controls follow one another.
#include "panel.h"

#include "controls.h"

#include <QComboBox>
#include <QHash>
#include <QLatin1Char>
#include <QLatin1String>
#include <QMetaProperty>
#include <QString>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace
{

/// What is looked at, where a widget has it.
constexpr const char *watchedProperties[]{
    "checked", "currentIndex", "value", "minimum", "maximum", "decimals", "singleStep", "plainText",
};

/// The watched properties that a class has, with what stands behind the widget's name in the panel.
using Watched = std::vector<std::pair<QMetaProperty, QString>>;

const Watched &watchedIn(const QMetaObject &type)
{
    static QHash<const QMetaObject *, Watched> known;
    const auto found = known.constFind(&type);
    if (found != known.constEnd()) {
        return *found;
    }
    Watched watched;
    for (const char *const name : watchedProperties) {
        const int index{type.indexOfProperty(name)};
        if (index >= 0) {
            watched.emplace_back(type.property(index), QLatin1Char{'.'} + QLatin1String{name});
        }
    }
    return *known.insert(&type, watched);
}

} // namespace

Panel panelOf(const QWidget &window)
{
    Panel panel;
    for (const QWidget *const widget : window.findChildren<QWidget *>()) {
        const QString name{widget->objectName()};
        if (name.isEmpty() || name.startsWith(QStringLiteral("qt_"))) {
            continue;
        }
        panel[name + QStringLiteral(".enabled")] = widget->isEnabledTo(widget->parentWidget());
        if (name != QStringLiteral("logView")) {
            for (const auto &[property, suffix] : watchedIn(*widget->metaObject())) {
                panel[name + suffix] = property.read(widget);
            }
        }
        if (widget->inherits("QAbstractButton")) {
            panel[name + QStringLiteral(".text")] = widget->property("text");
        } else if (const auto *const comboBox = qobject_cast<const QComboBox *>(widget)) {
            QStringList items;
            for (int index{0}; index < comboBox->count(); ++index) {
                items.append(comboBox->itemText(index));
            }
            panel[name + QStringLiteral(".items")] = items;
        }
    }
    return panel;
}

QStringList differences(const Panel &expected, const Panel &found)
{
    QStringList lines;
    QStringList keys{expected.keys() + found.keys()};
    keys.removeDuplicates();
    for (const QString &key : qAsConst(keys)) {
        if (expected.value(key) != found.value(key)) {
            lines.append(QStringLiteral("%1 is %2 instead of %3")
                             .arg(key, found.value(key).toString(), expected.value(key).toString()));
        }
    }
    return lines;
}

QString Controls::itemText(const QString &name) const
{
    return state.value(name + QStringLiteral(".items")).toStringList().value(index(name));
}

bool Controls::choose(const QString &comboBox, double index)
{
    const int count{state.value(comboBox + QStringLiteral(".items")).toStringList().size()};
    const int chosen{index < count ? static_cast<int>(index) : -1};
    const bool changed{chosen != this->index(comboBox)};
    state[comboBox + QStringLiteral(".currentIndex")] = chosen;
    return changed;
}

bool Controls::check(const QString &button, bool checked)
{
    const bool changed{checked != isChecked(button)};
    state[button + QStringLiteral(".checked")] = checked;
    return changed;
}

void Controls::setRange(const QString &name, double minimum, double maximum)
{
    QVariant &lower = state[name + QStringLiteral(".minimum")];
    QVariant &upper = state[name + QStringLiteral(".maximum")];
    const int type{lower.userType()};
    lower = minimum;
    upper = maximum;
    lower.convert(type);
    upper.convert(type);
    set(name, value(name));
}

void Controls::setSingleStep(const QString &name, double step)
{
    QVariant &singleStep = state[name + QStringLiteral(".singleStep")];
    const int type{singleStep.userType()};
    singleStep = step;
    singleStep.convert(type);
}

QVariant Controls::fitting(const QString &name, double value) const
{
    const QVariant decimals{state.value(name + QStringLiteral(".decimals"))};
    if (std::isnan(value)) {
        // Shown at the lowest value, and in whole numbers as the nearest one to 0.
        value = decimals.isValid() ? state.value(name + QStringLiteral(".minimum")).toDouble() : 0.0;
    }
    const double rounded{decimals.isValid() ? QString::number(value, 'f', decimals.toInt()).toDouble()
                                            : value};
    const double bounded{std::clamp(rounded, state.value(name + QStringLiteral(".minimum")).toDouble(),
                                    state.value(name + QStringLiteral(".maximum")).toDouble())};
    return decimals.isValid() ? QVariant{bounded} : QVariant{static_cast<int>(bounded)};
}

void Controls::set(const QString &name, double value)
{
    const QVariant fitted{fitting(name, value)};
    QVariant &current = state[name + QStringLiteral(".value")];
    if (current != fitted) {
        current = fitted;
        follow(name);
    }
}

void Controls::follow(const QString &name)
{
    for (const Pair &pair : pairs) {
        const QString slider{QLatin1String{pair.slider}};
        const QString spinBox{QLatin1String{pair.box}};
        if (name == slider) {
            set(spinBox, value(slider) * pair.unitsPerStep + pair.lowest);
        } else if (name == spinBox) {
            // The nearest step, halves away from zero; multiplied, as a tenth is no exact number.
            set(slider, std::round((value(spinBox) - pair.lowest) * pair.stepsPerUnit));
        }
    }
}
