// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The sliders of the camera's pages with their spin boxes.
#pragma once

#include "camerapage.h"
#include "controls.h"

#include <QAbstractSpinBox>
#include <QSlider>
#include <QString>
#include <QTest>

#include <cstddef>

/// One row for each pair, by its place in the table.
inline void addPairs()
{
    QTest::addColumn<std::size_t>("place");
    for (std::size_t place{0}; place < pairs.size(); ++place) {
        QTest::newRow(pairs.at(place).name) << place;
    }
}

/// A pair in the window, whatever the class of its spin box.
struct Widgets
{
    Widgets(const TestWindow &test, const Pair &pair)
        : slider{test.child<QSlider>(pair.slider)}, box{test.child<QAbstractSpinBox>(pair.box)}
    {}

    double value() const { return box.property("value").toDouble(); }
    void setValue(double value) { QVERIFY(box.setProperty("value", value)); }

    QSlider &slider;
    QAbstractSpinBox &box;
};

/// Types over what a spin box shows, and stays in it.
inline void typeInto(QAbstractSpinBox &box, const QString &text)
{
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, text);
}
