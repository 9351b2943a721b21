// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How a value read from the device is shown in a widget, whatever it is.
#include "widgetvalues.h"

#include "encodings.h"

#include <cmath>
#include <functional>

namespace
{

template <typename Widget, typename Number>
void setValueIfDifferent(Widget &widget, Number value)
{
    // Exact also for doubles: the partner of a coupled pair calls back with what was just written.
    if (std::not_equal_to<>{}(widget.value(), value)) {
        widget.setValue(value);
    }
}

} // namespace

void showNumber(QSpinBox &spinBox, std::uint64_t value)
{
    spinBox.setValue(nearestInt(value));
}

void showNumber(QDoubleSpinBox &spinBox, double value)
{
    spinBox.setValue(std::isnan(value) ? spinBox.minimum() : value);
}

void showText(QPlainTextEdit &box, const QString &text)
{
    box.clear();
    box.insertPlainText(text);
}

void setIfDifferent(QAbstractSlider &slider, int value)
{
    setValueIfDifferent(slider, value);
}

void setIfDifferent(QSpinBox &spinBox, int value)
{
    setValueIfDifferent(spinBox, value);
}

void setIfDifferent(QDoubleSpinBox &spinBox, double value)
{
    setValueIfDifferent(spinBox, value);
}
